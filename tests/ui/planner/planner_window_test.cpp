#include <QAbstractButton>
#include <QImage>
#include <QLabel>

#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

/// The planner as a window: its face, and what it keeps.
class PlannerWindowTest : public PlannerTest {
 protected:
  static QString LabelText(const QString& name) { return Find<QLabel>(PlannerWindow(), name).text(); }
  static QString ButtonText(const QString& name) {
    return Find<QAbstractButton>(PlannerWindow(), name).text();
  }
  static QString FieldText(const QString& name) { return Find<LineField>(PlannerWindow(), name).text(); }

  /// Where a control stands in the planner.
  static QRect Place(const QString& name) {
    const auto& control = Find<QWidget>(PlannerWindow(), name);
    return {control.mapTo(&PlannerWindow(), QPoint()), control.size()};
  }

  static QWidget& CellWidget(int cell) {
    return *Find<QWidget>(PlannerWindow(), Element("Text1", cell)).parentWidget();
  }

  /// The picture of the gap between a cell and one to its right or below it.
  static QImage Gap(int cell, int neighbour) {
    Settle();
    const QRect from = CellWidget(cell).geometry();
    const QRect to = CellWidget(neighbour).geometry();
    const bool beside = to.left() > from.right();
    const QRect gap = beside
                          ? QRect(QPoint(from.right() + 1, from.top()), QPoint(to.left() - 1, from.bottom()))
                          : QRect(QPoint(from.left(), from.bottom() + 1), QPoint(from.right(), to.top() - 1));
    return Find<QWidget>(PlannerWindow(), "Map").grab(gap).toImage();
  }
};

TEST_F(PlannerWindowTest, ShowsItsTexts) {
  StartPlanning();
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner");
  EXPECT_EQ(LabelText("Label1"), "Page:");
  EXPECT_EQ(LabelText("Label2"), "Top left corner");
  EXPECT_EQ(LabelText("Label3"), "Navigation text for page links");
  EXPECT_EQ(LabelText("Label5"), "Ctrl+X=Cut Ctrl+C=Copy Ctrl+V=Paste Ctrl+A=Select");
  EXPECT_EQ(FieldText("Text2"), "002");
  const QStringList ways = {"North", "South", "East", "West"};
  for (int text = 0; text < 4; ++text) {
    EXPECT_EQ(FieldText(Element("Text3", text)), ways[text]);
    EXPECT_EQ(LabelText(Element("LabelText3", text)), ways[text] + ":");
  }
  const QStringList captions = {"Insert", "Close", "Clear", "Load", "Save", "Delete"};
  for (int button = 1; button <= 6; ++button)
    EXPECT_EQ(ButtonText(QString("Command%1").arg(button)), captions[button - 1]);
}

