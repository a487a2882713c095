#include "support/fake_platform.h"

#include "platform/whole_file.h"

namespace tavrel::test {

void FakePlatform::WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) {
  tavrel::WriteWholeFile(Files, file, bytes);
}

void FakePlatform::WritePlainFile(const std::filesystem::path& file, std::string_view bytes) {
  tavrel::WritePlainFile(Files, file, bytes);
}

}  // namespace tavrel::test
