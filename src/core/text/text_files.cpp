#include "core/text/text_files.h"

#include <algorithm>
#include <cstdint>
#include <system_error>

namespace tavrel {
namespace {

namespace fs = std::filesystem;

std::size_t SizeOf(const fs::path& file) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(file, error);
  return error ? 0 : static_cast<std::size_t>(size);
}

std::string_view WithoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

std::string ReadWholeFile(const fs::path& file) {
  // Enough for a note. The size is only asked for beyond it, and is a guess: the file may grow or shrink.
  constexpr std::size_t kFirstPart = 8 * 1024;
  OpenedFile opened(file);
  std::string bytes(kFirstPart, '\0');
  std::size_t length = opened.Read(bytes.data(), bytes.size());
  while (length == bytes.size()) {
    bytes.resize(std::max(SizeOf(file) + 1, 2 * length));
    length += opened.Read(bytes.data() + length, bytes.size() - length);
  }
  bytes.resize(length);
  return bytes;
}

std::string_view LineReader::Next() {
  const std::size_t feed = rest_.find('\n');
  const std::string_view line = rest_.substr(0, feed);
  if (feed == std::string_view::npos) {
    rest_ = {};
    return line;
  }
  rest_.remove_prefix(feed + 1);
  return WithoutReturn(line);
}

std::string_view FileLineReader::Next() {
  std::size_t searched = at_;
  std::size_t feed = part_.find('\n', searched);
  while (feed == std::string::npos) {
    searched = part_.size() - at_;
    if (!ReadMore()) break;
    feed = part_.find('\n', searched);
  }
  const std::string_view rest = std::string_view(part_).substr(at_);
  if (feed == std::string::npos) {
    at_ = part_.size();
    return rest;
  }
  const std::string_view line = rest.substr(0, feed - at_);
  at_ = feed + 1;
  return WithoutReturn(line);
}

/// Reads the next part behind what has not been given out.
bool FileLineReader::ReadMore() {
  constexpr std::size_t kPart = 64 * 1024;
  part_.erase(0, at_);
  at_ = 0;
  const std::size_t kept = part_.size();
  part_.resize(kept + kPart);
  part_.resize(kept + file_.Read(part_.data() + kept, kPart));
  return part_.size() > kept;
}

}  // namespace tavrel
