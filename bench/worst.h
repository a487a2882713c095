#pragma once

#include <string>
#include <utility>

#include "ratios.h"

namespace tavrel::bench {

/// Of several cases of one work the one that is nearest to the limit, with its name as the note.
class Worst {
 public:
  void Add(Row row, const std::string& name) {
    if (row.Ratio < row_.Ratio) return;
    row_ = std::move(row);
    row_.Note = name;
  }

  const Row& Get() const { return row_; }

 private:
  Row row_;
};

}  // namespace tavrel::bench
