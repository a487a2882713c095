#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>

#include <chrono>
#include <ctime>

#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

struct PlanDialogCase {
  const char* Button;
  const char* Name;
  const char* Caption;
  const char* ListLabel;
  const char* Action;
  Texts Order;
};

void PrintTo(const PlanDialogCase& dialog, std::ostream* out) {
  *out << dialog.Name;
}

const PlanDialogCase kLoad{"Command4", "LoadPlanner", "Load Plan",
                           "Label1",   "Open",        {"List1", "Command1", "Command2"}};
const PlanDialogCase kSave{"Command5", "SavePlanner", "Save Plan",
                           "Label2",   "Save",        {"Text1", "List1", "Command1", "Command2"}};
const PlanDialogCase kDelete{"Command6", "DeletePlan", "Delete Plan",
                             "Label1",   "Delete",     {"List1", "Command1", "Command2"}};

/// What the three dialogs have in common.
class PlanDialogsTest : public PlannerTest, public testing::WithParamInterface<PlanDialogCase> {
 protected:
  void PlayIt(const Robot::Step& step) { Play(GetParam().Button, GetParam().Name, step); }

  /// Plays a step and cancels.
  void Look(const Robot::Step& step) {
    PlayIt([&](QWidget& dialog) {
      step(dialog);
      Click(dialog, "Command2");
    });
  }

  /// Dates a file at noon of 3 March 2006.
  void WriteDated(const fs::path& name) {
    Folder.Write(name, PlanBytes("002"));
    std::tm noon{};
    noon.tm_mday = 3;
    noon.tm_mon = 2;
    noon.tm_year = 106;
    noon.tm_hour = 12;
    noon.tm_isdst = -1;
    const auto time = std::chrono::system_clock::from_time_t(std::mktime(&noon));
    fs::last_write_time(Folder.Path() / name, std::chrono::file_clock::from_sys(time));
  }
};

TEST_P(PlanDialogsTest, ShowsItsTexts) {
  StartPlanning();
  Look([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), GetParam().Caption);
    EXPECT_EQ(Find<QLabel>(dialog, GetParam().ListLabel).text(), "Planner files:");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").text(), GetParam().Action);
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").text(), "Cancel");
    EXPECT_EQ(PlanList(dialog).font().family(), "Courier New");
  });
}

TEST_P(PlanDialogsTest, ListsNamesPaddedOrCutWithTheirDates) {
  WriteDated("map.pln");
  WriteDated("abcdefghijklmnopqrstuvwxyz1234.pln");
  WriteDated("exactly-five-and-twenty-1.pln");
  WriteDated(fs::path(u8"Caf\u00e9.pln"));
  StartPlanning();
  Look([](QWidget& dialog) {
    EXPECT_EQ(PlanRows(dialog),
              (QStringList{"abcdefghijklmnopqrstuvwxy03-03-06",
                           QString::fromUtf8("Caf\u00e9") + QString(21, ' ') + "03-03-06",
                           "exactly-five-and-twenty-103-03-06", "map" + QString(22, ' ') + "03-03-06"}));
  });
}

TEST_P(PlanDialogsTest, ListsOnlyPlanFiles) {
  for (const char* name :
       {"a.PLN", "b.pln", "my.notes.pln", "c.dat", "c.bak", "d.pln.txt", "pln", "in/e.pln"})
    Folder.Write(name, "x");
  fs::create_directory(Folder.Path() / "folder.pln");
  StartPlanning();
  Look([](QWidget& dialog) {
    QStringList names;
    for (const QString& row : PlanRows(dialog)) names << row.left(25).trimmed();
    EXPECT_EQ(names, (QStringList{"a", "b", "my.notes"}));
  });
}

TEST_P(PlanDialogsTest, ListsTheFolderAsItIsAtEachOpening) {
  StartPlanning();
  Look([](QWidget& dialog) { EXPECT_EQ(PlanRows(dialog), QStringList{}); });
  Folder.Write("map.pln", PlanBytes("002"));
  Look([](QWidget& dialog) {
    EXPECT_EQ(PlanList(dialog).count(), 1);
    EXPECT_TRUE(PlanList(dialog).selectedItems().isEmpty());
  });
}

TEST_P(PlanDialogsTest, StandsOverThePlanner) {
  StartPlanning();
  Look([](QWidget& dialog) {
    EXPECT_EQ(dialog.parentWidget(), &PlannerWindow());
    EXPECT_TRUE(dialog.isModal());
  });
}

TEST_P(PlanDialogsTest, ReturnsToTheProgramsFolder) {
  StartPlanning();
  fs::current_path("/");
  Look([this](QWidget&) { EXPECT_EQ(fs::current_path(), Folder.Path()); });
}

TEST_P(PlanDialogsTest, TheTabKeyFollowsTheEyeAndEveryControlHasAName) {
  Folder.Write("map.pln", PlanBytes("002"));
  StartPlanning();
  Look([](QWidget& dialog) {
    EXPECT_EQ(TabOrder(dialog), GetParam().Order);
    EXPECT_EQ(NamelessControls(dialog), Texts{});
  });
}

TEST_P(PlanDialogsTest, CancelEscAndTheFrameLeaveNoPlanAndTouchNothing) {
  Folder.Write("map.pln", PlanBytes("100", "loaded"));
  StartPlanning();
  LoadPlanNamed("map");
  TypeCell(0, "typed");
  const auto files = Folder.Files();
  const std::vector<Robot::Step> ways = {[](QWidget& dialog) { Click(dialog, "Command2"); },
                                         [](QWidget& dialog) { PressKey(PlanList(dialog), Qt::Key_Escape); },
                                         [](QWidget& dialog) { dialog.close(); }};
  for (const Robot::Step& leave : ways) {
    State.PlanPath = "map.pln";
    PlayIt([&](QWidget& dialog) {
      ClickListRow(PlanList(dialog), "map");
      leave(dialog);
      EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(State.PlanPath.empty());
    EXPECT_EQ(CellText(0), "typed");
    EXPECT_EQ(Folder.Files(), files);
  }
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - map");
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_P(PlanDialogsTest, EnterInTheListDoesNothing) {
  Folder.Write("map.pln", PlanBytes("002"));
  StartPlanning();
  Look([](QWidget& dialog) {
    ClickListRow(PlanList(dialog), "map");
    PressKey(PlanList(dialog), Qt::Key_Return);
    PressKey(PlanList(dialog), Qt::Key_Enter);
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_TRUE(Folder.Has("map.pln"));
}

INSTANTIATE_TEST_SUITE_P(All, PlanDialogsTest, testing::Values(kLoad, kSave, kDelete),
                         [](const auto& dialog) { return std::string(dialog.param.Name); });

}  // namespace
}  // namespace tavrel::test
