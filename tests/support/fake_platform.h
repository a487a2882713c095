#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/platform.h"
#include "platform/system_platform.h"
#include "support/failing_files.h"

namespace tavrel::test {

/// Types of registry values.
inline constexpr std::uint32_t kRegistryString = 1;
inline constexpr std::uint32_t kRegistryExpandable = 2;
inline constexpr std::uint32_t kRegistryNumber = 4;

/// A platform whose volumes and file faults a test decides.
class FakePlatform final : public Platform {
 public:
  std::vector<Volume> FakeVolumes;
  std::set<std::string> NotReady;               ///< names of volumes that cannot be read
  std::set<std::filesystem::path> NotReadable;  ///< folders whose entries cannot be listed
  std::set<std::filesystem::path> NotWritable;
  std::set<std::filesystem::path> RefusedNames;  ///< names that no file can have
  bool FlushesVolumes = true;                    ///< whether FlushVolumeOf takes its time
  std::string SystemVolume = "c:";               ///< name of the system's own volume
  bool HasBrowser = true;                        ///< whether there is something that opens pages and messages
  std::vector<std::string> Opened;               ///< pages and messages
  std::filesystem::path OpenedIn;                ///< the folder that was current when the last one was opened
  std::vector<std::filesystem::path> Started;    ///< programs
  bool StartsPrograms = true;                    ///< whether they start
  std::map<std::string, RegistryValue> Registry;  ///< values of the local machine by "KEY|NAME"
  FailingFiles Files;

  const CodePage& SystemCodePage() const override { return CodePage::Windows1252(); }
  std::vector<Volume> Volumes() const override { return FakeVolumes; }
  bool IsReady(const Volume& volume) const override { return !NotReady.contains(volume.Name); }
  std::error_code WhyNotReadable(const std::filesystem::path& folder) const override {
    if (NotReadable.contains(folder)) return std::make_error_code(std::errc::filename_too_long);
    return MakeSystemPlatform()->WhyNotReadable(folder);
  }
  std::error_code WhyNotWritable(const std::filesystem::path& folder) const override;
  bool IsSystemVolume(const Volume& volume) const override { return volume.Name == SystemVolume; }
  bool RefusesName(const std::filesystem::path& name) const override { return RefusedNames.contains(name); }
  bool IsHidden(const std::filesystem::path& file) const override;
  void WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) override;
  void WritePlainFile(const std::filesystem::path& file, std::string_view bytes) override;
  void CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to) override;
  void FlushVolumeOf(const std::filesystem::path& folder) override;
  bool OpenInBrowser(const std::string& target) override;
  bool OpenMail(const std::string& address) override;
  void StartProgram(const std::filesystem::path& program) override;
  std::optional<RegistryValue> ReadRegistry(RegistryRoot root, const std::string& key,
                                            const std::string& name) const override;
};

}  // namespace tavrel::test
