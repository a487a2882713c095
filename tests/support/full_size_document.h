#pragma once

#include "core/document/global.h"

namespace tavrel::test {

/// Fills 999 pages, each with a title, a note, 3,500 characters of text in many lines, 49 links and a music
/// pair, and 99 music links. Every page is in the order in which the editor writes, and all targets exist.
void MakeFullSizeDocument(Global& global);

}  // namespace tavrel::test
