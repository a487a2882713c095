#pragma once

#include <string>
#include <vector>

#include "core/editing/find_all.h"

namespace tavrel::test {

inline const char* FieldName(Field field) {
  switch (field) {
    case Field::Title:
      return "title";
    case Field::Note:
      return "note";
    case Field::Text:
      return "text";
    case Field::LinkText:
      return "link text";
    case Field::LinkTarget:
      return "link target";
    case Field::MusicText:
      return "music text";
    case Field::MusicLink:
      return "music link";
    case Field::Project:
    case Field::Page:
      break;
  }
  return "no field";
}

/// "2 link text 1 @4": page, field, row if it is a link's, place.
inline std::string Described(const FieldPart& part) {
  return std::to_string(part.Page) + " " + FieldName(part.Where) +
         (part.Link > 0 ? " " + std::to_string(part.Link) : "") + " @" + std::to_string(part.Position);
}

inline std::vector<std::string> DescribedHits(const Global& document, const std::string& wanted,
                                              bool match_case) {
  std::vector<Hit> hits;
  FindAll search(document, wanted, match_case, CodePage::Windows1252());
  while (!search.IsDone()) search.SearchPage(hits);
  std::vector<std::string> described;
  for (const Hit& hit : hits) described.push_back(Described(hit.Part(wanted.size())));
  return described;
}

using HitList = std::vector<std::string>;

}  // namespace tavrel::test
