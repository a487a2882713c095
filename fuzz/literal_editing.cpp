#include "literal_editing.h"

#include "literal_rules.h"

namespace tavrel::fuzz {
namespace {

/// The number that the digits at the start of a text give, in 16 bits with a sign.
int Number(const std::string& text) {
  int number = 0;
  for (std::size_t at = 0; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
    number = (number * 10 + (text[at] - '0')) % 65536;
  }
  return number < 32768 ? number : number - 65536;
}

std::string ThreeDigits(int number) {
  std::string digits = std::to_string(number);
  while (digits.size() < 3) digits = "0" + digits;
  return digits;
}

void RenumberAll(Global& global, const LiteralRule& rule) {
  for (int page = 1; page <= 999; ++page) {
    if (!global.Page(page).empty()) LiteralRenumber(global.Page(page).Edit(), rule);
  }
}

/// The small form of a character of Windows-1252.
char Small(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 'A' && byte <= 'Z') return static_cast<char>(byte + 32);
  if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return static_cast<char>(byte + 32);
  if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 16);
  return byte == 0x9F ? '\xFF' : character;
}

}  // namespace

void LiteralRenumber(std::string& record, const LiteralRule& rule) {
  for (int link = 1;; ++link) {
    const std::string target = LiteralGetTag(record, "<linkto>", link);
    if (target.empty()) return;
    const int number = Number(target);
    const std::optional<int> changed = number >= 1 ? rule(number) : std::nullopt;
    if (changed) LiteralSetTag(record, ThreeDigits(*changed), "<linkto>", link);
  }
}

LiteralRule AfterInsertAt(int page) {
  return [page](int number) { return number >= page ? std::optional(number + 1) : std::nullopt; };
}

LiteralRule AfterCutAt(int page) {
  return [page](int number) { return number >= page ? std::optional(number - 1) : std::nullopt; };
}

LiteralRule AfterSwapOf(int page, int other) {
  return [page, other](int number) -> std::optional<int> {
    if (number == page) return other;
    if (number == other) return page;
    return std::nullopt;
  };
}

void LiteralInsert(Global& global, int page) {
  for (int i = 998; i >= page; --i) global.Page(i + 1) = global.Page(i);
  global.Page(page) = "";
  RenumberAll(global, AfterInsertAt(page));
}

void LiteralCut(Global& global, int page) {
  global.PageClipboard = global.Page(page);
  for (int i = page; i <= 998; ++i) global.Page(i) = global.Page(i + 1);
  global.Page(999) = "";
  RenumberAll(global, AfterCutAt(page));
}

std::string LiteralSmall(std::string text) {
  for (char& character : text) character = Small(character);
  return text;
}

std::optional<std::string> LiteralReplace(std::string text, std::string wanted,
                                          const std::string& replacement, bool match_case) {
  std::string searched = text;
  if (!match_case) {
    searched = LiteralSmall(searched);
    wanted = LiteralSmall(wanted);
  }
  std::size_t position = Position(searched, wanted, 1);
  for (int matches = 0; position >= 1 && position <= 32767; ++matches) {
    if (matches == 100 || text.size() > 40'000) return std::nullopt;
    text.replace(position - 1, wanted.size(), replacement);
    searched.replace(position - 1, wanted.size(), replacement);
    position = Position(searched, wanted, position + wanted.size());
  }
  return text;
}

}  // namespace tavrel::fuzz
