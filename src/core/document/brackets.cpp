#include "core/document/brackets.h"

#include <algorithm>

#include "core/text/characters.h"

namespace tavrel {
namespace {

InlineLink LinkAt(std::string_view text, std::size_t opening, std::size_t next) {
  const bool is_closed = next != kNotFound && text[next] == '>';
  const std::size_t end = is_closed ? next + 1 : opening + 1;
  const std::size_t words = is_closed ? next - opening - 1 : 0;
  return {opening, end - opening, text.substr(opening + 1, words), is_closed};
}

}  // namespace

BracketWalker::BracketWalker(std::string_view text)
    : text_(text),
      opening_(text.find('<')),
      closing_(text.find('>')),
      are_links_(opening_ < closing_ && closing_ != kNotFound) {}

std::size_t BracketWalker::Next() {
  const std::size_t at = std::min(opening_, closing_);
  if (at == kNotFound) return at;
  (at == opening_ ? opening_ : closing_) = text_.find(text_[at], at + 1);
  return at;
}

Brackets BracketsOf(std::string_view text) {
  BracketWalker walker(text);
  Brackets brackets;
  brackets.AreLinks = walker.AreLinks();
  bool is_open = false;
  std::size_t at = walker.Next();
  brackets.First = at;
  while (at != kNotFound) {
    const std::size_t next = walker.Next();
    if (text[at] == '<') {
      brackets.Links.push_back(LinkAt(text, at, next));
    } else if (!is_open) {
      brackets.LoneClosings.push_back(at);
    }
    is_open = text[at] == '<';
    at = next;
  }
  return brackets;
}

}  // namespace tavrel
