#include <algorithm>

#include "ui/controls/tick_box.h"
#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

/// What goes from the planner into a plan file and back.
class PlanFilesTest : public PlannerTest {
 protected:
  static std::string FieldBytes(const QString& name) {
    return Find<LineField>(PlannerWindow(), name).Bytes();
  }

  /// Loads a plan file that holds these bytes.
  void Load(const std::string& bytes) {
    Folder.Write("map.pln", bytes);
    StartPlanning();
    LoadPlanNamed("map");
  }
};

TEST_F(PlanFilesTest, AreTheTextsAndTicksInTheirLines) {
  StartPlanning();
  TypeCell(0, "Hi\nthere");
  ClickTicks(0, {kWest, kNorth});
  SavePlanAs("m");
  const std::string bytes = Folder.Read("m.pln");
  EXPECT_EQ(bytes.size(), 591U);
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 130);
  std::string expected =
      "002\r\nNorth\r\nSouth\r\nEast\r\nWest\r\n"
      "Hi<p>there\r\n 1 \r\n 0 \r\n 0 \r\n 1 \r\n";
  for (int cell = 1; cell <= 24; ++cell) expected += "\r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n";
  EXPECT_EQ(bytes, expected);
}

TEST_F(PlanFilesTest, ComeBackAsTheyWere) {
  StartPlanning();
  TypeCell(0, "Hi\nthere");
  ClickTicks(0, {kWest, kNorth});
  SavePlanAs("m");
  Click(PlannerWindow(), "Command3");
  ASSERT_TRUE(IsGridEmpty());
  LoadPlanNamed("m");
  EXPECT_EQ(CellText(0), "Hi\r\nthere");
  EXPECT_EQ(Ticks(0), (std::vector<int>{1, 0, 0, 1}));
  EXPECT_EQ(Labels().first(), "002");
  EXPECT_EQ(Labels().last(), "026");
}

TEST_F(PlanFilesTest, EveryTickHasItsOwnLine) {
  StartPlanning();
  const QStringList ticks = {kWest, kEast, kSouth, kNorth};
  for (int cell = 0; cell < 4; ++cell) ClickTicks(cell, {ticks[cell]});
  SavePlanAs("m");
  EXPECT_EQ(Folder.Read("m.pln").substr(0, 119),
            "002\r\nNorth\r\nSouth\r\nEast\r\nWest\r\n"
            "\r\n 1 \r\n 0 \r\n 0 \r\n 0 \r\n"
            "\r\n 0 \r\n 1 \r\n 0 \r\n 0 \r\n"
            "\r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n"
            "\r\n 0 \r\n 0 \r\n 0 \r\n 1 \r\n");
}

TEST_F(PlanFilesTest, KeepNumberAndTextsAsTyped) {
  StartPlanning();
  TypeTop(" 2.6 x");
  const QStringList texts = {"  Up ", "", "a, \"b\"", QString::fromUtf8("\u00e9")};
  for (int text = 0; text < 4; ++text) TypeInto(PlannerWindow(), Element("Text3", text), texts[text]);
  TypeCell(24, "  last  \n");
  ClickTicks(24, {kSouth});
  SavePlanAs("m");
  const std::string bytes = Folder.Read("m.pln");
  const std::string head = " 2.6 x\r\n  Up \r\n\r\na, \"b\"\r\n\xE9\r\n";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  EXPECT_TRUE(bytes.ends_with("\r\n  last  <p>\r\n 0 \r\n 0 \r\n 1 \r\n 0 \r\n"));

  Click(PlannerWindow(), "Command3");
  LoadPlanNamed("m");
  EXPECT_EQ(FieldBytes("Text2"), " 2.6 x");
  EXPECT_EQ(FieldBytes("Text3_0"), "  Up ");
  EXPECT_EQ(FieldBytes("Text3_1"), "");
  EXPECT_EQ(FieldBytes("Text3_2"), "a, \"b\"");
  EXPECT_EQ(FieldBytes("Text3_3"), "\xE9");
  EXPECT_EQ(CellText(24), "  last  \r\n");
  EXPECT_EQ(Ticks(24), (std::vector<int>{0, 0, 1, 0}));
}

TEST_F(PlanFilesTest, LoadingReplacesTheWholeGridAndNamesThePlan) {
  Folder.Write("map.pln", PlanBytes("100", "loaded", {" 0 ", " 1 ", " 0 ", " 0 "}));
  StartPlanning();
  TypeCell(24, "typed");
  ClickTicks(24, {kWest});
  LoadPlanNamed("map");
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - map");
  EXPECT_EQ(FieldBytes("Text2"), "100");
  EXPECT_EQ(CellText(0), "loaded");
  EXPECT_EQ(Ticks(0), (std::vector<int>{0, 1, 0, 0}));
  EXPECT_EQ(CellText(24), "");
  EXPECT_EQ(Ticks(24), (std::vector<int>{0, 0, 0, 0}));
}

