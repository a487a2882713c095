#include <optional>
#include <string>
#include <vector>

#include "core/planner/plan_file.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "literal_plan.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// Nothing if the file is damaged.
std::optional<std::vector<std::string>> LiterallyRead(const std::string& file) {
  try {
    return LiteralReadPlan(file);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

void ExpectSameValues(const Plan& plan, const std::vector<std::string>& expected, std::string_view what) {
  const std::vector<std::string> values = ValuesOf(plan);
  Expect(values.size() == expected.size(), "a plan has 130 values");
  for (std::size_t i = 0; i < values.size(); ++i) ExpectEqual(values[i], expected[i], what);
}

void Try(const std::string& file) {
  const std::optional<std::vector<std::string>> expected = LiterallyRead(file);
  Plan plan;
  try {
    plan = ReadPlanText(file);
  } catch (const RunTimeError&) {
    Expect(!expected.has_value(), "only a damaged plan is refused");
    return;
  }
  Expect(expected.has_value(), "a damaged plan is refused");
  ExpectSameValues(plan, *expected, "the plan is read");

  const std::string text = PlanText(plan);
  const Plan again = ReadPlanText(text);
  ExpectSameValues(again, *expected, "the same plan is read again");
  ExpectEqual(PlanText(again), text, "the same bytes are written again");
}

/// Lines that are texts and ticks alike, as many as a whole plan has.
std::string PlainLines() {
  std::string lines;
  for (int line = 1; line <= 130; ++line) lines += " 1 \r\n";
  return lines;
}

}  // namespace

/// Any bytes are a plan or a damaged one; with lines that suit every place after them they are damaged less
/// often. What was read is written and read again without a change.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string kPlainLines = PlainLines();
  const std::string file(Input(data, size).Rest());
  Try(file);
  Try(file + kPlainLines);
  return 0;
}
