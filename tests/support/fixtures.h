#pragma once

#include <string_view>

namespace tavrel::test {

// Document files in the order in which the editor writes, so saving them unedited gives the same bytes.

/// Guide.dat: pages 1, 2, 5 and 999 with links between them.
extern const std::string_view kGuide;
/// Songs.dat: music links 1 and 3, an inline link and a music pair.
extern const std::string_view kSongs;
/// Trio.dat: three pages without links.
extern const std::string_view kTrio;
/// Fruit.dat: texts to search in, on pages 1, 4, 5, 6 and 8.
extern const std::string_view kFruit;

}  // namespace tavrel::test
