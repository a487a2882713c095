#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace tavrel {

inline constexpr std::size_t kPlanColumns = 5;
inline constexpr std::size_t kPlanCells = kPlanColumns * kPlanColumns;

/// The value of a tick box: 0 is off, 1 is on, 2 is greyed and counts as off.
using Tick = int;
inline constexpr Tick kTickOff = 0;
inline constexpr Tick kTickOn = 1;
inline constexpr Tick kTickGreyed = 2;

/// One page of a plan and its links to the pages around it.
struct PlanCell {
  std::string Text;
  Tick West = kTickOff;   ///< to the page before
  Tick East = kTickOff;   ///< to the page after
  Tick South = kTickOff;  ///< to the page five further on
  Tick North = kTickOff;  ///< to the page five before
};

/// 25 consecutive pages, laid out in rows of five.
struct Plan {
  std::string TopLeft;  ///< the number of the first cell's page, as typed
  std::string North;    ///< the texts of the links
  std::string South;
  std::string East;
  std::string West;
  std::array<PlanCell, kPlanCells> Cells;
};

}  // namespace tavrel
