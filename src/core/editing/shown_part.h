#pragma once

#include <string_view>

#include "core/document/field_part.h"

namespace tavrel {

/// Where a part of what a page's record holds in a field stands in what the field shows. That may have other
/// blanks around it, or be written otherwise, as the target "5" is for "005". Where the two have nothing in
/// common it is the part's words wherever they stand first. A part that is not shown has no length; of a
/// target it is all.
FieldPart ShownPart(FieldPart part, std::string_view content, std::string_view shown);

}  // namespace tavrel
