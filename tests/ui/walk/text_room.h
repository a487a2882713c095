#pragma once

#include <QWidget>

#include "ui/walk/walk_test.h"

namespace tavrel::test {

/// The texts of a window that have less room than they need: labels, buttons, tabs, headings, rows, and
/// fields with what they hold. Labels that end in "..." by themselves are left out.
Faults CutTexts(const QWidget& window);

/// The controls that overlap others beside them, or that their own window cuts off.
Faults OverlappingControls(const QWidget& window);

}  // namespace tavrel::test
