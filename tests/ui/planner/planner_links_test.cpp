#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

/// One link of a record.
std::string LinkTo(const std::string& text, const std::string& target) {
  return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
}

/// The links that Insert makes of ticks.
class PlannerLinksTest : public PlannerTest {
 protected:
  /// Inserts one cell with the text "q" and gives back its page.
  std::string PageFrom(const QString& top, int cell, const QStringList& ticks) {
    StartPlanning();
    TypeTop(top);
    TypeCell(cell, "q");
    ClickTicks(cell, ticks);
    Insert();
    return State.Page(top.toInt() + cell);
  }

  static std::string PageWith(const std::string& links) {
    return "<text>q</text><note>q</note><link>" + links + "</link>";
  }
};

TEST_F(PlannerLinksTest, GoWestNorthEastSouthInThisOrder) {
  EXPECT_EQ(PageFrom("002", 0, {kSouth, kEast, kNorth, kWest}),
            PageWith(LinkTo("West", "001") + LinkTo("North", "001") + LinkTo("East", "003") +
                     LinkTo("South", "007")));
}

TEST_F(PlannerLinksTest, EveryBoxLinksItsOwnWay) {
  StartPlanning();
  TypeTop("100");
  const QStringList ticks = {kWest, kEast, kSouth, kNorth};
  for (int cell = 6; cell < 10; ++cell) {
    TypeCell(cell, "q");
    ClickTicks(cell, {ticks[cell - 6]});
  }
  Insert();
  EXPECT_EQ(State.Page(106), PageWith(LinkTo("West", "105")));
  EXPECT_EQ(State.Page(107), PageWith(LinkTo("East", "108")));
  EXPECT_EQ(State.Page(108), PageWith(LinkTo("South", "113")));
  EXPECT_EQ(State.Page(109), PageWith(LinkTo("North", "104")));
}

TEST_F(PlannerLinksTest, WestOfPage1IsPage1) {
  EXPECT_EQ(PageFrom("1", 0, {kWest}), PageWith(LinkTo("West", "001")));
  EXPECT_EQ(Body().Bytes(), "q");
  EXPECT_EQ(LinkText().Bytes(), "West");
}

TEST_F(PlannerLinksTest, NorthOfTheFirstFivePagesIsPage1) {
  EXPECT_EQ(PageFrom("1", 4, {kNorth}), PageWith(LinkTo("North", "001")));
}

TEST_F(PlannerLinksTest, NorthOfPage6IsPage1) {
  EXPECT_EQ(PageFrom("1", 5, {kNorth}), PageWith(LinkTo("North", "001")));
}

TEST_F(PlannerLinksTest, NorthOfPage7IsPage2) {
  EXPECT_EQ(PageFrom("1", 6, {kNorth}), PageWith(LinkTo("North", "002")));
}

TEST_F(PlannerLinksTest, NorthOfTheTopRowMayLeaveTheBlock) {
  EXPECT_EQ(PageFrom("10", 0, {kNorth}), PageWith(LinkTo("North", "005")));
}

TEST_F(PlannerLinksTest, RowsGoOnInTheNextOne) {
  StartPlanning();
  for (const int cell : {4, 5}) TypeCell(cell, "q");
  ClickTicks(4, {kEast});
  ClickTicks(5, {kWest});
  Insert();
  EXPECT_EQ(State.Page(6), PageWith(LinkTo("East", "007")));
  EXPECT_EQ(State.Page(7), PageWith(LinkTo("West", "006")));
}

TEST_F(PlannerLinksTest, LinksMayLeaveTheBlockAtItsEnd) {
  EXPECT_EQ(PageFrom("950", 24, {kEast, kSouth}), PageWith(LinkTo("East", "975") + LinkTo("South", "979")));
}

TEST_F(PlannerLinksTest, ATickWithoutATextIsIgnored) {
  EXPECT_EQ(PageFrom("002", 1, {}), "<text>q</text><note>q</note>");
  OpenPlanner();
  ClickTicks(0, {kWest, kEast, kSouth, kNorth});
  Insert();
  EXPECT_EQ(State.Page(2), "");
}

TEST_F(PlannerLinksTest, ASecondClickTakesATickBack) {
  EXPECT_EQ(PageFrom("002", 0, {kWest, kEast, kWest}), PageWith(LinkTo("East", "003")));
}

TEST_F(PlannerLinksTest, AGreyedTickDoesNotCount) {
  Folder.Write("map.pln", PlanBytes("002", "q", {" 2 ", " 1 ", " 2 ", " 2 "}));
  StartPlanning();
  LoadPlanNamed("map");
  Insert();
  EXPECT_EQ(State.Page(2), PageWith(LinkTo("East", "003")));
}

TEST_F(PlannerLinksTest, TheirTextsAreTheNavigationTextsWithoutBlanksAround) {
  StartPlanning();
  TypeTop("100");
  const QStringList texts = {"  Up ", "Down", " Onwards", "  Back  "};
  for (int text = 0; text < 4; ++text) TypeInto(PlannerWindow(), Element("Text3", text), texts[text]);
  TypeCell(0, "q");
  ClickTicks(0, {kWest, kEast, kSouth, kNorth});
  Insert();
  EXPECT_EQ(State.Page(100), PageWith(LinkTo("Back", "099") + LinkTo("Up", "095") + LinkTo("Onwards", "101") +
                                      LinkTo("Down", "105")));
}

}  // namespace
}  // namespace tavrel::test
