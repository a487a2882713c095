#include <QListWidget>
#include <QTest>

#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

void ClickPlanAt(const QWidget& dialog, int row) {
  QListWidget& list = PlanList(dialog);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
}

class LoadPlannerTest : public PlannerTest {
 protected:
  void PlayLoad(const Robot::Step& step) { Play("Command4", "LoadPlanner", step); }

  /// Fills the grid, loads with `step` and expects that the grid is kept and no plan is current.
  void ExpectNothingLoaded(const Robot::Step& step) {
    StartPlanning();
    TypeCell(0, "typed");
    State.PlanPath = "old.pln";
    PlayLoad(step);
    EXPECT_TRUE(State.PlanPath.empty());
    EXPECT_EQ(CellText(0), "typed");
    EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner");
    EXPECT_TRUE(Program.Failures.empty());
  }
};

TEST_F(LoadPlannerTest, ADoubleClickOpens) {
  Folder.Write("map.pln", PlanBytes("100", "first"));
  Folder.Write("zoo.pln", PlanBytes("200", "second"));
  StartPlanning();
  PlayLoad([](QWidget& dialog) {
    DoubleClickListRow(PlanList(dialog), "zoo");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(State.PlanPath, "zoo.pln");
  EXPECT_EQ(CellText(0), "second");
}

TEST_F(LoadPlannerTest, ADoubleClickBesideTheEntriesDoesNothing) {
  Folder.Write("map.pln", PlanBytes("100"));
  StartPlanning();
  PlayLoad([](QWidget& dialog) {
    QWidget* entries = PlanList(dialog).viewport();
    QTest::mouseDClick(entries, Qt::LeftButton, {}, {5, entries->height() - 5});
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
}

TEST_F(LoadPlannerTest, WithoutASelectionOpenClosesAndKeepsTheGrid) {
  Folder.Write("map.pln", PlanBytes("100"));
  ExpectNothingLoaded([](QWidget& dialog) {
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(LoadPlannerTest, WithoutPlansOpenClosesAndKeepsTheGrid) {
  ExpectNothingLoaded([](QWidget& dialog) { Click(dialog, "Command1"); });
}

TEST_F(LoadPlannerTest, NamesCutToTheSame25CharactersStayApart) {
  Folder.Write("abcdefghijklmnopqrstuvwxy1.pln", PlanBytes("100", "first"));
  Folder.Write("abcdefghijklmnopqrstuvwxy2.pln", PlanBytes("200", "second"));
  StartPlanning();
  for (const int row : {1, 0}) {
    PlayLoad([row](QWidget& dialog) {
      EXPECT_EQ(PlanRows(dialog)[0], PlanRows(dialog)[1]);
      ClickPlanAt(dialog, row);
      Click(dialog, "Command1");
    });
    EXPECT_EQ(CellText(0), row == 0 ? "first" : "second");
  }
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - abcdefghijklmnopqrstuvwxy1");
}

class DeletePlanTest : public PlannerTest {
 protected:
  void PlayDelete(const Robot::Step& step) { Play("Command6", "DeletePlan", step); }

  /// Selects the row that begins with `name` and clicks "Delete".
  void Delete(const QString& name) {
    PlayDelete([&](QWidget& dialog) {
      ClickListRow(PlanList(dialog), name);
      Click(dialog, "Command1");
      EXPECT_FALSE(dialog.isVisible());
    });
  }
};

TEST_F(DeletePlanTest, DeletesWithoutAQuestion) {
  for (const char* name : {"map.pln", "map2.pln", "map.dat"}) Folder.Write(name, "x");
  StartPlanning();
  TypeCell(0, "typed");
  Delete("map ");
  EXPECT_FALSE(Folder.Has("map.pln"));
  EXPECT_TRUE(Folder.Has("map2.pln"));
  EXPECT_TRUE(Folder.Has("map.dat"));
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_EQ(CellText(0), "typed");
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner");
}

TEST_F(DeletePlanTest, SaveOffersTheNameOfTheDeletedPlan) {
  Folder.Write("map.pln", "x");
  StartPlanning();
  Delete("map");
  EXPECT_EQ(State.PlanPath, "map.pln");
  Play("Command5", "SavePlanner", [](QWidget& dialog) {
    EXPECT_EQ(Find<LineField>(dialog, "Text1").text(), "map");
    Click(dialog, "Command1");
  });
  EXPECT_TRUE(Folder.Has("map.pln"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(DeletePlanTest, WithoutASelectionItClosesAndDeletesNothing) {
  Folder.Write("map.pln", "x");
  StartPlanning();
  State.PlanPath = "map.pln";
  const auto files = Folder.Files();
  PlayDelete([](QWidget& dialog) {
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(State.PlanPath.empty());
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(DeletePlanTest, APlanThatHasGoneMeanwhileIsNoError) {
  Folder.Write("map.pln", "x");
  StartPlanning();
  PlayDelete([this](QWidget& dialog) {
    std::filesystem::remove(Folder.Path() / "map.pln");
    ClickListRow(PlanList(dialog), "map");
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(State.PlanPath, "map.pln");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(DeletePlanTest, ADoubleClickOnlySelects) {
  Folder.Write("map.pln", "x");
  StartPlanning();
  PlayDelete([](QWidget& dialog) {
    DoubleClickListRow(PlanList(dialog), "map");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  EXPECT_TRUE(Folder.Has("map.pln"));
}

TEST_F(DeletePlanTest, NamesCutToTheSame25CharactersStayApart) {
  Folder.Write("abcdefghijklmnopqrstuvwxy1.pln", "x");
  Folder.Write("abcdefghijklmnopqrstuvwxy2.pln", "x");
  StartPlanning();
  PlayDelete([](QWidget& dialog) {
    ClickPlanAt(dialog, 1);
    Click(dialog, "Command1");
  });
  EXPECT_TRUE(Folder.Has("abcdefghijklmnopqrstuvwxy1.pln"));
  EXPECT_FALSE(Folder.Has("abcdefghijklmnopqrstuvwxy2.pln"));
}

}  // namespace
}  // namespace tavrel::test
