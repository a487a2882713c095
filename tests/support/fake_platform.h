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
  std::set<std::filesystem::path> NotWritable;
  bool FlushesVolumes = true;       ///< whether FlushVolumeOf takes its time
  std::string SystemVolume = "c:";  ///< name of the system's own volume
  FailingFiles Files;

  const CodePage& SystemCodePage() const override { return CodePage::Windows1252(); }
  std::vector<Volume> Volumes() const override { return FakeVolumes; }
  bool IsReady(const Volume& volume) const override { return !NotReady.contains(volume.Name); }
  std::error_code WhyNotWritable(const std::filesystem::path& folder) const override;
  bool IsSystemVolume(const Volume& volume) const override { return volume.Name == SystemVolume; }
  bool IsHidden(const std::filesystem::path& file) const override;
  void WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) override;
  void WritePlainFile(const std::filesystem::path& file, std::string_view bytes) override;
  void CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to) override;
  void FlushVolumeOf(const std::filesystem::path& folder) override;
};

}  // namespace tavrel::test
