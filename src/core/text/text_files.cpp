#include "core/text/text_files.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <system_error>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenedFile = std::unique_ptr<std::FILE, CloseFile>;

OpenedFile OpenForReading(const fs::path& file) {
#ifdef _WIN32
  return OpenedFile(_wfopen(file.c_str(), L"rb"));
#else
  return OpenedFile(std::fopen(file.c_str(), "rb"));
#endif
}

[[noreturn]] void ThrowUnreadable(const fs::path& file, int error) {
  throw FileError(file, "could not be read", std::error_code(error, std::generic_category()));
}

}  // namespace

std::string ReadWholeFile(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status)) {
    // A pipe would wait for somebody to write to it, and a device may never end.
    ThrowUnreadable(file, EOPNOTSUPP);
  }
  errno = 0;
  const OpenedFile opened = OpenForReading(file);
  if (!opened) ThrowUnreadable(file, errno);
  // The size is only where to begin: the file may grow or shrink while it is read.
  const std::uintmax_t size = fs::file_size(file, error);
  if (error == std::errc::is_a_directory) ThrowUnreadable(file, EISDIR);
  std::string bytes(error ? 1 : static_cast<std::size_t>(size), '\0');
  std::setvbuf(opened.get(), nullptr, _IONBF, 0);
  std::size_t length = 0;
  while (true) {
    length += std::fread(bytes.data() + length, 1, bytes.size() - length, opened.get());
    if (length < bytes.size()) break;
    const int next = std::fgetc(opened.get());
    if (next == EOF) break;
    bytes.resize(bytes.size() * 2 + 1);
    bytes[length++] = static_cast<char>(next);
  }
  if (std::ferror(opened.get()) != 0) ThrowUnreadable(file, errno);
  bytes.resize(length);
  return bytes;
}

std::string_view LineReader::Next() {
  const std::size_t feed = rest_.find('\n');
  std::string_view line = rest_.substr(0, feed);
  rest_.remove_prefix(feed == std::string_view::npos ? rest_.size() : feed + 1);
  const bool ended = feed != std::string_view::npos;
  if (ended && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace tavrel
