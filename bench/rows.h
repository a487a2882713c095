#pragma once

#include <vector>

#include "ratios.h"

namespace tavrel::bench {

/// Loading, saving and publishing the full-size document.
std::vector<Row> FileRows();

/// Storing the page in the editor and showing another.
Row PageRow();

/// Starting the program, and its memory with the full-size document open.
std::vector<Row> ProcessRows();

}  // namespace tavrel::bench
