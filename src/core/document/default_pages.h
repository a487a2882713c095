#pragma once

#include "core/document/global.h"

namespace tavrel {

/// Which template pages a new document gets.
struct DefaultPages {
  bool Title = false;
  bool Contents = false;
  bool About = false;
};

/// Fills an empty document with the chosen template pages, numbered from 1 in the order Title, Contents,
/// About.
void MakeDefaultPages(Global& global, const DefaultPages& chosen);

}  // namespace tavrel
