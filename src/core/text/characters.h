#pragma once

#include <cstddef>
#include <string_view>

namespace tavrel {

/// What a search in a text gives if there is nothing to be found.
inline constexpr auto kNotFound = std::string_view::npos;

/// As text.find(character, from), in less time where it stands next to that place, as one tag does to
/// another.
constexpr std::size_t FindNear(std::string_view text, char character, std::size_t from) {
  constexpr std::size_t kNear = 4;
  for (std::size_t far = from + kNear; from < far && from < text.size(); ++from) {
    if (text[from] == character) return from;
  }
  return text.find(character, from);
}

/// Whether a character is one of "0" to "9", whatever the system's language.
constexpr bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

}  // namespace tavrel
