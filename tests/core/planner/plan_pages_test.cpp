#include "core/planner/plan_pages.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "core/editing/document_of.h"
#include "core/planner/plan_files.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

Plan PlanWith(const PlanCell& cell, const std::string& top_left = "002") {
  Plan plan = EmptyPlan(top_left);
  plan.Cells[0] = cell;
  return plan;
}

PlanCell WithAllTicks(const std::string& text, Tick tick = kTickOn) {
  return {text, tick, tick, tick, tick};
}

/// The page that the plan's cell makes of its page; cell 0 is on page PlanTop().
std::string PageOf(const Plan& plan, int cell = 0) {
  EXPECT_TRUE(CanInsertPlan(plan));
  Global global;
  InsertPlan(plan, global);
  return global.Page(PlanTop(plan) + cell);
}

std::string PageOfText(const std::string& text) {
  return PageOf(PlanWith({text}));
}

std::string LinkTo(const std::string& text, const std::string& target) {
  return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
}

TEST(InsertPlan, ReplacesThe25PagesThatThePlanCovers) {
  Global global = DocumentOf(kGuide);
  const Global before = global;
  InsertPlan(PlanWith({"x"}), global);
  EXPECT_EQ(global.Page(2), "<text>x</text><note>x</note>");
  for (int page = 3; page <= 26; ++page) EXPECT_EQ(global.Page(page), "") << page;
  EXPECT_EQ(global.Page(1), before.Page(1));
  EXPECT_EQ(global.Page(999), "<title>Last</title><text>Omega</text>");
}

TEST(InsertPlan, LeavesThePagesBeforeAndAfterAsTheyAre) {
  for (const int top : {1, 2, 500, 949, 950}) {
    Global global;
    for (int page = 0; page <= 1000; ++page) global.Page(page) = std::to_string(page);
    global.MusicLink(3) = "<song>Blue</song>";
    global.PageClipboard = "copied";
    InsertPlan(EmptyPlan(std::to_string(top)), global);
    for (int page = 0; page <= 1000; ++page) {
      const bool is_covered = page >= top && page <= top + 24;
      EXPECT_EQ(global.Page(page), is_covered ? "" : std::to_string(page)) << top << ", " << page;
    }
    EXPECT_EQ(global.MusicLink(3), "<song>Blue</song>");
    EXPECT_EQ(global.PageClipboard, "copied");
  }
}

TEST(InsertPlan, PutsTheCellsOnPagesRowByRow) {
  Plan plan = EmptyPlan("101");
  for (std::size_t cell = 0; cell < 25; ++cell) plan.Cells.at(cell).Text = "c" + std::to_string(cell);
  for (int cell = 0; cell < 25; ++cell) {
    const std::string text = "c" + std::to_string(cell);
    std::string page = "<text>";
    page.append(text).append("</text><note>").append(text).append("</note>");
    EXPECT_EQ(PageOf(plan, cell), page);
  }
}

TEST(InsertPlan, TrimsBlanksAndNothingElse) {
  EXPECT_EQ(PageOfText("  Hello  "), "<text>Hello</text><note>Hello</note>");
  EXPECT_EQ(PageOfText(" a  b "), "<text>a  b</text><note>a  b</note>");
  EXPECT_EQ(PageOfText(" \r\n\tx\xA0 "), "<text>\r\n\tx\xA0</text><note>\r\n\tx\xA0</note>");
  EXPECT_EQ(PageOfText("\r\n"), "<text>\r\n</text><note>\r\n</note>");
}

TEST(InsertPlan, EmptiesThePageOfACellOfBlanksWhateverItsTicks) {
  for (const char* text : {"", " ", "     "}) {
    Global global;
    global.Page(2) = "<title>old</title>";
    InsertPlan(PlanWith(WithAllTicks(text)), global);
    EXPECT_EQ(global.Page(2), "") << "[" << text << "]";
  }
}

