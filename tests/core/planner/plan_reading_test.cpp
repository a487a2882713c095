#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/planner/plan_file.h"
#include "core/planner/plan_files.h"
#include "core/planner/plan_pages.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::ThrowsMessage;
using LineList = std::vector<std::string>;

/// Cell 0 of a file with these lines in place of its text and ticks.
PlanCell FirstCell(const std::string& lines) {
  return ReadPlanText(FileWith(lines)).Cells[0];
}

std::string WithLineFeedsAlone(std::string text) {
  std::erase(text, '\r');
  return text;
}

TEST(ReadPlanText, ReadsThePlanInTheFile) {
  ExpectHiThere(ReadPlanText(kHiThere));
}

TEST(ReadPlanText, ReadsTheTicksInTheOrderWestEastSouthNorth) {
  ExpectCell(FirstCell("w\r\n 1 \r\n 0 \r\n 0 \r\n 0 \r\n"), "w", {1, 0, 0, 0});
  ExpectCell(FirstCell("e\r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n"), "e", {0, 1, 0, 0});
  ExpectCell(FirstCell("s\r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n"), "s", {0, 0, 1, 0});
  ExpectCell(FirstCell("n\r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n"), "n", {0, 0, 0, 1});
}

TEST(ReadPlanText, ReadsWholeLinesIntoTheTexts) {
  const Plan plan = ReadPlanText(
      " 2.6,x \r\n\"up\"\r\n\r\n a,b \r\n<p>\r\n \"a\", b \r\n0\r\n0\r\n0\r\n0\r\n" + EmptyCells(24));
  EXPECT_EQ((LineList{plan.TopLeft, plan.North, plan.South, plan.East, plan.West}),
            (LineList{" 2.6,x ", "\"up\"", "", " a,b ", "<p>"}));
  ExpectCell(plan.Cells[0], " \"a\", b ", {0, 0, 0, 0});
}

TEST(ReadPlanText, DoesNotMindBlanksAroundTicks) {
  ExpectCell(FirstCell("x\r\n1\r\n0\r\n0\r\n1\r\n"), "x", {1, 0, 0, 1});
  ExpectCell(FirstCell("x\r\n   1\r\n0   \r\n  0  \r\n1 \r\n"), "x", {1, 0, 0, 1});
}

TEST(ReadPlanText, ReadsTicksOnOneLineBetweenCommas) {
  ExpectCell(FirstCell("x\r\n1,0,0,1\r\n"), "x", {1, 0, 0, 1});
  ExpectCell(FirstCell("a,b\r\n 1 , 0 \r\n 0 , 1 \r\n"), "a,b", {1, 0, 0, 1});
  const Plan plan = ReadPlanText(kPlanHeader + "x\r\n0,0,1,0,rest, of it\r\n0,1,1,0\r\n" + EmptyCells(23));
  ExpectCell(plan.Cells[0], "x", {0, 0, 1, 0});
  ExpectCell(plan.Cells[1], "rest, of it", {0, 1, 1, 0});
}

TEST(ReadPlanText, ReadsTicksInQuotes) {
  ExpectCell(FirstCell("\"x\"\r\n\"1\"\r\n\"0\"\r\n\" 0 \"\r\n\"1\"\r\n"), "\"x\"", {1, 0, 0, 1});
  ExpectCell(FirstCell("x\r\n\"1\",\"0\",\"0\",\"1\"\r\n"), "x", {1, 0, 0, 1});
}

TEST(ReadPlanText, KeepsGreyedTicks) {
  const std::string file = FileWith("x\r\n 2 \r\n 1 \r\n 2 \r\n 0 \r\n");
  const Plan plan = ReadPlanText(file);
  ExpectCell(plan.Cells[0], "x", {2, 1, 2, 0});
  EXPECT_EQ(PlanText(plan), file);
  EXPECT_EQ(PlanText(ReadPlanText(FileWith("x\r\n2\r\n1\r\n2\r\n0\r\n"))), file);
}

