#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/ipod/publish_test.h"

namespace tavrel::test {
namespace {

using PublishDialogTest = PublishTest;

TEST_F(PublishDialogTest, WithoutADocumentThereIsNothingToPublish) {
  Choose("ToolsPublish");
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Oops!|exclamation|Nothing to publish!    |OK"});
}

TEST_F(PublishDialogTest, ProposesTheDocumentsNameInTheProgramsFolder) {
  OpenDocument("Songs.dat", kSongs);
  PlayPublish([this](QWidget& dialog) {
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1").text(), "Songs");
    EXPECT_EQ(Find<QComboBox>(dialog, "Drive1").currentText(), "c:");
    EXPECT_EQ(Find<FolderList>(dialog, "Dir1").Path(), Folder.Path());
    EXPECT_EQ(Find<FileList>(dialog, "File1").Path(), Folder.Path());
    EXPECT_FALSE(Find<QCheckBox>(dialog, "Check1").isChecked());
    EXPECT_TRUE(Find<QCheckBox>(dialog, "Check2").isChecked());
    Click(dialog, "Command1");
  });
}

TEST_F(PublishDialogTest, FinishesWithAMessageAndCloses) {
  OpenDocument("Songs.dat", kSongs);
  PlayPublish([this](QWidget& dialog) {
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Messages.LastParent, &dialog);
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{kFinished});
}

TEST_F(PublishDialogTest, LeavesTheDocumentThePageAndTheCurrentFolderAlone) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 5);
  Publish();
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_EQ(Title().Bytes(), "Five");
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(PublishDialogTest, ThePageInTheEditorIsStoredBeforeTheDialogIsUpEvenIfItIsCancelled) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "edited");
  PlayPublish([this](QWidget& dialog) {
    EXPECT_EQ(State.Page(1), "<title>A</title><text>edited</text>");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(State.Page(1), "<title>A</title><text>edited</text>");
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrio);
}

TEST_F(PublishDialogTest, CancelEscAndTheFrameWriteNothing) {
  OpenDocument("Trio.dat", kTrio);
  const auto files = Folder.Files();
  PlayPublish([](QWidget& dialog) { Click(dialog, "Command1"); });
  PlayPublish([](QWidget& dialog) { PressKey(Find<QWidget>(dialog, "Text1"), Qt::Key_Escape); });
  PlayPublish([](QWidget& dialog) { dialog.close(); });
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_FALSE(Folder.Has("Trio"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(PublishDialogTest, EnterPublishesOnlyFromItsButton) {
  OpenDocument("Trio.dat", kTrio);
  PlayPublish([this](QWidget& dialog) {
    for (const char* control : {"Text1", "File1", "Check1", "Check2", "Drive1"}) {
      auto& widget = Find<QWidget>(dialog, control);
      widget.setFocus();
      PressKey(widget, Qt::Key_Return);
      ASSERT_TRUE(dialog.isVisible()) << control;
    }
    EXPECT_FALSE(Folder.Has("Trio"));
    auto& publish = Find<QWidget>(dialog, "Command2");
    publish.setFocus();
    PressKey(publish, Qt::Key_Return);
  });
  EXPECT_TRUE(Folder.Has("Trio/z001.txt"));
}

TEST_F(PublishDialogTest, ANameThatCleansToNothingIsWaitedFor) {
  OpenDocument("Trio.dat", kTrio);
  const auto files = Folder.Files();
  PlayPublish([](QWidget& dialog) {
    for (const char* name : {"?*.", "", "   "}) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command2");
      EXPECT_TRUE(dialog.isVisible()) << name;
    }
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(PublishDialogTest, EveryOpeningStartsAfresh) {
  OpenDocument("Trio.dat", kTrio);
  std::filesystem::create_directory(Folder.Path() / "below");
  PlayPublish([](QWidget& dialog) {
    Click(dialog, "Check1");
    Click(dialog, "Check2");
    TypeInto(dialog, "Text1", "Other");
    OpenFolder(dialog, "below");
    Click(dialog, "Command1");
  });
  PlayPublish([this](QWidget& dialog) {
    EXPECT_FALSE(Find<QCheckBox>(dialog, "Check1").isChecked());
    EXPECT_TRUE(Find<QCheckBox>(dialog, "Check2").isChecked());
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1").text(), "Trio");
    EXPECT_EQ(Find<FolderList>(dialog, "Dir1").Path(), Folder.Path());
    Click(dialog, "Command1");
  });
}

TEST_F(PublishDialogTest, ShowsItsCaptionsAndTips) {
  OpenDocument("Trio.dat", kTrio);
  PlayPublish([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Publish project");
    EXPECT_EQ(Find<QLabel>(dialog, "Label2").text(), "Publish as:");
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(),
              "Tip: Don't change anything, just click Publish, then connect the iPod and use Manage to "
              "download it.");
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1").toolTip(), "This will appear on the iPod Notes menu");
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check1").text(), "Add Notes menu link");
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check2").text(), "Background music");
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check2").toolTip(),
              "Don't go to Now Playing screen when a music link is selected");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").text(), "Publish");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").toolTip(), "Save project as iPod Notes");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").text(), "Cancel");
    Click(dialog, "Command1");
  });
}

TEST_F(PublishDialogTest, IsReachedByKeyboardAndScreenReaders) {
  OpenDocument("Trio.dat", kTrio);
  PlayPublish([](QWidget& dialog) {
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    EXPECT_EQ(TabOrder(dialog),
              (Texts{"Text1", "Drive1", "Dir1", "File1", "Check1", "Check2", "Command2", "Command1"}));
    Click(dialog, "Command1");
  });
}

}  // namespace
}  // namespace tavrel::test
