#include "core/editing/literal_tags.h"

namespace tavrel::test {
int LiteralPosition(int from, const std::string& text, const std::string& part) {
  if (from > static_cast<int>(text.size())) return 0;
  const std::size_t found = text.find(part, static_cast<std::size_t>(from) - 1);
  return found == std::string::npos ? 0 : static_cast<int>(found) + 1;
}

std::string LiteralCharacters(const std::string& text, int position, int count) {
  if (position > static_cast<int>(text.size())) return "";
  return text.substr(static_cast<std::size_t>(position) - 1, static_cast<std::size_t>(count));
}

std::string LiteralClosing(const std::string& tag) {
  return tag.substr(0, 1) + "/" + tag.substr(1);
}

int LiteralOpening(const std::string& text, const std::string& tag, int occurrence) {
  int pos = LiteralPosition(1, text, tag);
  while (occurrence > 1 && pos > 0) {
    occurrence = occurrence - 1;
    pos = LiteralPosition(pos + 1, text, tag);
  }
  return pos;
}

std::string LiteralGetTag(const std::string& text, const std::string& tag, int occurrence) {
  int pos = LiteralOpening(text, tag, occurrence);
  if (pos < 1) return "";
  pos = pos + static_cast<int>(tag.size());
  const int end = LiteralPosition(pos, text, LiteralClosing(tag));
  if (end < 1 || pos >= end) return "";
  return LiteralCharacters(text, pos, end - pos);
}

void LiteralSetTag(std::string& text, const std::string& value, const std::string& tag, int occurrence) {
  int pos = LiteralOpening(text, tag, occurrence);
  if (pos < 1) return;
  pos = pos + static_cast<int>(tag.size()) - 1;
  const int end = LiteralPosition(pos, text, LiteralClosing(tag));
  if (end < 1) return;
  const int rest = static_cast<int>(text.size()) - end + 1;
  text = LiteralCharacters(text, 1, pos) + value + LiteralCharacters(text, end, rest);
}

int LiteralNumber(const std::string& text) {
  constexpr int kSixteenBits = 65536;
  int number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') break;
    number = (number * 10 + (digit - '0')) % kSixteenBits;
  }
  return number < kSixteenBits / 2 ? number : number - kSixteenBits;
}

std::string LiteralFormat(int number) {
  std::string digits = std::to_string(number);
  while (digits.size() < 3) digits = "0" + digits;
  return digits;
}

}  // namespace tavrel::test
