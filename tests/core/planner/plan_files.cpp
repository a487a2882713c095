#include "core/planner/plan_files.h"

#include <gtest/gtest.h>

namespace tavrel::test {
namespace {

const std::string kEmptyCell = "\r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n";

}  // namespace

const std::string kPlanHeader = "002\r\nNorth\r\nSouth\r\nEast\r\nWest\r\n";

std::string EmptyCells(int count) {
  std::string cells;
  for (int left = count; left > 0; --left) cells += kEmptyCell;
  return cells;
}

std::string FileWith(const std::string& first_cell) {
  return kPlanHeader + first_cell + EmptyCells(24);
}

const std::string kHiThere = FileWith("Hi<p>there\r\n 1 \r\n 0 \r\n 0 \r\n 1 \r\n");

Plan EmptyPlan(const std::string& top_left) {
  Plan plan;
  plan.TopLeft = top_left;
  plan.North = "North";
  plan.South = "South";
  plan.East = "East";
  plan.West = "West";
  return plan;
}

Plan HiThere() {
  Plan plan = EmptyPlan();
  plan.Cells[0] = {"Hi\r\nthere", kTickOn, kTickOff, kTickOff, kTickOn};
  return plan;
}

void ExpectCell(const PlanCell& cell, const std::string& text, const std::vector<Tick>& ticks) {
  EXPECT_EQ(cell.Text, text);
  EXPECT_EQ((std::vector<Tick>{cell.West, cell.East, cell.South, cell.North}), ticks) << text;
}

void ExpectHiThere(const Plan& plan) {
  EXPECT_EQ((std::vector<std::string>{plan.TopLeft, plan.North, plan.South, plan.East, plan.West}),
            (std::vector<std::string>{"002", "North", "South", "East", "West"}));
  ExpectCell(plan.Cells[0], "Hi\r\nthere", {1, 0, 0, 1});
  for (std::size_t cell = 1; cell < 25; ++cell) ExpectCell(plan.Cells.at(cell), "", {0, 0, 0, 0});
}

}  // namespace tavrel::test
