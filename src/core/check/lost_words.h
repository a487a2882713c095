#pragma once

#include <string_view>
#include <vector>

#include "core/document/field_part.h"
#include "core/document/page_parts.h"

namespace tavrel {

/// Words of a page's record that belong to no field, as when somebody types a field's own closing tag into
/// it: neither the editor nor publishing reads them.
struct LostWords {
  FieldPart Behind;          ///< the end of the field that they follow; the page if they follow none
  std::string_view Content;  ///< of that field, in the record
  std::string_view Tag;      ///< that ends the field, such as "</title>"; empty if nothing does
};

/// Whether a record holds its parts as the editor writes them, one behind the other, and nothing else. Then
/// it has no lost words.
bool IsAsWritten(std::string_view record, const PageParts& parts);

/// In their order. The page's number in them is 0. The tags outlive everything.
std::vector<LostWords> FindLostWords(std::string_view record);

}  // namespace tavrel
