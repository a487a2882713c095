#include "core/text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale>
#include <sstream>

#include "core/text/characters.h"
#include "core/text/file_names.h"

namespace tavrel {
namespace {

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

bool IsSignAt(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-');
}

/// The length of the longest unsigned number at the start of the text; 0 if there is none.
std::size_t NumberLength(std::string_view text) {
  const std::size_t whole = SkipDigits(text, 0);
  std::size_t end = whole;
  if (end < text.size() && text[end] == '.') end = SkipDigits(text, end + 1);
  const bool only_point = end == 1 && text[0] == '.';
  if (end == 0 || only_point) return 0;

  if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
    const std::size_t digits = end + (IsSignAt(text, end + 1) ? 2 : 1);
    const std::size_t exponent_end = SkipDigits(text, digits);
    if (exponent_end > digits) end = exponent_end;
  }
  return end;
}

/// A number too large or too small to hold: the largest one, or one near 0.
double ExtremeValue(std::string_view number) {
  std::istringstream stream{std::string(number)};
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  return value;
}

/// Nearly all numbers are the pages of links: a few digits and nothing else. -1 if this is another one.
std::int32_t FewDigits(std::string_view text) {
  constexpr std::size_t kMost = 9;
  if (text.empty() || text.size() > kMost) return -1;
  std::int32_t value = 0;
  for (const char character : text) {
    if (!IsDigit(character)) return -1;
    value = value * 10 + (character - '0');
  }
  return value;
}

double ParseUnsigned(std::string_view number) {
  double value = 0;
  const auto parsed = std::from_chars(number.data(), number.data() + number.size(), value);
  return parsed.ec == std::errc::result_out_of_range ? ExtremeValue(number) : value;
}

}  // namespace

std::string FormatPage(std::int64_t number) {
  constexpr std::size_t kLeastDigits = 3;
  std::string digits = std::to_string(std::abs(number));
  if (digits.size() < kLeastDigits) digits.insert(0, kLeastDigits - digits.size(), '0');
  return (number < 0 ? "-" : "") + digits;
}

std::string MusicLinkName(int number) {
  return "M" + std::to_string(number);
}

double Value(std::string_view text) {
  if (const std::int32_t value = FewDigits(text); value >= 0) return value;
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const std::size_t sign = IsSignAt(text, 0) ? 1 : 0;
  const double value = ParseUnsigned(text.substr(sign, NumberLength(text.substr(sign))));
  return text.starts_with('-') ? -value : value;
}

std::optional<double> NumberIn(std::string_view text) {
  const std::string_view number = TrimBlanks(text);
  const std::string_view digits = number.substr(IsSignAt(number, 0) ? 1 : 0);
  if (digits.empty() || NumberLength(digits) != digits.size()) return std::nullopt;
  return Value(number);
}

std::int32_t WholeValue(std::string_view text) {
  if (const std::int32_t value = FewDigits(text); value >= 0) return value;
  using Limits = std::numeric_limits<std::int32_t>;
  const double rounded = std::nearbyint(Value(text));
  return static_cast<std::int32_t>(
      std::clamp(rounded, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

std::int32_t DecimalNumber(std::string_view text) {
  const std::string_view digits = TrimBlanks(text);
  if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return 0;
  std::int32_t number = 0;
  const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return parsed.ec == std::errc::result_out_of_range ? std::numeric_limits<std::int32_t>::max() : number;
}

std::int16_t LeadingDigits(std::string_view text) {
  std::uint16_t value = 0;
  for (std::size_t i = 0; i < text.size() && IsDigit(text[i]); ++i) {
    value = static_cast<std::uint16_t>(value * 10U + static_cast<unsigned>(text[i] - '0'));
  }
  return static_cast<std::int16_t>(value);
}

std::string SignedText(int number) {
  return (number < 0 ? "" : " ") + std::to_string(number);
}

std::string PrintForm(int number) {
  return SignedText(number) + " ";
}

}  // namespace tavrel
