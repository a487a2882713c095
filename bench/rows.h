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

/// What the preview takes to follow the typing.
std::vector<Row> PreviewRows();

/// Checking the full-size document, at once and while it is being written.
std::vector<Row> CheckRows();

/// Finding in all pages of the full-size document.
std::vector<Row> FindAllRows();

/// The companion for the command line, as a process.
std::vector<Row> NotesRows();

/// Starting the program, and its memory with the full-size document open.
std::vector<Row> ProcessRows();

}  // namespace tavrel::bench
