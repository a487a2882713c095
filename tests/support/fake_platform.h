#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/platform.h"
#include "support/failing_files.h"

namespace tavrel::test {

/// A platform whose volumes and file faults a test decides.
class FakePlatform final : public Platform {
 public:
  std::vector<Volume> FakeVolumes;
  std::set<std::string> NotReady;  ///< names of volumes that cannot be read
  FailingFiles Files;

  const CodePage& SystemCodePage() const override { return CodePage::Windows1252(); }
  std::vector<Volume> Volumes() const override { return FakeVolumes; }
  bool IsReady(const Volume& volume) const override { return !NotReady.contains(volume.Name); }
  void WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) override;
  void WritePlainFile(const std::filesystem::path& file, std::string_view bytes) override;
};

}  // namespace tavrel::test
