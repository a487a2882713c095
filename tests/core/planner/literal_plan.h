#pragma once

#include <array>
#include <string>

#include "core/planner/plan.h"

/// A planner's rules written down step by step, for comparison with the code that the program runs.
namespace tavrel::test {

/// The planner's controls under the names and in the order in which its rules speak of them.
struct LiteralPlanner {
  std::string Text2;                 ///< the page of cell 0
  std::array<std::string, 4> Text3;  ///< link texts: north, south, east, west
  std::array<std::string, 25> Text1;
  std::array<int, 25> Check1;  ///< west
  std::array<int, 25> Check2;  ///< east
  std::array<int, 25> Check3;  ///< south
  std::array<int, 25> Check4;  ///< north

  bool operator==(const LiteralPlanner&) const = default;
};

LiteralPlanner ControlsOf(const Plan& plan);

/// Writes the cells into the document unless the planner refuses to. `number` is the value of `Text2`.
/// Whether it refused is the result.
bool LiteralInsertRefused(const LiteralPlanner& planner, double number, std::array<std::string, 1001>& pages);

/// The bytes of the plan's file.
std::string LiteralPlanFile(const LiteralPlanner& planner);

}  // namespace tavrel::test
