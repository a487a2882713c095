#pragma once

#include <cstddef>

namespace tavrel {

inline constexpr std::size_t kShownBytes = 4096;  ///< an iPod shows so much of a note, markup included
inline constexpr int kMostNotes = 1000;           ///< an iPod shows so many notes in all

}  // namespace tavrel