TEST(InsertPlan, TakesTheFirst50CharactersForTheNote) {
  EXPECT_EQ(PageOfText("abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRST"),
            "<text>abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRST</text>"
            "<note>abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMN</note>");
  EXPECT_EQ(PageOfText(std::string(50, 'a')),
            "<text>" + std::string(50, 'a') + "</text><note>" + std::string(50, 'a') + "</note>");
  EXPECT_EQ(PageOfText("   " + std::string(51, '\xE9')),
            "<text>" + std::string(51, '\xE9') + "</text><note>" + std::string(50, '\xE9') + "</note>");
}

TEST(InsertPlan, MayCutTheNoteWithinALineBreak) {
  const std::string start(49, 'a');
  EXPECT_EQ(PageOfText(start + "\r\nb"), "<text>" + start + "\r\nb</text><note>" + start + "\r</note>");
}

TEST(InsertPlan, LeavesABlankAtTheEndOfACutNote) {
  const std::string start(49, 'a');
  EXPECT_EQ(PageOfText(start + " b"), "<text>" + start + " b</text><note>" + start + " </note>");
}

TEST(InsertPlan, LinksInTheOrderWestNorthEastSouth) {
  EXPECT_EQ(PageOf(PlanWith(WithAllTicks("Hello"))),
            "<text>Hello</text><note>Hello</note><link>"
            "<linktext>West</linktext><linkto>001</linkto>"
            "<linktext>North</linktext><linkto>001</linkto>"
            "<linktext>East</linktext><linkto>003</linkto>"
            "<linktext>South</linktext><linkto>007</linkto></link>");
}

TEST(InsertPlan, LinksOnlyWhereATickIsOn) {
  const std::string page = "<text>q</text><note>q</note>";
  const auto page_with = [](Tick west, Tick east, Tick south, Tick north) {
    return PageOf(PlanWith({"q", west, east, south, north}, "100"));
  };
  EXPECT_EQ(page_with(1, 0, 0, 0), page + "<link>" + LinkTo("West", "099") + "</link>");
  EXPECT_EQ(page_with(0, 1, 0, 0), page + "<link>" + LinkTo("East", "101") + "</link>");
  EXPECT_EQ(page_with(0, 0, 1, 0), page + "<link>" + LinkTo("South", "105") + "</link>");
  EXPECT_EQ(page_with(0, 0, 0, 1), page + "<link>" + LinkTo("North", "095") + "</link>");
  EXPECT_EQ(page_with(0, 0, 0, 0), page);
}

TEST(InsertPlan, TakesAGreyedTickForOff) {
  EXPECT_EQ(PageOf(PlanWith(WithAllTicks("q", kTickGreyed))), "<text>q</text><note>q</note>");
  EXPECT_EQ(PageOf(PlanWith({"q", kTickGreyed, kTickOn, kTickGreyed, kTickGreyed})),
            "<text>q</text><note>q</note><link>" + LinkTo("East", "003") + "</link>");
}

TEST(InsertPlan, LinksPage1ToItselfInTheWest) {
  EXPECT_EQ(PageOf(PlanWith({"q", kTickOn}, "1")),
            "<text>q</text><note>q</note><link><linktext>West</linktext><linkto>001</linkto></link>");
}

TEST(InsertPlan, LinksToPage1InTheNorthOfTheFirstPagesOnly) {
  const std::vector<std::pair<int, std::string>> targets = {{1, "001"}, {4, "001"},  {5, "001"}, {6, "001"},
                                                            {7, "002"}, {10, "005"}, {11, "006"}};
  for (const auto& [page, target] : targets) {
    const Plan plan = PlanWith({"q", kTickOff, kTickOff, kTickOff, kTickOn}, std::to_string(page));
    EXPECT_EQ(PageOf(plan), "<text>q</text><note>q</note><link>" + LinkTo("North", target) + "</link>")
        << page;
  }
}

