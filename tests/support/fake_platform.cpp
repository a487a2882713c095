#include "support/fake_platform.h"

#include "core/text/run_time_error.h"
#include "platform/whole_file.h"

namespace tavrel::test {

void FakePlatform::WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) {
  tavrel::WriteWholeFile(Files, file, bytes);
}

void FakePlatform::WritePlainFile(const std::filesystem::path& file, std::string_view bytes) {
  tavrel::WritePlainFile(Files, file, bytes);
}

std::error_code FakePlatform::WhyNotWritable(const std::filesystem::path& folder) const {
  if (!std::filesystem::exists(folder)) return std::make_error_code(std::errc::no_such_file_or_directory);
  if (NotWritable.contains(folder)) return std::make_error_code(std::errc::read_only_file_system);
  return {};
}

bool FakePlatform::IsHidden(const std::filesystem::path& file) const {
  return file.filename().string().starts_with('.');
}

void FakePlatform::CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to) {
  tavrel::CopyPlainFile(Files, from, to);
}

void FakePlatform::FlushVolumeOf(const std::filesystem::path& folder) {
  if (FlushesVolumes) tavrel::FlushVolumeOf(Files, folder);
}

bool FakePlatform::OpenInBrowser(const std::string& target) {
  if (!HasBrowser) return false;
  Opened.push_back(target);
  OpenedIn = std::filesystem::current_path();
  return true;
}

bool FakePlatform::OpenMail(const std::string& address) {
  return OpenInBrowser(address);
}

void FakePlatform::StartProgram(const std::filesystem::path& program) {
  if (!StartsPrograms)
    throw FileError(program, "could not be started", std::make_error_code(std::errc::permission_denied));
  Started.push_back(program);
}

std::optional<RegistryValue> FakePlatform::ReadRegistry(RegistryRoot root, const std::string& key,
                                                        const std::string& name) const {
  const auto found = Registry.find(key + "|" + name);
  if (root != RegistryRoot::LocalMachine || found == Registry.end()) return std::nullopt;
  return found->second;
}

}  // namespace tavrel::test
