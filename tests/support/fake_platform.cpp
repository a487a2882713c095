#include "support/fake_platform.h"

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

}  // namespace tavrel::test
