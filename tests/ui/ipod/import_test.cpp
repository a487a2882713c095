#include "ui/ipod/import_test.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>

#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"

namespace tavrel::test {
namespace {

const std::string kTrioImported =
    "\r\n"
    " 1 ,<title>-A</title><text> <p><p>one<p> </text><link></link>\r\n"
    " 2 ,<title>B</title><text> <p><p>two<p> </text><link></link>\r\n"
    " 3 ,<title>C</title><text> <p><p>three<p> </text><link></link>\r\n";

class ImportDialogTest : public ImportTest {
 protected:
  void ExpectNoDocument() {
    EXPECT_TRUE(State.DocPath.empty());
    EXPECT_TRUE(Find<QWidget>(Window(), "Picture1").isVisible());
    EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
  }

  void ExpectDocument(const QString& name) {
    EXPECT_EQ(State.DocPath, (name + ".dat").toStdString());
    EXPECT_EQ(Find<QLabel>(Window(), "Label7").text(), name);
    EXPECT_FALSE(Find<QWidget>(Window(), "Picture1").isVisible());
    EXPECT_TRUE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
  }

  static void ExpectShown(QWidget& dialog, const QString& drive, const std::filesystem::path& folder) {
    EXPECT_EQ(Find<QComboBox>(dialog, "Drive1").currentText(), drive);
    EXPECT_EQ(Find<FolderList>(dialog, "Dir1").Path(), folder);
    EXPECT_EQ(Find<FileList>(dialog, "File1").Path(), folder);
  }

  TemporaryFolder Disk;
};

TEST_F(ImportDialogTest, ADocumentInMemoryIsNotErasedWithoutAQuestion) {
  OpenDocument("Guide.dat", kGuide);
  const auto files = Folder.Files();
  TypeInto(Body(), "typed");
  Messages.Answers = {false};
  Choose("ToolsImport");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kImportQuestion});
  ExpectDocument("Guide");
  EXPECT_EQ(Body().Bytes(), "typed");
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(ImportDialogTest, WithoutADocumentNothingIsAsked) {
  PlayImport([](QWidget& dialog) { Click(dialog, "Command1"); });
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectNoDocument();
}

TEST_F(ImportDialogTest, CancelEscAndTheFrameLeaveNoDocumentButKeepThePagesInMemory) {
  const std::vector<Robot::Step> ways = {
      [](QWidget& dialog) { Click(dialog, "Command1"); },
      [](QWidget& dialog) { PressKey(Find<QWidget>(dialog, "Dir1"), Qt::Key_Escape); },
      [](QWidget& dialog) { dialog.close(); },
  };
  for (const Robot::Step& leave : ways) {
    OpenDocument("Guide.dat", kGuide);
    const std::string page_1 = State.Page(1);
    Messages.Shown.clear();
    PlayImport(leave);
    ExpectNoDocument();
    EXPECT_EQ(State.Page(1), page_1);
    EXPECT_EQ(State.Page(999), "<title>Last</title><text>Omega</text>");
    EXPECT_EQ(Seen(Messages.Shown), Texts{kImportQuestion});
    EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  }
  EXPECT_EQ(Window().windowTitle(), "Tavrel Writer");
}

TEST_F(ImportDialogTest, TheDocumentIsClosedAlreadyWhileTheDialogIsUp) {
  OpenDocument("Guide.dat", kGuide);
  PlayImport([this](QWidget& dialog) {
    EXPECT_TRUE(State.DocPath.empty());
    Click(dialog, "Command1");
  });
  Messages.Shown.clear();
  Choose("FileSave");
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Oops!|exclamation|Nothing to save!    |OK"});
}

TEST_F(ImportDialogTest, WhatWasTypedIsNotStored) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "typed");
  PlayImport([](QWidget& dialog) { Click(dialog, "Command1"); });
  EXPECT_EQ(State.Page(1), "<title>A</title><text>one</text>");
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrio);
}

TEST_F(ImportDialogTest, APublishedProjectComesBackAndPage1IsShown) {
  OpenDocument("Trio.dat", kTrio);
  Publish({"Check2"});
  ClickRow(PagesGrid(), 3);
  Messages.Shown.clear();
  ImportFolder("Trio");
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kImportQuestion, ImportFinished("3")}));
  EXPECT_EQ(Messages.LastParent, &Window());
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrioImported);
  ExpectDocument("Trio");
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(Title().Bytes(), "-A");
  EXPECT_EQ(Body().Bytes(), " \r\n\r\none\r\n ");
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ImportDialogTest, AnImportedPageLosesItsOuterBlanksWhenItIsStored) {
  OpenDocument("Trio.dat", kTrio);
  Publish({"Check2"});
  ImportFolder("Trio");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>-A</title><text><p><p>one<p></text>\r\n"
            " 2 ,<title>B</title><text> <p><p>two<p> </text><link></link>\r\n"
            " 3 ,<title>C</title><text> <p><p>three<p> </text><link></link>\r\n");
}

TEST_F(ImportDialogTest, TheDocumentsFileIsReplacedWithoutAQuestion) {
  Folder.Write("Notes.dat", "old");
  EXPECT_EQ(Imported({{"a.txt", "new"}}), "\r\n 1 ,<text> new<p> </text><link></link>\r\n");
  EXPECT_EQ(Seen(Messages.Shown), Texts{ImportFinished("1")});
}

TEST_F(ImportDialogTest, AllPagesAndMusicLinksOfTheOldDocumentGo) {
  OpenDocument("Songs.dat", kSongs);
  EXPECT_EQ(Imported({{"a.txt", "new"}}), "\r\n 1 ,<text> new<p> </text><link></link>\r\n");
  EXPECT_TRUE(State.Page(2).empty());
  EXPECT_TRUE(State.MusicLink(3).empty());
}

