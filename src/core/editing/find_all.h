#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/field_part.h"
#include "core/document/global.h"
#include "core/editing/text_search.h"
#include "core/text/code_page.h"

namespace tavrel {

/// Where a text was found. There may be millions, so it is small.
struct Hit {
  std::uint32_t Position;  ///< in the field, in bytes from 0
  std::uint16_t Page;
  std::uint8_t Link;  ///< of a link's fields: its row, from 1
  Field Where;

  FieldPart Part(std::size_t length) const { return {Page, Where, Link, Position, length}; }
};

/// Searches every field that the editor shows of the pages 1 to 999, one page after the other. Matches do not
/// overlap.
class FindAll {
 public:
  /// `wanted` must not be empty. The document must outlive the search.
  FindAll(const Global& document, std::string_view wanted, bool match_case, const CodePage& code_page);

  bool IsDone() const { return page_ > kLastPage; }
  /// Searches the next page and adds what is found to the hits.
  void SearchPage(std::vector<Hit>& hits);

 private:
  void SearchField(std::string_view content, Field where, int link, std::vector<Hit>& hits) const;

  const Global& document_;
  TextSearch search_;
  std::size_t length_;
  int page_ = 1;
};

/// What a field of a page holds, as it is searched.
std::string_view FieldContent(const Global& document, const FieldPart& part);
/// The same of a page's record.
std::string_view FieldContent(std::string_view record, const FieldPart& part);

/// A hit with the words around it, on one line.
struct HitContext {
  std::string Before;
  std::string Found;
  std::string After;
};

/// At most `room` bytes on either side. A side that is cut begins or ends with "...".
HitContext ContextOf(std::string_view content, const FieldPart& part, std::size_t room);

}  // namespace tavrel
