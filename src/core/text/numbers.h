#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/text/characters.h"

namespace tavrel {

/// A page number as people see it: at least three digits with leading zeros (7 is "007", 1000 is "1000").
std::string FormatPage(std::int64_t number);

/// A music link's name: the letter M and the number without leading zeros ("M7").
std::string MusicLinkName(int number);

/// What Value and WholeValue make of texts that are not just a few digits.
double ValueOfAnyText(std::string_view text);
std::int32_t WholeValueOfAnyText(std::string_view text);

/// Nearly all numbers are the pages of links: a few digits and nothing else. -1 if this is another one.
constexpr std::int32_t FewDigits(std::string_view text) {
  constexpr std::size_t kMost = 9;
  if (text.empty() || text.size() > kMost) return -1;
  std::int32_t value = 0;
  for (const char character : text) {
    if (!IsDigit(character)) return -1;
    value = value * 10 + (character - '0');
  }
  return value;
}

/// The number at the start of a text: blanks skipped, then sign, digits, fraction and exponent as far as
/// they go. A text that does not begin with a number counts as 0.
inline double Value(std::string_view text) {
  const std::int32_t value = FewDigits(text);
  return value >= 0 ? value : ValueOfAnyText(text);
}

/// Value() rounded to the nearest whole number (a half goes to the even one); numbers beyond 32 bits give
/// the nearest bound.
inline std::int32_t WholeValue(std::string_view text) {
  const std::int32_t value = FewDigits(text);
  return value >= 0 ? value : WholeValueOfAnyText(text);
}

/// The number that a text consists of, blanks around it allowed; nothing if it is anything else.
std::optional<double> NumberIn(std::string_view text);

/// The number that a text consists of: digits, with blanks around them allowed. Anything else counts as 0;
/// numbers beyond 32 bits give the largest one.
std::int32_t DecimalNumber(std::string_view text);

/// The leading digits of a text as a number, 0 without any. Only the low 16 bits are kept, as a link target
/// has room for no more.
std::int16_t LeadingDigits(std::string_view text);

/// A number with a blank in place of the plus sign: 12 is " 12".
std::string SignedText(int number);

/// A number as it is printed into files: sign or blank, digits, a trailing blank (" 12 ").
std::string PrintForm(int number);

}  // namespace tavrel
