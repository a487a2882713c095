#include "ui/ipod/manage_test.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace tavrel::test {
namespace {

class ManageDialogTest : public ManageTest {
 protected:
  /// The dialog has found no iPod: it shows the topmost folder of the system's drive.
  static void ExpectNoPod(QWidget& dialog, const QString& drive, const std::filesystem::path& root) {
    EXPECT_EQ(ShownTab(dialog), "Browser");
    EXPECT_EQ(Find<QLabel>(dialog, "Label1_1").text(), " Remote folders:");
    ExpectSide(dialog, 2, drive, root);
  }

  static void ExpectPod(QWidget& dialog, const QString& drive, const std::filesystem::path& notes) {
    EXPECT_EQ(ShownTab(dialog), "Manager");
    EXPECT_EQ(Find<QLabel>(dialog, "Label1_1").text(), " iPod folders: ");
    ExpectSide(dialog, 2, drive, notes);
  }
};

TEST_F(ManageDialogTest, WithoutAnIpodTheBrowserShowsTheSystemsDrive) {
  System.FakeVolumes = {{"b:", Folder.Path()}};
  const auto root = AddDrive("c:");
  AddDrive("d:");
  PlayManage([&](QWidget& dialog) {
    ExpectNoPod(dialog, "c:", root);
    ExpectSide(dialog, 1, "b:", Folder.Path());
  });
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectQuiet();
}

TEST_F(ManageDialogTest, TheLastDriveWithNotesIsTaken) {
  AddPod("E:");
  const auto notes = AddPod("F:");
  AddDrive("G:");
  std::filesystem::create_directory(notes / "Guide");
  PlayManage([&](QWidget& dialog) {
    ExpectPod(dialog, "F:", notes);
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"Guide"});
  });
}

TEST_F(ManageDialogTest, TheSystemsDriveAloneIsNoIpod) {
  std::filesystem::create_directory(Folder.Path() / "Notes");
  PlayManage([&](QWidget& dialog) { ExpectNoPod(dialog, "c:", Folder.Path()); });
}

TEST_F(ManageDialogTest, TheSystemsDriveAsTheLastOneHidesTheIpodBeforeIt) {
  System.FakeVolumes.clear();
  AddPod("A:");
  const auto notes = AddPod("c:");
  PlayManage([&](QWidget& dialog) { ExpectNoPod(dialog, "c:", notes.parent_path()); });
}

TEST_F(ManageDialogTest, AnIpodBehindTheSystemsDriveIsTaken) {
  std::filesystem::create_directory(Folder.Path() / "Notes");
  const auto notes = AddPod("E:");
  AddDrive("G:");
  PlayManage([&](QWidget& dialog) { ExpectPod(dialog, "E:", notes); });
}

TEST_F(ManageDialogTest, AFileNamedNotesIsNoIpod) {
  AddDrive("E:");
  Disks.Write("E/Notes", "a file");
  PlayManage([&](QWidget& dialog) { ExpectNoPod(dialog, "c:", Folder.Path()); });
}

TEST_F(ManageDialogTest, ADriveThatIsNotReadyIsPassedOverWithoutAWord) {
  const auto notes = AddPod("E:");
  AddPod("F:");
  System.NotReady = {"F:"};
  PlayManage([&](QWidget& dialog) { ExpectPod(dialog, "E:", notes); });
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(ManageDialogTest, TheIpodIsSearchedForAtEveryOpening) {
  PlayManage([&](QWidget& dialog) { ExpectNoPod(dialog, "c:", Folder.Path()); });
  const auto first = AddPod("E:");
  PlayManage([&](QWidget& dialog) {
    ExpectPod(dialog, "E:", first);
    ShowTab(dialog, "Browser");
    OpenFolderIn(dialog, "Dir2", "E");
  });
  PlayManage([&](QWidget& dialog) { ExpectPod(dialog, "E:", first); });
  const auto second = AddPod("F:");
  PlayManage([&](QWidget& dialog) { ExpectPod(dialog, "F:", second); });
  System.FakeVolumes.resize(1);
  PlayManage([&](QWidget& dialog) {
    ExpectNoPod(dialog, "c:", Folder.Path());
    EXPECT_EQ(Find<QComboBox>(dialog, "Drive2").count(), 1);
  });
}

TEST_F(ManageDialogTest, OpensWithADocumentAndLeavesItAlone) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Body(), "typed");
  PlayManage([](QWidget&) {});
  EXPECT_EQ(State.DocPath, "Guide.dat");
  EXPECT_EQ(Body().Bytes(), "typed");
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(ManageDialogTest, OpensWithoutADocument) {
  PlayManage([](QWidget& dialog) { EXPECT_TRUE(dialog.isVisible()); });
  EXPECT_TRUE(State.DocPath.empty());
  EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
}

