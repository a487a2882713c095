#include <QApplication>
#include <QListWidget>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

/// Windows in a language that is written from the right.
class MirroredTest : public WindowTest {
 protected:
  void SetUp() override {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    OpenDocument("Guide.dat", kGuide);
  }
  void TearDown() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  /// The arrows stand between the first list, on the left, and the second.
  static void ExpectListsInOrder(const QWidget& dialog) {
    const auto left_edge = [&dialog](const char* name) {
      return Find<QWidget>(dialog, name).mapTo(&dialog, QPoint()).x();
    };
    EXPECT_LT(left_edge("List1"), left_edge("Command1"));
    EXPECT_LT(left_edge("Command1"), left_edge("List2"));
  }
};

TEST_F(MirroredTest, TheArrowsOfTheBackupsStillPointToTheirList) {
  Player.Expect("Backup", [](QWidget& dialog) {
    ExpectListsInOrder(dialog);
    Click(dialog, "Command3");
  });
  Choose("FileBackup");
}

TEST_F(MirroredTest, TheArrowsOfTheManagerStillPointToTheirList) {
  System.FakeVolumes = {{"/", Folder.Path()}, {"iPod", Folder.Path()}};
  System.SystemVolume = "/";
  Folder.Write("Notes/note.txt", "x");
  Player.Expect("Manage", [](QWidget& dialog) {
    ExpectListsInOrder(dialog);
    Click(dialog, "Command4");
  });
  Choose("ToolsManage");
}

TEST_F(MirroredTest, WestStaysOnTheLeftOfThePlannersMap) {
  Choose("EditProjectPlanner");
  const QWidget& planner = TopWindow("Planner");
  const auto place = [&planner](const char* name) {
    return Find<QWidget>(planner, name).mapTo(&planner, QPoint());
  };
  EXPECT_LT(place("Text1_0").x(), place("Text1_1").x());
  EXPECT_LT(place("Check1_1").x(), place("Check2_1").x());
}

TEST_F(MirroredTest, TheProjectsNameIsSpoken) {
  EXPECT_EQ(Find<QWidget>(Window(), "Label7").accessibleName(), "Project name: Guide");
}

}  // namespace
}  // namespace tavrel::test
