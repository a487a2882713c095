#pragma once

#include <cstdint>

namespace tavrel::bench {

/// What stands in front of each note's bytes in the file from which the baseline creates notes.
struct RawNote {
  char Name[16];
  std::uint64_t Size;
};

}  // namespace tavrel::bench
