#include "core/text/stored_lines.h"

#include "core/text/text_files.h"

namespace tavrel {
namespace {

constexpr std::string_view kStoredLineBreak = "<p>";

}  // namespace

std::string OnOneLine(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t feed = text.find('\n', at);
    line.append(text.substr(at, feed - at));
    if (feed == std::string_view::npos) break;
    if (feed > at && line.ends_with('\r')) line.pop_back();
    line.append(kStoredLineBreak);
    at = feed + 1;
  }
  return line;
}

std::string WithLineBreaks(std::string_view line) {
  std::string text;
  text.reserve(line.size());
  std::size_t copied = 0;
  for (std::size_t at = line.find(kStoredLineBreak); at != std::string_view::npos;
       at = line.find(kStoredLineBreak, copied)) {
    text.append(line.substr(copied, at - copied)).append(kLineEnd);
    copied = at + kStoredLineBreak.size();
  }
  return text.append(line.substr(copied));
}

}  // namespace tavrel
