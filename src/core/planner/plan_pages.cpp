#include "core/planner/plan_pages.h"

#include <string_view>

#include "core/text/file_names.h"
#include "core/text/numbers.h"

namespace tavrel {
namespace {

constexpr int kFirstTop = 1;
constexpr int kLastTop = 950;
constexpr int kRow = static_cast<int>(kPlanColumns);
constexpr std::size_t kNoteLength = 50;

std::string LinkTo(std::string_view text, int page) {
  return "<linktext>" + std::string(TrimBlanks(text)) + "</linktext><linkto>" + FormatPage(page) +
         "</linkto>";
}

/// A link back by so many pages; there is nothing before page 1.
std::string LinkBack(std::string_view text, int page, int pages) {
  return LinkTo(text, page > pages ? page - pages : 1);
}

std::string CellLinks(const PlanCell& cell, const Plan& plan, int page) {
  std::string links;
  if (cell.West == kTickOn) links += LinkBack(plan.West, page, 1);
  if (cell.North == kTickOn) links += LinkBack(plan.North, page, kRow);
  if (cell.East == kTickOn) links += LinkTo(plan.East, page + 1);
  if (cell.South == kTickOn) links += LinkTo(plan.South, page + kRow);
  return links;
}

/// The page of a cell. Its note may end within a line break, and is not trimmed.
std::string CellPage(const PlanCell& cell, const Plan& plan, int page) {
  const std::string text(TrimBlanks(cell.Text));
  if (text.empty()) return {};
  std::string record = "<text>" + text + "</text><note>" + text.substr(0, kNoteLength) + "</note>";
  const std::string links = CellLinks(cell, plan, page);
  if (!links.empty()) record += "<link>" + links + "</link>";
  return record;
}

}  // namespace

std::array<std::string, kPlanCells> PlanLabels(std::int64_t first) {
  std::array<std::string, kPlanCells> labels;
  for (std::string& label : labels) label = FormatPage(first++);
  return labels;
}

int PlanTop(const Plan& plan) {
  return WholeValue(plan.TopLeft);
}

bool CanInsertPlan(const Plan& plan) {
  const int top = PlanTop(plan);
  if (top < kFirstTop || top > kLastTop) return false;
  for (const std::string& text : {plan.North, plan.South, plan.East, plan.West}) {
    if (TrimBlanks(text).empty()) return false;
  }
  return true;
}

void InsertPlan(const Plan& plan, Global& global) {
  int page = PlanTop(plan);
  for (const PlanCell& cell : plan.Cells) {
    global.Page(page) = CellPage(cell, plan, page);
    ++page;
  }
}

}  // namespace tavrel
