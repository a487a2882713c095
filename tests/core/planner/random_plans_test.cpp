#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/editing/random_pages.h"
#include "core/planner/literal_plan.h"
#include "core/planner/plan_file.h"
#include "core/planner/plan_pages.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

// Random plans, written, read again and inserted, against the planner's rules run a step at a time.

namespace tavrel::test {
namespace {

using namespace std::string_literals;

constexpr int kPlans = 1000;
constexpr int kPlanFiles = 50;
constexpr int kInsertions = 1500;

std::string AnyPieces(std::mt19937& random, const std::vector<std::string>& pieces, int most) {
  std::string text;
  for (int left = Any(random, 0, most); left > 0; --left) text += AnyOf(random, pieces);
  return text;
}

/// Texts that hold anything but line breaks.
std::string AnyLine(std::mt19937& random) {
  static const std::vector<std::string> pieces = {"North", " ",    "  ", ",",      "\"", "\r",
                                                  "\t",    "<p>",  "<",  "1 ",     "-",  "\0"s,
                                                  "\xE9",  "\xFF", "a",  "\"a,b\""};
  return AnyPieces(random, pieces, 5);
}

/// Texts of cells, some too long for a note. None holds the mark that stands for a line break in files.
std::string AnyCellText(std::mt19937& random) {
  static const std::vector<std::string> pieces = {
      " ",       "  ",  "\r\n",    "\r\n",   "\r",        "Hi",    "there",
      ",",       "\"",  "</text>", "<link>", "<note>",    "<",     "p>x",
      "<P>",     "\t",  "\0"s,     "\x1A",   "\xE9t\xE9", "\xFF",  " 1 ",
      "\"a,b\"", "0,0", "&",       "<p",     "/>",        "word ", "twenty-five characters...."};
  std::string text;
  if (Any(random, 0, 3) != 0) text = AnyPieces(random, pieces, 9);
  if (Any(random, 0, 7) == 0) text.insert(0, static_cast<std::size_t>(Any(random, 46, 51)), 'x');
  while (text.find("<p>") != std::string::npos) text.erase(text.find("<p>"), 1);
  return text;
}

PlanCell AnyCell(std::mt19937& random) {
  const auto tick = [&random] { return AnyOf<Tick>(random, {kTickOff, kTickOn, kTickGreyed}); };
  return {AnyCellText(random), tick(), tick(), tick(), tick()};
}

Plan AnyPlan(std::mt19937& random) {
  Plan plan;
  for (std::string* line : {&plan.TopLeft, &plan.North, &plan.South, &plan.East, &plan.West})
    *line = AnyLine(random);
  for (PlanCell& cell : plan.Cells) cell = AnyCell(random);
  return plan;
}

void ExpectSamePlan(const Plan& actual, const Plan& expected) {
  EXPECT_TRUE(ControlsOf(actual) == ControlsOf(expected)) << LiteralPlanFile(ControlsOf(expected));
}

TEST(RandomPlans, AreReadAsTheyWereWritten) {
  std::mt19937 random(42);
  for (int round = 0; round < kPlans && !HasFailure(); ++round) {
    const Plan plan = AnyPlan(random);
    const std::string bytes = PlanText(plan);
    EXPECT_EQ(bytes, LiteralPlanFile(ControlsOf(plan)));
    const Plan read = ReadPlanText(bytes);
    ExpectSamePlan(read, plan);
    EXPECT_EQ(PlanText(read), bytes);
  }
}

TEST(RandomPlans, AreReadFromTheirFilesAsTheyWereWritten) {
  std::mt19937 random(43);
  const TemporaryFolder folder;
  FakePlatform system;
  const auto global = std::make_unique<Global>();
  global->ProgramFolder = folder.Path();
  global->PlanPath = "random.pln";
  for (int round = 0; round < kPlanFiles && !HasFailure(); ++round) {
    const Plan plan = AnyPlan(random);
    SavePlan(plan, *global, system);
    EXPECT_EQ(folder.Read("random.pln"), LiteralPlanFile(ControlsOf(plan)));
    ExpectSamePlan(LoadPlan(*global), plan);
  }
}

/// A first page as typed and its number.
std::pair<std::string, double> AnyTop(std::mt19937& random) {
  static const std::vector<std::pair<std::string, double>> odd_ones = {
      {"1", 1},         {"  7 ", 7},      {"007", 7},       {"2.6", 2.6},   {"12x", 12},
      {"950", 950},     {"949.6", 949.6}, {"950.5", 950.5}, {"1.5", 1.5},   {"2.5", 2.5},
      {"9e2", 900},     {"+5", 5},        {".6", 0.6},      {"6", 6},       {"5", 5},
      {"950.6", 950.6}, {"951", 951},     {"0", 0},         {"0.5", 0.5},   {"-7", -7},
      {"", 0},          {"x", 0},         {"70000", 70000}, {"-0.4", -0.4}, {"-1.5", -1.5}};
  if (Any(random, 0, 2) == 0) return AnyOf(random, odd_ones);
  const int top = Any(random, 0, 1) == 0 ? Any(random, 1, 12) : Any(random, 1, 950);
  return {std::to_string(top), top};
}

/// The text of a link, seldom one that the planner refuses.
std::string AnyLinkText(std::mt19937& random) {
  if (Any(random, 0, 39) == 0) return std::string(static_cast<std::size_t>(Any(random, 0, 3)), ' ');
  return AnyOf<std::string>(random, {"North", "  Back  ", " a  b", "\t", "\xE9 ", "<", "</linktext>"});
}

TEST(RandomPlans, BecomePagesStepByStep) {
  std::mt19937 random(7);
  const auto global = std::make_unique<Global>();
  for (int page = 0; page <= 1000; ++page) global->Page(page) = "page " + std::to_string(page);
  const auto expected = std::make_unique<std::array<std::string, 1001>>();
  std::copy(global->Pages.begin(), global->Pages.end(), expected->begin());
  int refusals = 0;
  for (int round = 0; round < kInsertions && !HasFailure(); ++round) {
    Plan plan = AnyPlan(random);
    for (std::string* text : {&plan.North, &plan.South, &plan.East, &plan.West}) *text = AnyLinkText(random);
    const auto [typed, number] = AnyTop(random);
    plan.TopLeft = typed;
    const bool is_refused = LiteralInsertRefused(ControlsOf(plan), number, *expected);
    EXPECT_EQ(CanInsertPlan(plan), !is_refused) << "[" << typed << "]";
    if (CanInsertPlan(plan)) InsertPlan(plan, *global);
    for (int page = 0; page <= 1000; ++page)
      EXPECT_EQ(global->Page(page), expected->at(static_cast<std::size_t>(page))) << page;
    refusals += is_refused ? 1 : 0;
  }
  EXPECT_GT(refusals, 100);
  EXPECT_LT(refusals, kInsertions / 2);
}

}  // namespace
}  // namespace tavrel::test
