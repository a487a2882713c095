#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/document/global.h"
#include "core/planner/plan.h"

namespace tavrel {

/// The labels of the cells: page numbers of at least three digits, counted from `first`.
std::array<std::string, kPlanCells> PlanLabels(std::int64_t first);

/// The number of the plan's first page, rounded to a whole number.
int PlanTop(const Plan& plan);

/// Whether the plan's pages lie in the document, which is so from page 1 to 950, and its links have texts.
bool CanInsertPlan(const Plan& plan);

/// Overwrites 25 pages from PlanTop() with the plan's; a cell without a text empties its page. To be called
/// only if CanInsertPlan().
void InsertPlan(const Plan& plan, Global& global);

}  // namespace tavrel
