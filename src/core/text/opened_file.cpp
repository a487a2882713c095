#include "core/text/opened_file.h"

#include <cerrno>
#include <system_error>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

std::FILE* Open(const fs::path& file) {
#ifdef _WIN32
  return _wfopen(file.c_str(), L"rb");
#else
  return std::fopen(file.c_str(), "rb");
#endif
}

[[noreturn]] void ThrowUnreadable(const fs::path& file, int error) {
  throw FileError(file, "could not be read", std::error_code(error, std::generic_category()));
}

}  // namespace

OpenedFile::OpenedFile(const fs::path& file) : name_(file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status)) {
    // A pipe would wait for somebody to write to it, and a device may never end.
    ThrowUnreadable(file, EOPNOTSUPP);
  }
  errno = 0;
  file_.reset(Open(file));
  if (!file_) ThrowUnreadable(file, errno);
  if (fs::is_directory(status)) ThrowUnreadable(file, EISDIR);
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

std::size_t OpenedFile::Read(char* buffer, std::size_t size) {
  const std::size_t count = std::fread(buffer, 1, size, file_.get());
  if (count < size && std::ferror(file_.get()) != 0) ThrowUnreadable(name_, errno);
  return count;
}

}  // namespace tavrel
