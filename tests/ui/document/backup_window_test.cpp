#include <QAbstractButton>
#include <QImage>
#include <QLabel>

#include "ui/controls/picture_area.h"
#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// The window of the backups: its face, its lists, its picture, and that it leaves the editor alone.
class BackupWindowTest : public DocumentTest, public testing::WithParamInterface<const char*> {
 protected:
  void PlayBackup(const Robot::Step& step) {
    Play("FileBackup", "Backup", [&](QWidget& dialog) {
      step(dialog);
      Click(dialog, "Command3");
      EXPECT_FALSE(dialog.isVisible());
    });
  }

  static QListWidget& Documents(const QWidget& dialog) { return Find<QListWidget>(dialog, "List1"); }
  static QListWidget& Backups(const QWidget& dialog) { return Find<QListWidget>(dialog, "List2"); }

  /// Writes a red picture where the window looks for one.
  static void WriteSkin(const fs::path& folder) {
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(QString::fromStdString((folder / "SkinBackup.jpg").string()), "JPEG", 100));
  }

  void SwitchSkinsOff() {
    Player.Expect("Skins", [](QWidget& dialog) {
      auto& box = Find<QAbstractButton>(dialog, "Check1");
      if (box.isChecked()) Click(box);
      Click(dialog, "Command1");
    });
    Choose("HelpCustomise");
    ASSERT_FALSE(State.UseSkin);
  }

  static bool HasPicture(const QWidget& dialog) {
    return !Find<PictureArea>(dialog, "Background").Picture().isNull();
  }

  /// The colour of the window's lower left corner, where no control lies.
  static QColor Corner(QWidget& dialog) {
    const QImage seen = dialog.grab().toImage();
    return seen.pixelColor(2, seen.height() - 3);
  }

  static bool IsRed(const QColor& colour) {
    return colour.red() > 200 && colour.green() < 55 && colour.blue() < 55;
  }
};

TEST_P(BackupWindowTest, BothMenuItemsOpenTheSameWindow) {
  Start();
  Play(GetParam(), "Backup", [this](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Backup and Restore");
    EXPECT_EQ(dialog.parentWidget(), &Window());
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Project files:");
    EXPECT_EQ(Find<QLabel>(dialog, "Label2").text(), "Backup files:");
    const QStringList captions = {"", "", "Close", "Back up all", "Restore all"};
    for (int button = 1; button <= 5; ++button) {
      EXPECT_EQ(Find<QAbstractButton>(dialog, QString("Command%1").arg(button)).text(), captions[button - 1]);
    }
    Click(dialog, "Command3");
    EXPECT_FALSE(dialog.isVisible());
  });
}

INSTANTIATE_TEST_SUITE_P(MenuItems, BackupWindowTest, testing::Values("FileBackup", "FileRestore"));

TEST_F(BackupWindowTest, ItsButtonsHaveTips) {
  PlayBackup([](QWidget& dialog) {
    const auto tip = [&dialog](const QString& name) { return Find<QWidget>(dialog, name).toolTip(); };
    EXPECT_EQ(tip("Command1"), "Make a backup of the selected project");
    EXPECT_EQ(tip("Command2"), "Restore backup, overwriting current project if it exists");
    EXPECT_EQ(tip("Command3"), "");
    EXPECT_EQ(tip("Command4"), "Copy all files to the Backup window");
    EXPECT_EQ(tip("Command5"), "Copy all files to the Project window");
    for (const char* name : {"Command1", "Command2"})
      EXPECT_FALSE(Find<QAbstractButton>(dialog, name).icon().isNull()) << name;
  });
}

TEST_F(BackupWindowTest, ListsFileNamesPaddedOrCutWithTheirDates) {
  for (const char* name :
       {"report.dat", "abcdefghijklmnopqrstuvwxyzabcd.dat", "report.bak", "abcdefghijklmnopqrstu.bak"}) {
    Folder.Write(name, "x");
    DateFile(name);
  }
  PlayBackup([](QWidget& dialog) {
    EXPECT_EQ(Rows(Documents(dialog)), (QStringList{"abcdefghijklmnopqrstuvwxy03-03-06",
                                                    "report.dat" + QString(15, ' ') + "03-03-06"}));
    EXPECT_EQ(Rows(Backups(dialog)), (QStringList{"abcdefghijklmnopqrstu.bak03-03-06",
                                                  "report.bak" + QString(15, ' ') + "03-03-06"}));
    for (const QListWidget* list : {&Documents(dialog), &Backups(dialog)}) {
      EXPECT_EQ(list->font().family(), "Courier New");
      EXPECT_TRUE(list->selectedItems().isEmpty());
    }
  });
}

TEST_F(BackupWindowTest, ListsDocumentsAndBackupsOnly) {
  for (const char* name : {"a.DAT", "b.dat", "b.BAK", "map.pln", "notes.txt", "in/c.dat", "c.dat.old"})
    Folder.Write(name, "x");
  fs::create_directory(Folder.Path() / "folder.bak");
  PlayBackup([](QWidget& dialog) {
    EXPECT_EQ(Documents(dialog).count(), 2);
    EXPECT_EQ(Backups(dialog).count(), 1);
  });
}

