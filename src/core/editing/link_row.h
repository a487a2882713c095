#pragma once

#include <string_view>

namespace tavrel {

/// The row in which a page's link stands by now, whose row it was (1 to 49) before the page's record changed:
/// links may have come or gone in front of it. A link that is not there any more keeps its row.
int LinkRowNow(std::string_view before, std::string_view now, int row);

}  // namespace tavrel