TEST_F(PlanFilesTest, ALoadedPlanIsInsertedLikeATypedOne) {
  Load(PlanBytes("100", "a<p>b", {" 1 ", " 0 ", " 0 ", " 0 "}));
  Insert();
  EXPECT_EQ(
      State.Page(100),
      "<text>a\r\nb</text><note>a\r\nb</note><link><linktext>West</linktext><linkto>099</linkto></link>");
}

TEST_F(PlanFilesTest, BlanksAroundATickDoNotMatter) {
  Load(PlanBytes("002", "q", {"1", "0", "  0", "1   "}));
  EXPECT_EQ(Ticks(0), (std::vector<int>{1, 0, 0, 1}));
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(PlanFilesTest, WhatFollowsTheLastLineDoesNotMatter) {
  std::string bytes = PlanBytes("002", "q");
  for (int line = 0; line < 1000; ++line) bytes += "more\r\n";
  Load(bytes);
  EXPECT_EQ(CellText(0), "q");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(PlanFilesTest, AGreyedTickIsSavedAsItIs) {
  Load(PlanBytes("002", "q", {" 2 ", " 1 ", " 0 ", " 2 "}));
  EXPECT_EQ(Ticks(0), (std::vector<int>{2, 1, 0, 2}));
  EXPECT_EQ(Find<TickBox>(PlannerWindow(), "Check1_0").checkState(), Qt::PartiallyChecked);
  SavePlanAs("again");
  EXPECT_EQ(Folder.Read("again.pln"), PlanBytes("002", "q", {" 2 ", " 1 ", " 0 ", " 2 "}));
}

TEST_F(PlanFilesTest, AClickTakesAGreyedTickOff) {
  Load(PlanBytes("002", "q", {" 2 ", " 2 ", " 2 ", " 2 "}));
  ClickTicks(0, {kWest, kNorth, kNorth});
  EXPECT_EQ(Ticks(0), (std::vector<int>{0, 2, 2, 1}));
}

TEST_F(PlanFilesTest, ClearTakesGreyedTicksOff) {
  Load(PlanBytes("002", "q", {" 2 ", " 2 ", " 2 ", " 2 "}));
  Click(PlannerWindow(), "Command3");
  EXPECT_TRUE(IsGridEmpty());
}

TEST_F(PlanFilesTest, APlanThatHasGoneMeanwhileEndsTheProgram) {
  Folder.Write("map.pln", PlanBytes("002"));
  StartPlanning();
  Play("Command4", "LoadPlanner", [this](QWidget& dialog) {
    std::filesystem::remove(Folder.Path() / "map.pln");
    ClickListRow(PlanList(dialog), "map");
    Click(dialog, "Command1");
  });
  ASSERT_EQ(Program.Failures.size(), 1U);
  EXPECT_NE(Program.Failures.front().find("map.pln"), std::string::npos);
}

class DamagedPlanTest : public PlannerTest, public testing::WithParamInterface<std::string> {};

TEST_P(DamagedPlanTest, EndsTheProgramAfterTheGridWasEmptied) {
  Folder.Write("map.pln", GetParam());
  StartPlanning();
  TypeCell(0, "typed");
  ClickTicks(24, {kWest});
  const auto files = Folder.Files();
  LoadPlanNamed("map");
  ASSERT_EQ(Program.Failures.size(), 1U);
  EXPECT_NE(Program.Failures.front().find("map.pln"), std::string::npos);
  EXPECT_NE(CellText(0), "typed");
  EXPECT_EQ(Ticks(24)[0], 0);
  EXPECT_EQ(Folder.Files(), files);
}

INSTANTIATE_TEST_SUITE_P(Plans, DamagedPlanTest,
                         testing::Values("", "002\r\n", "002\r\nNorth\r\nSouth\r\nEast\r\nWest\r\n",
                                         PlanBytes("002").substr(0, 591 - 12 - 5),
                                         PlanBytes("002", "", {" 0 ", "yes", " 0 ", " 0 "}),
                                         PlanBytes("002", "", {" 0 ", " 0 ", "1x", " 0 "}),
                                         PlanBytes("002", "", {"3", "0", "0", "0"}),
                                         PlanBytes("002", "", {"-1", "0", "0", "0"})));

}  // namespace
}  // namespace tavrel::test
