#include "core/editing/find_all.h"

#include <algorithm>
#include <utility>

#include "core/document/page_parts.h"

namespace tavrel {
namespace {

constexpr std::string_view kCut = "...";

/// Line ends and tabs as blanks.
std::string OnOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
  return line;
}

/// The rows of the editor.
std::vector<PageParts::Link> LinksShown(std::string_view record, PageParts& parts) {
  return parts.AreLinksListed ? std::move(parts.Links) : ListedLinks(record);
}

PageParts::Link LinkShown(std::string_view record, int row) {
  PageParts parts = PartsOf(record);
  const std::vector<PageParts::Link> links = LinksShown(record, parts);
  const auto link = static_cast<std::size_t>(row) - 1;
  return link < links.size() ? links[link] : PageParts::Link();
}

}  // namespace

FindAll::FindAll(const Global& document, std::string_view wanted, bool match_case, const CodePage& code_page)
    : document_(document), search_(wanted, match_case, code_page), length_(wanted.size()) {}

void FindAll::SearchPage(std::vector<Hit>& hits) {
  const std::string& record = document_.Page(page_);
  // Most pages hold none of what is looked for, and are not taken apart.
  if (search_.Find(record, 0) < record.size()) {
    PageParts parts = PartsOf(record);
    const std::vector<PageParts::Link> links = LinksShown(record, parts);
    SearchField(parts.Title, Field::Title, 0, hits);
    SearchField(parts.Note, Field::Note, 0, hits);
    SearchField(parts.Text, Field::Text, 0, hits);
    const int rows = std::min(kLastLink, static_cast<int>(links.size()));
    for (int row = 1; row <= rows; ++row) {
      const PageParts::Link& link = links[static_cast<std::size_t>(row) - 1];
      SearchField(link.Text, Field::LinkText, row, hits);
      SearchField(link.Target, Field::LinkTarget, row, hits);
    }
    SearchField(parts.MusicText, Field::MusicText, 0, hits);
    SearchField(parts.MusicLink, Field::MusicLink, 0, hits);
  }
  ++page_;
}

void FindAll::SearchField(std::string_view content, Field where, int link, std::vector<Hit>& hits) const {
  for (std::size_t at = search_.Find(content, 0); at < content.size();
       at = search_.Find(content, at + length_)) {
    hits.push_back({static_cast<std::uint32_t>(at), static_cast<std::uint16_t>(page_),
                    static_cast<std::uint8_t>(link), where});
  }
}

std::string_view FieldContent(const Global& document, const FieldPart& part) {
  return FieldContent(document.Page(part.Page).Bytes(), part);
}

std::string_view FieldContent(std::string_view record, const FieldPart& part) {
  const PageParts parts = PartsOf(record);
  switch (part.Where) {
    case Field::Title:
      return parts.Title;
    case Field::Note:
      return parts.Note;
    case Field::Text:
      return parts.Text;
    case Field::LinkText:
      return LinkShown(record, part.Link).Text;
    case Field::LinkTarget:
      return LinkShown(record, part.Link).Target;
    case Field::MusicText:
      return parts.MusicText;
    case Field::MusicLink:
      return parts.MusicLink;
    case Field::Project:
    case Field::Page:
      break;
  }
  return "";
}

HitContext ContextOf(std::string_view content, const FieldPart& part, std::size_t room) {
  const std::size_t start = std::min(part.Position, content.size());
  const std::size_t end = std::min(start + part.Length, content.size());
  const std::size_t first = start - std::min(start, room);
  const std::size_t last = end + std::min(content.size() - end, room);
  HitContext context{OnOneLine(content.substr(first, start - first)),
                     OnOneLine(content.substr(start, end - start)),
                     OnOneLine(content.substr(end, last - end))};
  if (first > 0) context.Before.insert(0, kCut);
  if (last < content.size()) context.After.append(kCut);
  return context;
}

}  // namespace tavrel
