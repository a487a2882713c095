#include <QListWidget>
#include <QTest>

#include "support/user.h"
#include "tour/tour.h"
#include "ui/controls/line_field.h"
#include "ui/controls/tick_box.h"

namespace tavrel::test {
namespace {

struct PlannedPage {
  int Cell;
  const char* Text;
  QStringList Ticks;
};

constexpr const char* kWest = "Check1";
constexpr const char* kEast = "Check2";
constexpr const char* kSouth = "Check3";
constexpr const char* kNorth = "Check4";

const std::vector<PlannedPage> kMuseum = {
    {0, "Entrance. Tickets on the left, coats on the right.", {kEast, kSouth}},
    {1, "The hall of clocks. They strike one after another.", {kWest, kEast}},
    {2, "Maps of lands that were never found.", {kWest, kSouth}},
    {5, "The garden of bells.", {kNorth, kSouth}},
    {7, "Ships in bottles, and one bottle in a ship.", {kNorth, kEast, kSouth}},
    {8, "The whale room. Please do not touch the whale.", {kWest}},
    {10, "Stairs down. Mind your head.", {kNorth, kEast}},
    {11, "The old printing press.", {kWest, kEast}},
    {12, "The reading room. The quietest page of all.", {kNorth, kWest}},
};

QString Element(const QString& array, int index) {
  return QString("%1_%2").arg(array).arg(index);
}

}  // namespace

void Tour::FillThePlanner() {
  Choose("EditProjectPlanner");
  QWidget& planner = TopWindow("Planner");
  ActivateWindow(planner);
  TypeInto(planner, "Text2", "010");
  for (const PlannedPage& page : kMuseum) {
    TypeInto(planner, Element("Text1", page.Cell), page.Text);
    for (const QString& tick : page.Ticks) Click(Find<TickBox>(planner, Element(tick, page.Cell)));
  }
  constexpr int kUntilTheCellsAreNumbered = 600;
  QTest::qWait(kUntilTheCellsAreNumbered);
  TakePicture(planner, "planner");
}

void Tour::SaveAndLoadThePlan() {
  QWidget& planner = TopWindow("Planner");
  robot_.Expect("SavePlanner", [this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Museum");
    TakePicture(dialog, "save-plan");
    Click(dialog, "Command1");
  });
  Click(planner, "Command5");
  Click(planner, "Command3");
  robot_.Expect("LoadPlanner", [this](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "Museum");
    TakePicture(dialog, "load-plan");
    Click(dialog, "Command1");
  });
  Click(planner, "Command4");
  robot_.Expect("DeletePlan", [this](QWidget& dialog) {
    TakePicture(dialog, "delete-plan");
    Click(dialog, "Command2");
  });
  Click(planner, "Command6");
}

void Tour::InsertThePlan() {
  AnswerMessage("plan-question", "OK");
  Click(TopWindow("Planner"), "Command1");
  ActivateWindow(*window_);
  ShowPage(17);
  TakePicture(*window_, "planned-page");
}

void Tour::BackUpAndRestore() {
  robot_.Expect("Backup", [this](QWidget& dialog) {
    Click(dialog, "Command4");
    ClickListRow(Find<QListWidget>(dialog, "List2"), "City walk.bak");
    TakePicture(dialog, "backup");
    Click(dialog, "Command2");
    Click(dialog, "Command3");
  });
  Choose("FileBackup");
}

}  // namespace tavrel::test
