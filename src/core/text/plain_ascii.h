#pragma once

#include <string>
#include <string_view>
#include <type_traits>

namespace tavrel {

/// Bytes for a message when their encoding cannot be trusted: everything beyond plain ASCII becomes "?".
template <typename Character>
std::string PlainAscii(const std::basic_string<Character>& text) {
  constexpr std::make_unsigned_t<Character> kLast = 0x7F;
  std::string plain;
  for (const auto c : text) {
    plain += static_cast<std::make_unsigned_t<Character>>(c) <= kLast ? static_cast<char>(c) : '?';
  }
  return plain;
}

/// The beginning of a text in double quotes, for a message.
inline std::string Quoted(std::string_view text) {
  constexpr std::size_t kMost = 40;
  const bool cut = text.size() > kMost;
  return "\"" + PlainAscii(std::string(text.substr(0, kMost))) + (cut ? "...\"" : "\"");
}

}  // namespace tavrel
