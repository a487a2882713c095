#include "ui/ipod/manage_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

std::string NotAvailable(const std::string& drive) {
  return "Warning|critical|Drive " + drive + " not available!  |OK";
}

QStringList Drives(QWidget& dialog, const QString& list) {
  const auto& drives = Find<QComboBox>(dialog, list);
  QStringList names;
  for (int row = 0; row < drives.count(); ++row) names << drives.itemText(row);
  return names;
}

using ManageDrivesTest = ManageTest;

TEST_F(ManageDrivesTest, BothSidesListAllDrives) {
  AddDrive("A:");
  AddDrive("D:");
  System.NotReady = {"A:"};
  PlayManage([](QWidget& dialog) {
    EXPECT_EQ(Drives(dialog, "Drive1"), (QStringList{"c:", "A:", "D:"}));
    EXPECT_EQ(Drives(dialog, "Drive2"), (QStringList{"c:", "A:", "D:"}));
  });
}

TEST_F(ManageDrivesTest, AnotherDriveShowsItsTopmostFolderAndItsProjects) {
  const auto root = AddDrive("D:");
  fs::create_directory(root / "Remote");
  Disks.Write("D/note.TXT", "x");
  Disks.Write("D/picture.jpg", "x");
  PlayManage([&](QWidget& dialog) {
    ChooseDriveIn(dialog, "Drive2", "D:");
    ExpectSide(dialog, 2, "D:", root);
    ExpectSide(dialog, 1, "c:", Folder.Path());
    EXPECT_EQ(Rows(dialog, "File2"), QStringList{"note.TXT"});
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"Remote"});
    EXPECT_TRUE(Rows(dialog, "List1").empty());

    fs::create_directory(root / "Later");
    ChooseDriveIn(dialog, "Drive1", "D:");
    ExpectSide(dialog, 1, "D:", root);
    EXPECT_EQ(Rows(dialog, "File1"), QStringList{"note.TXT"});
    EXPECT_EQ(Rows(dialog, "List1"), (QStringList{"Later", "Remote"}));
    EXPECT_EQ(Rows(dialog, "List2"), (QStringList{"Later", "Remote"}));
  });
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectQuiet();
}

class NotReadyDriveTest : public ManageTest, public testing::WithParamInterface<int> {};

TEST_P(NotReadyDriveTest, SaysSoAndTheOldDriveComesBack) {
  const int side = GetParam();
  const QString drives = "Drive" + QString::number(side);
  AddDrive("A:");
  const auto root = AddDrive("D:");
  fs::create_directory(root / "below");
  PlayManage([&](QWidget& dialog) {
    ChooseDriveIn(dialog, drives, "D:");
    OpenFolderIn(dialog, "Dir" + QString::number(side), "below");
    System.NotReady = {"A:"};
    ChooseDriveIn(dialog, drives, "A:");
    EXPECT_EQ(Seen(Messages.Shown), Texts{NotAvailable("A:")});
    EXPECT_EQ(Messages.LastParent, &dialog);
    ExpectSide(dialog, side, "D:", root / "below");

    System.NotReady.clear();
    ChooseDriveIn(dialog, drives, "A:");
    ExpectSide(dialog, side, "A:", Disks.Path() / "A");
  });
  EXPECT_EQ(Messages.Shown.size(), 1U);
  ExpectQuiet();
}

INSTANTIATE_TEST_SUITE_P(Sides, NotReadyDriveTest, testing::Values(1, 2));

TEST_F(ManageDrivesTest, ADriveThatVanishedSaysSoToo) {
  const auto root = AddDrive("D:");
  PlayManage([&](QWidget& dialog) {
    fs::remove_all(root);
    ChooseDriveIn(dialog, "Drive2", "D:");
    ExpectSide(dialog, 2, "c:", Folder.Path());
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{NotAvailable("D:")});
}

TEST_F(ManageDrivesTest, OpeningAFolderReadsBothSidesAgain) {
  const auto notes = AddPod("E:");
  Folder.Write("below/Guide/z001.txt", "x");
  Folder.Write("below/here.txt", "x");
  Disks.Write("E/Notes/Songs/deep/z001.txt", "x");
  PlayManage([&](QWidget& dialog) {
    ShowTab(dialog, "Browser");
    fs::create_directory(notes / "Late");
    OpenFolderIn(dialog, "Dir1", "below");
    ExpectSide(dialog, 1, "c:", Folder.Path() / "below");
    EXPECT_EQ(Rows(dialog, "File1"), QStringList{"here.txt"});
    EXPECT_EQ(Rows(dialog, "List1"), QStringList{"Guide"});
    EXPECT_EQ(Rows(dialog, "List2"), (QStringList{"Late", "Songs"}));

    fs::create_directory(Folder.Path() / "below" / "New");
    OpenFolderIn(dialog, "Dir2", "Songs");
    ExpectSide(dialog, 2, "E:", notes / "Songs");
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"deep"});
    EXPECT_EQ(Rows(dialog, "List1"), (QStringList{"Guide", "New"}));
  });
}

TEST_F(ManageDrivesTest, ProjectsAreCopiedBetweenTheFoldersChosenByHand) {
  const auto root = AddDrive("D:");
  fs::create_directories(root / "Player" / "Notes");
  Folder.Write("below/Guide/z001.txt", "one");
  PlayManage([](QWidget& dialog) {
    OpenFolderIn(dialog, "Dir1", "below");
    ChooseDriveIn(dialog, "Drive2", "D:");
    OpenFolderIn(dialog, "Dir2", "Player");
    OpenFolderIn(dialog, "Dir2", "Notes");
    ShowTab(dialog, "Manager");
    ClickFor(dialog, "List1", "Guide", "Command2");
    ClickFor(dialog, "List1", "Guide", "Command5");
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"Guide"});
    ClickFor(dialog, "List2", "Guide", "Command1");
  });
  EXPECT_EQ(Disks.Read("D/Player/Notes/Guide/z001.txt"), "one");
  EXPECT_EQ(Folder.Read("below/Guide/z001.txt"), "one");
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Please confirm|question|Are you sure you want to delete...\r\n" +
                                        (Folder.Path() / "below" / "Guide").string() + "|OK/Cancel"});
  ExpectQuiet();
}

TEST_F(ManageDrivesTest, TheIpodsDriveCanBeLeftForItsTopmostFolder) {
  const auto notes = AddPod("E:");
  AddDrive("D:");
  PlayManage([&](QWidget& dialog) {
    ShowTab(dialog, "Browser");
    ChooseDriveIn(dialog, "Drive2", "D:");
    ChooseDriveIn(dialog, "Drive2", "E:");
    ExpectSide(dialog, 2, "E:", notes.parent_path());
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"Notes"});
  });
}

TEST_F(ManageDrivesTest, AFolderThatIsGoneIsNamedInAMessage) {
  fs::create_directory(Folder.Path() / "gone");
  PlayManage([this](QWidget& dialog) {
    fs::remove(Folder.Path() / "gone");
    OpenFolderIn(dialog, "Dir2", "gone");
    ExpectSide(dialog, 2, "c:", Folder.Path());
    EXPECT_TRUE(dialog.isVisible());
  });
  ASSERT_EQ(Messages.Shown.size(), 1U);
  EXPECT_EQ(LastMessage().Title, "Manage");
  EXPECT_NE(LastMessage().Text.find("gone\ncould not be opened"), std::string::npos);
  ExpectQuiet();
}

}  // namespace
}  // namespace tavrel::test
