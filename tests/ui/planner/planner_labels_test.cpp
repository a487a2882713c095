#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTimer>

#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

constexpr int kInterval = 500;

/// The page numbers of the cells and the timer that brings them up to date.
class PlannerLabelsTest : public PlannerTest {
 protected:
  void StartNumbered() {
    StartPlanning();
    WaitForLabels("002", "026");
  }

  static QTimer& Timer1() { return Find<QTimer>(PlannerWindow(), "Timer1"); }
  static LineField& Top() { return Find<LineField>(PlannerWindow(), "Text2"); }
};

TEST_F(PlannerLabelsTest, TheCellsAreNumberedOnceAfterTheFirstOpening) {
  StartPlanning();
  EXPECT_EQ(Timer1().interval(), kInterval);
  WaitForLabels("002", "026");
  EXPECT_FALSE(Timer1().isActive());
}

TEST_F(PlannerLabelsTest, FollowTheTypedNumber) {
  StartNumbered();
  TypeTop("990");
  WaitForLabels("990", "1014");
  EXPECT_FALSE(Timer1().isActive());
}

TEST_F(PlannerLabelsTest, TakeTheAbsoluteValueOfTheNumber) {
  StartNumbered();
  TypeTop("-7");
  WaitForLabels("007", "031");
}

TEST_F(PlannerLabelsTest, RoundTheNumber) {
  StartNumbered();
  TypeTop("2.6");
  WaitForLabels("003", "027");
  TypeTop("-7.4");
  WaitForLabels("007", "031");
}

TEST_F(PlannerLabelsTest, AnythingElseCountsAs0) {
  StartNumbered();
  TypeTop("x");
  WaitForLabels("000", "024");
}

TEST_F(PlannerLabelsTest, GoBeyondTheDocument) {
  StartNumbered();
  TypeTop("70000");
  WaitForLabels("70000", "70024");
}

TEST_F(PlannerLabelsTest, EveryKeyStartsTheTimeAnew) {
  StartNumbered();
  TypeTop("3");
  ASSERT_TRUE(QTest::qWaitFor([] { return Timer1().remainingTime() < kInterval / 2; }));
  const int left = Timer1().remainingTime();
  PressKey(Top(), Qt::Key_4);
  EXPECT_GT(Timer1().remainingTime(), left);
  WaitForLabels("034", "058");
}

TEST_F(PlannerLabelsTest, KeysThatTypeNothingStartTheTimeToo) {
  StartNumbered();
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Backspace, Qt::Key_Return}) {
    PressKey(Top(), key);
    EXPECT_TRUE(Timer1().isActive()) << key;
    Timer1().stop();
  }
}

TEST_F(PlannerLabelsTest, FollowAPastedNumber) {
  StartNumbered();
  QApplication::clipboard()->setText("40");
  Top().selectAll();
  PressKey(Top(), Qt::Key_V, Qt::ControlModifier);
  WaitForLabels("040", "064");
}

TEST_F(PlannerLabelsTest, KeysInOtherFieldsDoNotStartTheTime) {
  StartNumbered();
  TypeCell(0, "5");
  TypeInto(PlannerWindow(), "Text3_0", "5");
  EXPECT_FALSE(Timer1().isActive());
}

TEST_F(PlannerLabelsTest, ReopeningAndClearDoNotStartTheTime) {
  StartNumbered();
  Click(PlannerWindow(), "Command2");
  OpenPlanner();
  Click(PlannerWindow(), "Command3");
  EXPECT_FALSE(Timer1().isActive());
  WaitForLabels("002", "026");
}

TEST_F(PlannerLabelsTest, ALoadedPlanNumbersTheCellsAtOnceAndWithoutTheTimer) {
  Folder.Write("map.pln", PlanBytes("100"));
  StartNumbered();
  LoadPlanNamed("map");
  EXPECT_EQ(Labels().first(), "100");
  EXPECT_EQ(Labels().last(), "124");
  EXPECT_FALSE(Timer1().isActive());
}

TEST_F(PlannerLabelsTest, ALoadedPlanKeepsTheMinusSignUntilAKeyIsPressed) {
  Folder.Write("map.pln", PlanBytes("-7"));
  StartNumbered();
  LoadPlanNamed("map");
  EXPECT_EQ(Labels().first(), "-007");
  PressKey(Top(), Qt::Key_Home);
  WaitForLabels("007", "031");
}

TEST_F(PlannerLabelsTest, ALoadedPlanMayBeginBeyondTheDocumentButIsNotInserted) {
  Folder.Write("map.pln", PlanBytes("70000", "text"));
  StartNumbered();
  LoadPlanNamed("map");
  EXPECT_EQ(Labels().first(), "70000");
  EXPECT_EQ(Labels().last(), "70024");
  ExpectRefused();
}

}  // namespace
}  // namespace tavrel::test
