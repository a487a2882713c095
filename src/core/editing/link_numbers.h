#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/document/global.h"

namespace tavrel {

/// The new number of a link to page `number`, 1 or higher; nothing if the link stays as it is.
using LinkRule = std::function<std::optional<int>(int number)>;

/// Gives the links of one page record new numbers. Each link is asked for once, with the number it had
/// before; links to music and to no page are not asked for. The walk ends at the first link without a target:
/// the links behind it keep their numbers.
void RenumberLinks(std::string& record, const LinkRule& rule);

/// The same for pages 1 to 999.
void RenumberLinks(Global& global, const LinkRule& rule);

}  // namespace tavrel
