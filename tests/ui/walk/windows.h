#pragma once

#include <array>
#include <ostream>

namespace tavrel::test {

/// One of the program's windows and the way to it.
struct Place {
  const char* Name;    ///< what a test of it is called
  const char* Window;  ///< the window's object name
  const char* MenuItem = nullptr;
  const char* PlannerButton = nullptr;
  int Tab = 0;
  bool NeedsDocument = true;
};

/// Every window of the program. The main window has two states; the manager two tabs.
extern const std::array<Place, 28> kWindows;

std::ostream& operator<<(std::ostream& out, const Place& place);

}  // namespace tavrel::test
