#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tavrel {

/// Bytes for a message when their encoding cannot be trusted: everything beyond plain ASCII becomes "?".
inline std::string PlainAscii(std::string bytes) {
  std::replace_if(
      bytes.begin(), bytes.end(), [](char c) { return (c & '\x80') != 0; }, '?');
  return bytes;
}

/// The beginning of a text in double quotes, for a message.
inline std::string Quoted(std::string_view text) {
  constexpr std::size_t kMost = 40;
  const bool cut = text.size() > kMost;
  return "\"" + PlainAscii(std::string(text.substr(0, kMost))) + (cut ? "...\"" : "\"");
}

}  // namespace tavrel
