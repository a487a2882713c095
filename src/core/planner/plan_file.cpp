#include "core/planner/plan_file.h"

#include <cmath>
#include <optional>
#include <system_error>

#include "core/text/field_reader.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/plain_ascii.h"
#include "core/text/run_time_error.h"
#include "core/text/stored_lines.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

std::filesystem::path PlanFile(const Global& global) {
  return global.ProgramFolder / global.PlanPath;
}

[[noreturn]] void ThrowDamaged(const std::string& fault) {
  throw RunTimeError("The plan is damaged: " + fault + ".\nRepair it in a text editor or delete it.");
}

void CheckNotAtEnd(const FieldReader& fields) {
  if (fields.AtEnd()) ThrowDamaged("it ends too early");
}

std::string ReadLine(FieldReader& fields) {
  CheckNotAtEnd(fields);
  return std::string(fields.NextLine());
}

Tick ReadTick(FieldReader& fields) {
  CheckNotAtEnd(fields);
  const std::string_view field = fields.NextField();
  const double value = std::nearbyint(NumberIn(field).value_or(-1));
  if (value != kTickOff && value != kTickOn && value != kTickGreyed) {
    ThrowDamaged("it has " + Quoted(field) + " where a tick, 0 or 1, belongs");
  }
  return static_cast<Tick>(value);
}

PlanCell ReadCell(FieldReader& fields) {
  PlanCell cell;
  cell.Text = WithLineBreaks(ReadLine(fields));
  for (Tick* tick : {&cell.West, &cell.East, &cell.South, &cell.North}) *tick = ReadTick(fields);
  return cell;
}

}  // namespace

std::filesystem::path PlanName(const Global& global) {
  return WithoutExtension(global.PlanPath);
}

Plan LoadPlan(const Global& global) {
  const std::string text = ReadWholeFile(PlanFile(global));
  try {
    return ReadPlanText(text);
  } catch (const RunTimeError& error) {
    throw RunTimeError(PathText(PlanFile(global)) + "\n" + error.what());
  }
}

void SavePlan(const Plan& plan, const Global& global, Platform& platform) {
  platform.WriteWholeFile(PlanFile(global), PlanText(plan));
}

void DeletePlanFile(const Global& global) {
  if (global.PlanPath.empty()) return;
  std::error_code error;
  if (std::filesystem::is_directory(PlanFile(global), error)) return;
  std::filesystem::remove(PlanFile(global), error);
  if (error) throw FileError(PlanFile(global), "could not be deleted", error);
}

std::string PlanText(const Plan& plan) {
  std::string text;
  const auto add_line = [&text](std::string_view line) { text.append(line).append(kLineEnd); };
  for (const std::string& line : {plan.TopLeft, plan.North, plan.South, plan.East, plan.West}) add_line(line);
  for (const PlanCell& cell : plan.Cells) {
    add_line(OnOneLine(cell.Text));
    for (const Tick tick : {cell.West, cell.East, cell.South, cell.North}) add_line(PrintForm(tick));
  }
  return text;
}

Plan ReadPlanText(std::string_view text) {
  FieldReader fields(text);
  Plan plan;
  for (std::string* line : {&plan.TopLeft, &plan.North, &plan.South, &plan.East, &plan.West}) {
    *line = ReadLine(fields);
  }
  for (PlanCell& cell : plan.Cells) cell = ReadCell(fields);
  return plan;
}

}  // namespace tavrel
