#pragma once

#include <vector>

#include "ratios.h"

namespace tavrel::bench {

/// Loading, saving and publishing the full-size document.
std::vector<Row> FileRows();

/// Storing the page in the editor and showing another; opening the Music Editor.
std::vector<Row> WindowRows();

/// Renumbering the links of the full-size document, searching its texts and replacing in them.
std::vector<Row> EditingRows();

/// Recording steps for Undo.
std::vector<Row> HistoryRows();

/// Importing notes and copying them.
std::vector<Row> IpodRows();

/// Starting the program, and its memory with the full-size document open.
std::vector<Row> ProcessRows();

}  // namespace tavrel::bench