TEST_F(ImportDialogTest, AFolderWithoutNotesMakesAnEmptyDocument) {
  Folder.Write("Notes/picture.jpg", "x");
  EXPECT_EQ(Imported({}), "\r\n");
  EXPECT_EQ(Seen(Messages.Shown), Texts{ImportFinished("1")});
  ExpectDocument("Notes");
}

TEST_F(ImportDialogTest, TheFolderGivesTheNameAsItIs) {
  Folder.Write(std::filesystem::path(u8"A & B caf\u00e9.new/a.txt"), "x");
  const QString name = QString::fromUtf8("A & B caf\u00e9.new");
  ImportFolder(name);
  EXPECT_EQ(Find<QLabel>(Window(), "Label7").text(), name);
  EXPECT_TRUE(Folder.Has(std::filesystem::path(u8"A & B caf\u00e9.new.dat")));
}

TEST_F(ImportDialogTest, OpensInTheProgramsFolder) {
  Folder.Write("loose.txt", "x");
  PlayImport([this](QWidget& dialog) {
    ExpectShown(dialog, "c:", Folder.Path());
    EXPECT_EQ(Rows(dialog, "File1"), QStringList{"loose.txt"});
    Click(dialog, "Command1");
  });
}

TEST_F(ImportDialogTest, ADoubleClickOrEnterOpensAFolderAndNothingLess) {
  Folder.Write("Notes/deep/a.txt", "x");
  PlayImport([this](QWidget& dialog) {
    auto& folders = Find<QListWidget>(dialog, "Dir1");
    ClickListRow(folders, FolderRow(folders, "Notes"));
    ExpectShown(dialog, "c:", Folder.Path());
    PressKey(folders, Qt::Key_Return);
    ExpectShown(dialog, "c:", Folder.Path() / "Notes");
    EXPECT_TRUE(Rows(dialog, "File1").empty());
    OpenFolder(dialog, "deep");
    ExpectShown(dialog, "c:", Folder.Path() / "Notes" / "deep");
    EXPECT_EQ(Rows(dialog, "File1"), QStringList{"a.txt"});
    ASSERT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Folder.Read("deep.dat"), "\r\n 1 ,<text> x<p> </text><link></link>\r\n");
}

TEST_F(ImportDialogTest, AFolderOnAnotherDriveBecomesADocumentInTheProgramsFolder) {
  System.FakeVolumes.push_back({"D:", Disk.Path()});
  Disk.Write("Album/a.txt", "x");
  PlayImport([this](QWidget& dialog) {
    ChooseDrive(dialog, "D:");
    ExpectShown(dialog, "D:", Disk.Path());
    OpenFolder(dialog, "Album");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Folder.Read("Album.dat"), "\r\n 1 ,<text> x<p> </text><link></link>\r\n");
  EXPECT_EQ(Disk.Files().size(), 1U);
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
}

TEST_F(ImportDialogTest, ADriveThatIsNotReadySaysSoAndTheOldOneComesBack) {
  System.FakeVolumes.push_back({"D:", Disk.Path()});
  System.NotReady = {"D:"};
  Folder.Write("Notes/a.txt", "x");
  PlayImport([this](QWidget& dialog) {
    OpenFolder(dialog, "Notes");
    ChooseDrive(dialog, "D:");
    EXPECT_EQ(Seen(Messages.Shown), Texts{kNotAvailable});
    EXPECT_EQ(Messages.LastParent, &dialog);
    ExpectShown(dialog, "c:", Folder.Path() / "Notes");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kNotAvailable, ImportFinished("1")}));
  ExpectDocument("Notes");
}

TEST_F(ImportDialogTest, TheProgressIsShownWhileNotesAreRead) {
  for (const char* note : {"a.txt", "b.txt", "c.txt"}) Folder.Write(std::string("Notes/") + note, "x");
  PlayImport([](QWidget& dialog) {
    OpenFolder(dialog, "Notes");
    auto& line = Find<QProgressBar>(dialog, "Progress");
    EXPECT_FALSE(line.isVisible());
    ProgressWatcher watcher(line);
    Click(dialog, "Command2");
    EXPECT_EQ(watcher.TimesShown, 1);
    EXPECT_TRUE(watcher.AlwaysWithHourglass);
    EXPECT_EQ(line.value(), 3);
    EXPECT_EQ(line.maximum(), 3);
  });
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ImportDialogTest, ShowsItsCaptionsAndTips) {
  PlayImport([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Import");
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Files to import:");
    EXPECT_EQ(Find<QPushButton>(dialog, "Command2").text(), "Import");
    EXPECT_EQ(Find<QPushButton>(dialog, "Command2").toolTip(), "Create a new project and import text files");
    EXPECT_EQ(Find<QPushButton>(dialog, "Command1").text(), "Cancel");
    EXPECT_TRUE(Find<QPushButton>(dialog, "Command1").toolTip().isEmpty());
    Click(dialog, "Command1");
  });
}

TEST_F(ImportDialogTest, IsReachedByKeyboardAndScreenReaders) {
  PlayImport([](QWidget& dialog) {
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    EXPECT_EQ(TabOrder(dialog), (Texts{"Drive1", "Dir1", "File1", "Command2", "Command1"}));
    Click(dialog, "Command1");
  });
}

TEST_F(ImportDialogTest, TheKeyboardAloneImports) {
  Folder.Write("Notes/a.txt", "x");
  PlayImport([](QWidget& dialog) {
    ActivateWindow(dialog);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Down, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Tab}) {
      PressKey(*dialog.focusWidget(), key);
      ASSERT_TRUE(dialog.isVisible());
    }
    PressKey(*dialog.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  ExpectDocument("Notes");
}

}  // namespace
}  // namespace tavrel::test