TEST(ReadPlanText, RefusesTicksThatAreNone) {
  for (const char* tick : {"yes", "x", "1x", "", " ", "-", "3", "-1", "10", "99999999999", "-1e999", "\"1",
                           "one", "1 0", "0x1", "\t1"}) {
    for (int position = 0; position < 4; ++position) {
      std::string lines = "text\r\n";
      for (int at = 0; at < 4; ++at) lines += (at == position ? tick : " 0 ") + "\r\n"s;
      EXPECT_THROW(ReadPlanText(FileWith(lines)), RunTimeError) << "[" << tick << "] " << position;
    }
  }
}

TEST(ReadPlanText, RefusesATickThatIsNoneInTheLastCellToo) {
  const std::string before = kPlanHeader + EmptyCells(24) + "\r\n 0 \r\n 0 \r\n 0 \r\n";
  EXPECT_NO_THROW(ReadPlanText(before + " 1 \r\n"));
  EXPECT_THROW(ReadPlanText(before + "yes\r\n"), RunTimeError);
}

TEST(ReadPlanText, TellsWhatStandsInPlaceOfATick) {
  EXPECT_THAT([] { ReadPlanText(FileWith("x\r\nyes, please\r\n0\r\n0\r\n")); },
              ThrowsMessage<RunTimeError>(HasSubstr("\"yes\"")));
  EXPECT_THAT([] { ReadPlanText(FileWith("x\r\n 3 \r\n0\r\n0\r\n0\r\n")); },
              ThrowsMessage<RunTimeError>(HasSubstr("3")));
}

TEST(ReadPlanText, RefusesAFileCutShortAfterAnyLine) {
  std::size_t length = 0;
  for (int lines = 0; lines < 130; ++lines) {
    EXPECT_THROW(ReadPlanText(kHiThere.substr(0, length)), RunTimeError) << lines;
    length = kHiThere.find('\n', length) + 1;
  }
  EXPECT_EQ(length, 591U);
}

TEST(ReadPlanText, RefusesAFileCutShortWithinALine) {
  // What remains of the last tick's line, a blank and the digit, is a tick.
  for (std::size_t length = 0; length < 588; ++length)
    EXPECT_THROW(ReadPlanText(kHiThere.substr(0, length)), RunTimeError) << length;
}

TEST(ReadPlanText, ReadsALastLineWithoutItsEnd) {
  ExpectHiThere(ReadPlanText(kHiThere.substr(0, 589)));
  ExpectHiThere(ReadPlanText(kHiThere.substr(0, 588)));
}

TEST(ReadPlanText, ReadsLineFeedsAlone) {
  ExpectHiThere(ReadPlanText(WithLineFeedsAlone(kHiThere)));
}

TEST(ReadPlanText, IgnoresWhatFollowsThe130Lines) {
  std::string more;
  for (int line = 1; line <= 1000; ++line) more += "more " + std::to_string(line) + "\r\n";
  ExpectHiThere(ReadPlanText(kHiThere + more));
  ExpectHiThere(ReadPlanText(kHiThere.substr(0, 589) + ",more"));
  EXPECT_EQ(PlanText(ReadPlanText(kHiThere + more)), kHiThere);
}

TEST(ReadPlanText, ReadsAnyFirstPage) {
  std::string file = kHiThere;
  file.replace(0, 3, "70000");
  const Plan plan = ReadPlanText(file);
  EXPECT_EQ(plan.TopLeft, "70000");
  EXPECT_FALSE(CanInsertPlan(plan));
  EXPECT_EQ(PlanLabels(PlanTop(plan)).back(), "70024");
  EXPECT_EQ(PlanText(plan), file);
}

TEST(ReadPlanText, TakesALoneCarriageReturnForContent) {
  const std::string file = FileWith("a\rb\r\r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n");
  const Plan plan = ReadPlanText(file);
  ExpectCell(plan.Cells[0], "a\rb\r", {0, 0, 0, 1});
  EXPECT_EQ(PlanText(plan), file);
}

TEST(ReadPlanText, TurnsEveryMarkIntoALineBreak) {
  ExpectCell(FirstCell("<p>a<p><p>b<P>\r\n0\r\n0\r\n0\r\n0\r\n"), "\r\na\r\n\r\nb<P>", {0, 0, 0, 0});
  Plan typed = EmptyPlan();
  typed.Cells[0].Text = "a<p>b";
  EXPECT_EQ(ReadPlanText(PlanText(typed)).Cells[0].Text, "a\r\nb");
}

}  // namespace
}  // namespace tavrel::test
