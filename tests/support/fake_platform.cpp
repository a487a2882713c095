#include "support/fake_platform.h"

#include "platform/whole_file.h"

namespace tavrel::test {

void FakePlatform::WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) {
  tavrel::WriteWholeFile(Files, file, bytes);
}

void FakePlatform::WritePlainFile(const std::filesystem::path& file, std::string_view bytes) {
  tavrel::WritePlainFile(Files, file, bytes);
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