TEST_F(PlannerWindowTest, EveryCellHasATextAndFourTicks) {
  StartPlanning();
  for (int cell = 0; cell < 25; ++cell) {
    EXPECT_EQ(CellText(cell), "");
    EXPECT_EQ(Ticks(cell), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(ButtonText(Element(kWest, cell)), "   West");
    EXPECT_EQ(ButtonText(Element(kEast, cell)), "East");
    EXPECT_EQ(ButtonText(Element(kSouth, cell)), "South");
    EXPECT_EQ(ButtonText(Element(kNorth, cell)), "North");
  }
}

TEST_F(PlannerWindowTest, TheCellsStandInRowsOfFive) {
  StartPlanning();
  for (int cell = 0; cell < 25; ++cell) {
    SCOPED_TRACE(cell);
    const QRect place = Place(Element("Text1", cell));
    if (cell % 5 < 4) {
      EXPECT_LT(place.right(), Place(Element("Text1", cell + 1)).left());
      EXPECT_EQ(place.top(), Place(Element("Text1", cell + 1)).top());
    }
    if (cell / 5 < 4) {
      EXPECT_LT(place.bottom(), Place(Element("Text1", cell + 5)).top());
      EXPECT_EQ(place.left(), Place(Element("Text1", cell + 5)).left());
    }
  }
}

TEST_F(PlannerWindowTest, ATickStandsOnTheSideToWhichItPoints) {
  StartPlanning();
  for (int cell = 0; cell < 25; ++cell) {
    SCOPED_TRACE(cell);
    const QPoint middle = Place(Element("Text1", cell)).center();
    EXPECT_LT(Place(Element(kWest, cell)).center().x(), middle.x());
    EXPECT_GT(Place(Element(kEast, cell)).center().x(), middle.x());
    EXPECT_GT(Place(Element(kSouth, cell)).center().y(), middle.y());
    EXPECT_LT(Place(Element(kNorth, cell)).center().y(), middle.y());
    EXPECT_GT(Place(Element(kNorth, cell)).left(), Place(Element(kWest, cell)).left());
  }
}

TEST_F(PlannerWindowTest, ALinkIsDrawnBetweenItsCells) {
  StartPlanning();
  TypeCell(6, "q");
  struct Side {
    const char* Tick;
    int First, Second;
  };
  for (const Side& side : {Side{kWest, 5, 6}, Side{kEast, 6, 7}, Side{kSouth, 6, 11}, Side{kNorth, 1, 6}}) {
    SCOPED_TRACE(side.Tick);
    const QImage plain = Gap(side.First, side.Second);
    ClickTicks(6, {side.Tick});
    EXPECT_NE(Gap(side.First, side.Second), plain);
    ClickTicks(6, {side.Tick});
    EXPECT_EQ(Gap(side.First, side.Second), plain);
  }
}

TEST_F(PlannerWindowTest, TheTabKeyFollowsTheEye) {
  StartPlanning();
  Texts order = {"Text2", "Text3_0", "Text3_1", "Text3_2", "Text3_3"};
  for (int cell = 0; cell < 25; ++cell) {
    for (const char* array : {kNorth, "Text1", kWest, kSouth, kEast})
      order.push_back(Element(array, cell).toStdString());
  }
  order.insert(order.end(), {"Command1", "Command3", "Command4", "Command5", "Command6", "Command2"});
  EXPECT_EQ(TabOrder(PlannerWindow()), order);
}

TEST_F(PlannerWindowTest, EveryControlHasANameForScreenReaders) {
  StartPlanning();
  WaitForLabels("002", "026");
  EXPECT_EQ(NamelessControls(PlannerWindow()), Texts{});
  EXPECT_EQ(Find<QWidget>(PlannerWindow(), "Text1_24").accessibleName(), "Text of page 026");
}

TEST_F(PlannerWindowTest, StandsByItselfBesideTheMainWindow) {
  StartPlanning();
  EXPECT_TRUE(PlannerWindow().isWindow());
  EXPECT_EQ(PlannerWindow().parentWidget(), nullptr);
  EXPECT_FALSE(PlannerWindow().isModal());
  EXPECT_TRUE(Window().isEnabled());
}

TEST_F(PlannerWindowTest, EveryWayToCloseItHidesItAndKeepsItsContents) {
  StartPlanning();
  TypeTop("100");
  TypeInto(PlannerWindow(), "Text3_0", "Up");
  TypeCell(7, "kept\ntext");
  ClickTicks(7, {kSouth});
  const QWidget* first = &PlannerWindow();
  const std::vector<Robot::Step> ways = {
      [](QWidget& planner) { Click(planner, "Command2"); },
      [](QWidget& planner) { PressKey(Find<QWidget>(planner, "Text1_7"), Qt::Key_Escape); },
      [](QWidget& planner) { planner.close(); }};
  for (const Robot::Step& close : ways) {
    close(PlannerWindow());
    EXPECT_FALSE(PlannerWindow().isVisible());
    OpenPlanner();
    EXPECT_EQ(&PlannerWindow(), first);
    EXPECT_EQ(FieldText("Text2"), "100");
    EXPECT_EQ(FieldText("Text3_0"), "Up");
    EXPECT_EQ(CellText(7), "kept\r\ntext");
    EXPECT_EQ(Ticks(7), (std::vector<int>{0, 0, 1, 0}));
    EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner");
  }
  EXPECT_EQ(Program.Ends, 0);
}

TEST_F(PlannerWindowTest, KeepsItsContentsWhenInserted) {
  StartPlanning();
  TypeCell(0, "x");
  ClickTicks(0, {kEast});
  Insert();
  OpenPlanner();
  EXPECT_EQ(CellText(0), "x");
  EXPECT_EQ(Ticks(0), (std::vector<int>{0, 1, 0, 0}));
}

TEST_F(PlannerWindowTest, ClearEmptiesTheGridAndLeavesTheRest) {
  StartPlanning();
  TypeTop("100");
  TypeInto(PlannerWindow(), "Text3_3", "Back");
  for (const int cell : {0, 12, 24}) {
    TypeCell(cell, "text");
    ClickTicks(cell, {kWest, kEast, kSouth, kNorth});
  }
  ASSERT_FALSE(IsGridEmpty());
  Click(PlannerWindow(), "Command3");
  EXPECT_TRUE(IsGridEmpty());
  EXPECT_EQ(FieldText("Text2"), "100");
  EXPECT_EQ(FieldText("Text3_3"), "Back");
  EXPECT_TRUE(PlannerWindow().isVisible());
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(PlannerWindowTest, TellsWhatAPageCannotKeep) {
  StartPlanning();
  TypeCell(0, "a</text>b");
  EXPECT_EQ(LabelText("TagNotice"), "A page cannot keep what follows \"</text>\" in this field.");
  TypeCell(0, "ab");
  EXPECT_EQ(LabelText("TagNotice"), "");
  TypeInto(PlannerWindow(), "Text3_1", "x<linkto>");
  EXPECT_EQ(LabelText("TagNotice"), "A page takes \"<linkto>\" in this field for its own markup.");
}

TEST_F(PlannerWindowTest, EnterInAFieldPressesNoButton) {
  StartPlanning();
  for (const char* field : {"Text2", "Text3_0", "Check1_0"}) {
    PressKey(Find<QWidget>(PlannerWindow(), field), Qt::Key_Return);
    EXPECT_TRUE(PlannerWindow().isVisible()) << field;
  }
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(PlannerWindowTest, TheFirstOpeningNamesTheCurrentPlan) {
  State.PlanPath = "map.pln";
  StartPlanning();
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - map");
}

}  // namespace
}  // namespace tavrel::test
