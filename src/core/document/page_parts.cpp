#include "core/document/page_parts.h"

#include <algorithm>

#include "core/document/markup.h"
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

std::size_t PageParts::PublishedLinks() const {
  const auto incomplete = [](const Link& link) { return link.Text.empty() || link.Target.empty(); };
  return static_cast<std::size_t>(std::find_if(Links.begin(), Links.end(), incomplete) - Links.begin());
}

PageParts PartsOf(std::string_view record) {
  PageParts parts;
  parts.Title = TagContent(record, "<title>", 1);
  parts.Note = TagContent(record, "<note>", 1);
  parts.Text = TagContent(record, "<text>", 1);
  TagWalker music(record, "<music>");
  parts.MusicText = music.NextContent();
  parts.MusicLink = music.NextContent();
  TagWalker texts(record, "<linktext>");
  TagWalker targets(record, "<linkto>");
  while (true) {
    const bool has_text = texts.Next();
    const bool has_target = targets.Next();
    if (!has_text && !has_target) break;
    parts.Links.push_back({has_text ? texts.Content() : "", has_target ? targets.Content() : ""});
  }
  return parts;
}

Brackets BracketsOf(std::string_view text) {
  Brackets brackets;
  const std::size_t first = text.find_first_of("<>");
  brackets.AreLinks = first != kNotFound && text[first] == '<' && text.find('>') != kNotFound;
  bool is_open = false;
  for (std::size_t at = first; at != kNotFound;) {
    const std::size_t next = text.find_first_of("<>", at + 1);
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
