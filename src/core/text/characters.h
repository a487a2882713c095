#pragma once

#include <string_view>

namespace tavrel {

/// What a search in a text gives if there is nothing to be found.
inline constexpr auto kNotFound = std::string_view::npos;

/// Whether a character is one of "0" to "9", whatever the system's language.
constexpr bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

}  // namespace tavrel