TEST_F(ManageDialogTest, ListsTheFoldersOfBothSidesByNameAlone) {
  const auto notes = AddPod("E:");
  for (const char* name : {"zebra/deep", "Apple", ".hidden", "banana"}) {
    std::filesystem::create_directories(Folder.Path() / name);
    std::filesystem::create_directories(notes / ("i" + std::string(name)));
  }
  Folder.Write("file.txt", "x");
  PlayManage([](QWidget& dialog) {
    EXPECT_EQ(Rows(dialog, "List1"), (QStringList{"Apple", "banana", "zebra"}));
    EXPECT_EQ(Rows(dialog, "List2"), (QStringList{"i.hidden", "iApple", "ibanana", "izebra"}));
  });
}

TEST_F(ManageDialogTest, CloseEscAndTheFrameClose) {
  const auto notes = AddPod("E:");
  Folder.Write("Guide/z001.txt", "1");
  Start();
  const auto files = Folder.Files();
  const std::vector<Robot::Step> ways = {
      [](QWidget& dialog) { Click(dialog, "Command4"); },
      [](QWidget& dialog) { PressKey(Find<QWidget>(dialog, "List1"), Qt::Key_Escape); },
      [](QWidget& dialog) { dialog.close(); },
  };
  for (const Robot::Step& leave : ways) {
    PlayManage([&](QWidget& dialog) {
      ClickListRow(Find<QListWidget>(dialog, "List1"), "Guide");
      leave(dialog);
      EXPECT_FALSE(dialog.isVisible());
    });
  }
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(std::filesystem::is_empty(notes));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(ManageDialogTest, ShowsItsCaptionsAndTips) {
  PlayManage([](QWidget& dialog) {
    const auto text = [&](const char* name) { return Find<QLabel>(dialog, name).text(); };
    const auto button = [&](const char* name) {
      const auto& found = Find<QPushButton>(dialog, name);
      return found.text() + "|" + found.toolTip();
    };
    EXPECT_EQ(Find<QTabWidget>(dialog, "SSTab1").tabText(0), "Manager");
    EXPECT_EQ(Find<QTabWidget>(dialog, "SSTab1").tabText(1), "Browser");
    EXPECT_EQ(text("Label1_0"), "Local folders:");
    EXPECT_EQ(text("Label1_2"), "Local folders:");
    EXPECT_EQ(text("Label1_3"), "Remote folders:");
    EXPECT_EQ(
        text("Label3"),
        "Select a published project on the left and click the arrow to copy it to the iPod on the right "
        "(when connected). It will then appear on the iPod's Notes menu.");
    EXPECT_EQ(text("Label2"),
              "The Browser appears if the iPod is not connected or detected. If it is connected, manually "
              "select the iPod on the right and open the Notes folder.");
    EXPECT_EQ(button("Command2"), "|Copy file from Local to Remote storage");
    EXPECT_EQ(button("Command1"), "|Copy the folder from Remote to Local storage");
    EXPECT_EQ(button("Command5"), "Delete|Delete the file selected above");
    EXPECT_EQ(button("Command6"), "Delete|Delete the file selected above");
    EXPECT_EQ(button("Command4"), "Close|Close Manager");
    EXPECT_FALSE(Find<QPushButton>(dialog, "Command1").icon().isNull());
    EXPECT_FALSE(Find<QPushButton>(dialog, "Command2").icon().isNull());
  });
}

TEST_F(ManageDialogTest, BothTabsAreReachedByKeyboardAndScreenReaders) {
  AddPod("E:");
  PlayManage([](QWidget& dialog) {
    auto& tabs = *Find<QTabWidget>(dialog, "SSTab1").tabBar();
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    tabs.setFocus();
    const std::string bar = tabs.objectName().toStdString();
    EXPECT_EQ(TabOrder(dialog),
              (Texts{bar, "List1", "Command2", "Command1", "List2", "Command5", "Command6", "Command4"}));
    tabs.setFocus();
    PressKey(tabs, Qt::Key_Right);
    EXPECT_EQ(ShownTab(dialog), "Browser");
    EXPECT_EQ(TabOrder(dialog),
              (Texts{bar, "Drive1", "Dir1", "File1", "Drive2", "Dir2", "File2", "Command4"}));
  });
}

TEST_F(ManageDialogTest, TheKeyboardAloneCopiesAFolder) {
  AddPod("E:");
  Folder.Write("Guide/z001.txt", "1");
  PlayManage([](QWidget& dialog) {
    auto& list = Find<QWidget>(dialog, "List1");
    constexpr int kMostSteps = 5;
    for (int step = 0; dialog.focusWidget() != &list && step < kMostSteps; ++step)
      PressKey(*dialog.focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(dialog.focusWidget(), &list);
    PressKey(list, Qt::Key_Space);
    PressKey(list, Qt::Key_Tab);
    PressKey(*dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    PressKey(*dialog.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_TRUE(Disks.Has("E/Notes/Guide/z001.txt"));
}

}  // namespace
}  // namespace tavrel::test
