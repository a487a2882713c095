#pragma once

#include <span>
#include <string_view>

#include "core/document/field_part.h"

namespace tavrel {

/// The tags that a page's record cannot hold in a field: the closing one of its own, at which it would end,
/// and those that would be taken for another field's.
std::span<const std::string_view> SpoilingTags(Field field);

}  // namespace tavrel
