#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavrel {

/// A page number as people see it: at least three digits with leading zeros (7 is "007", 1000 is "1000").
std::string FormatPage(std::int64_t number);

/// A music link's name: the letter M and the number without leading zeros ("M7").
std::string MusicLinkName(int number);

/// The number at the start of a text: blanks skipped, then sign, digits, fraction and exponent as far as
/// they go. A text that does not begin with a number counts as 0.
double Value(std::string_view text);

/// Value() rounded to the nearest whole number (a half goes to the even one); numbers beyond 32 bits give
/// the nearest bound.
std::int32_t WholeValue(std::string_view text);

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
