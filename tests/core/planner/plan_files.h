#pragma once

#include <string>
#include <vector>

#include "core/planner/plan.h"

namespace tavrel::test {

/// The planner as it comes up: nothing in its cells.
Plan EmptyPlan(const std::string& top_left = "002");

/// The first lines of an empty plan's file, and as many of its cells.
extern const std::string kPlanHeader;
std::string EmptyCells(int count);

/// A plan file with these lines for cell 0, its text and its ticks; the other cells are empty.
std::string FileWith(const std::string& first_cell);

/// A plan with two lines of text in cell 0 and links to the west and the north, and its file.
Plan HiThere();
extern const std::string kHiThere;
void ExpectHiThere(const Plan& plan);

/// The ticks are those of west, east, south and north.
void ExpectCell(const PlanCell& cell, const std::string& text, const std::vector<Tick>& ticks);

}  // namespace tavrel::test