TEST_F(BackupWindowTest, ListsTheFolderAsItIsAtEachOpening) {
  PlayBackup([](QWidget& dialog) { EXPECT_EQ(Documents(dialog).count(), 0); });
  Folder.Write("Guide.dat", kGuide);
  PlayBackup([](QWidget& dialog) { EXPECT_EQ(Documents(dialog).count(), 1); });
}

TEST_F(BackupWindowTest, ReturnsToTheProgramsFolder) {
  Start();
  fs::current_path("/");
  PlayBackup([this](QWidget&) { EXPECT_EQ(fs::current_path(), Folder.Path()); });
}

TEST_F(BackupWindowTest, TheTabKeyFollowsTheEyeAndEveryControlHasAName) {
  Folder.Write("Guide.dat", kGuide);
  PlayBackup([](QWidget& dialog) {
    EXPECT_EQ(TabOrder(dialog),
              (Texts{"List1", "Command1", "Command2", "List2", "Command4", "Command5", "Command3"}));
    EXPECT_EQ(NamelessControls(dialog), Texts{});
  });
}

TEST_F(BackupWindowTest, EscAndTheFrameCloseIt) {
  Folder.Write("Guide.dat", kGuide);
  Start();
  const auto files = Folder.Files();
  for (const bool by_key : {true, false}) {
    Play("FileBackup", "Backup", [by_key](QWidget& dialog) {
      ClickListRow(Documents(dialog), "Guide");
      if (by_key) {
        PressKey(Documents(dialog), Qt::Key_Escape);
      } else {
        dialog.close();
      }
      EXPECT_FALSE(dialog.isVisible());
    });
  }
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(BackupWindowTest, EnterAndADoubleClickInAListDoNothing) {
  Folder.Write("Guide.dat", "document");
  Folder.Write("Guide.bak", "backup");
  Start();
  const auto files = Folder.Files();
  PlayBackup([](QWidget& dialog) {
    for (QListWidget* list : {&Documents(dialog), &Backups(dialog)}) {
      DoubleClickListRow(*list, "Guide");
      PressKey(*list, Qt::Key_Return);
      EXPECT_TRUE(dialog.isVisible());
    }
  });
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(BackupWindowTest, EnterPressesTheButtonThatHasTheFocus) {
  Folder.Write("Guide.dat", kGuide);
  PlayBackup([](QWidget& dialog) {
    auto& all = Find<QWidget>(dialog, "Command4");
    all.setFocus();
    PressKey(all, Qt::Key_Return);
  });
  EXPECT_EQ(Folder.Read("Guide.bak"), kGuide);
}

TEST_F(BackupWindowTest, RestoringTheOpenDocumentDoesNotTouchTheEditor) {
  OpenDocument("Guide.dat", kGuide);
  Folder.Write("Guide.bak", kTrio);
  PlayBackup([this](QWidget& dialog) {
    ClickListRow(Backups(dialog), "Guide");
    Click(dialog, "Command2");
    EXPECT_EQ(Folder.Read("Guide.dat"), kTrio);
  });
  ExpectDocument("Guide");
  EXPECT_EQ(Title().Bytes(), "One");
  EXPECT_EQ(Body().Bytes(), "Alpha");
  EXPECT_EQ(PagesGrid().TextMatrix(999, 1), "Last");
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(BackupWindowTest, BackingUpTheOpenDocumentCopiesItsFileNotItsFields) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Body(), "typed");
  PlayBackup([](QWidget& dialog) { Click(dialog, "Command4"); });
  EXPECT_EQ(Folder.Read("Guide.bak"), kGuide);
  EXPECT_EQ(Body().Bytes(), "typed");
}

TEST_F(BackupWindowTest, WithoutAPictureItsBackgroundIsPlain) {
  PlayBackup([](QWidget& dialog) {
    EXPECT_FALSE(HasPicture(dialog));
    EXPECT_FALSE(IsRed(Corner(dialog)));
  });
}

TEST_F(BackupWindowTest, ItsPictureIsShownEvenWithSkinsSwitchedOff) {
  WriteSkin(Folder.Path());
  SwitchSkinsOff();
  PlayBackup([](QWidget& dialog) {
    EXPECT_TRUE(HasPicture(dialog));
    EXPECT_TRUE(IsRed(Corner(dialog)));
  });
}

TEST_F(BackupWindowTest, AFileThatIsNoPictureLeavesThePlainBackground) {
  Folder.Write("SkinBackup.jpg", "not a picture");
  PlayBackup([](QWidget& dialog) { EXPECT_FALSE(HasPicture(dialog)); });
  EXPECT_TRUE(Program.Failures.empty());
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(BackupWindowTest, ItsPictureIsLookedForBeforeItReturnsToTheProgramsFolder) {
  Folder.Write("elsewhere/keep.txt", "x");
  WriteSkin(Folder.Path() / "elsewhere");
  Start();
  fs::current_path(Folder.Path() / "elsewhere");
  PlayBackup([this](QWidget& dialog) {
    EXPECT_TRUE(HasPicture(dialog));
    EXPECT_EQ(fs::current_path(), Folder.Path());
  });
}

}  // namespace
}  // namespace tavrel::test