TEST(InsertPlan, LinksPastTheEdgesOfTheGrid) {
  Plan plan = EmptyPlan("950");
  plan.Cells[5] = {"left", kTickOn, kTickOff, kTickOff, kTickOff};
  plan.Cells[9] = {"right", kTickOff, kTickOn, kTickOff, kTickOff};
  plan.Cells[24] = WithAllTicks("last");
  EXPECT_EQ(PageOf(plan, 5), "<text>left</text><note>left</note><link>" + LinkTo("West", "954") + "</link>");
  EXPECT_EQ(PageOf(plan, 9),
            "<text>right</text><note>right</note><link>" + LinkTo("East", "960") + "</link>");
  EXPECT_EQ(PageOf(plan, 24), "<text>last</text><note>last</note><link>" + LinkTo("West", "973") +
                                  LinkTo("North", "969") + LinkTo("East", "975") + LinkTo("South", "979") +
                                  "</link>");
}

TEST(InsertPlan, TrimsTheTextsOfLinks) {
  Plan plan = PlanWith(WithAllTicks("q"), "50");
  plan.West = "  Back  ";
  plan.North = " Up one";
  plan.East = "Next ";
  plan.South = " a  b ";
  EXPECT_EQ(PageOf(plan), "<text>q</text><note>q</note><link>" + LinkTo("Back", "049") +
                              LinkTo("Up one", "045") + LinkTo("Next", "051") + LinkTo("a  b", "055") +
                              "</link>");
}

TEST(CanInsertPlan, NeedsAFirstPageFrom1To950) {
  for (const char* top : {"1", "002", "950", "949.6", "950.5", "0.6", " 7 ", "12x", "2.6"})
    EXPECT_TRUE(CanInsertPlan(EmptyPlan(top))) << top;
  for (const char* top : {"0", "951", "950.6", "0.5", "-7", "", " ", "x", "70000", "99999999999", "-1e999"})
    EXPECT_FALSE(CanInsertPlan(EmptyPlan(top))) << top;
}

TEST(CanInsertPlan, NeedsATextForEachLinkDirection) {
  EXPECT_TRUE(CanInsertPlan(EmptyPlan()));
  for (std::string Plan::*text : {&Plan::North, &Plan::South, &Plan::East, &Plan::West}) {
    for (const char* blank : {"", " ", "    "}) {
      Plan plan = PlanWith({"x"});
      plan.*text = blank;
      EXPECT_FALSE(CanInsertPlan(plan));
    }
  }
}

TEST(PlanTop, IsRoundedToAWholeNumber) {
  EXPECT_EQ(PlanTop(EmptyPlan("2.6")), 3);
  EXPECT_EQ(PlanTop(EmptyPlan("002")), 2);
  EXPECT_EQ(PlanTop(EmptyPlan("-7")), -7);
  EXPECT_EQ(PlanTop(EmptyPlan("70000")), 70000);
  EXPECT_EQ(PageOf(PlanWith({"x"}, "2.6")), "<text>x</text><note>x</note>");
}

TEST(PlanLabels, CountFromTheFirstPage) {
  const std::vector<std::pair<std::int64_t, std::pair<std::string, std::string>>> ends = {
      {7, {"007", "031"}},    {3, {"003", "027"}},         {2, {"002", "026"}},  {0, {"000", "024"}},
      {980, {"980", "1004"}}, {70000, {"70000", "70024"}}, {-7, {"-007", "017"}}};
  for (const auto& [first, labels] : ends) {
    EXPECT_EQ(PlanLabels(first).front(), labels.first);
    EXPECT_EQ(PlanLabels(first).back(), labels.second);
  }
  EXPECT_EQ(PlanLabels(98)[1], "099");
  EXPECT_EQ(PlanLabels(98)[2], "100");
  EXPECT_EQ(PlanLabels(-1)[2], "001");
}

TEST(PlanLabels, GoOnBeyond32Bits) {
  EXPECT_EQ(PlanLabels(std::numeric_limits<std::int32_t>::max()).back(), "2147483671");
  EXPECT_EQ(PlanLabels(2147483648).front(), "2147483648");
}

}  // namespace
}  // namespace tavrel::test
