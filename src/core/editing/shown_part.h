#pragma once

#include <cstddef>
#include <string_view>

#include "core/document/field_part.h"

namespace tavrel {

/// Where a part of what a page's record holds in a field stands in what the field shows. That may have other
/// blanks around it, or be written otherwise, as the target "5" is for "005". Where the two have nothing in
/// common it is the part's words wherever they stand first. A part that is not shown has no length; of a
/// target it is all.
FieldPart ShownPart(FieldPart part, std::string_view content, std::string_view shown);

/// A part whose words have gone: near where they were in a text, at the end of a line, where no length
/// selects nothing; from anywhere else it would select up to the end.
FieldPart WithoutWords(FieldPart part, std::size_t end_of_field);

}  // namespace tavrel
