#include <QAbstractButton>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

class DeleteDocTest : public DocumentTest {
 protected:
  void PlayDelete(const Robot::Step& step) { Play("FileDelete", "DeleteDoc", step); }

  void Delete(const QString& name) {
    PlayDelete([&](QWidget& dialog) {
      ClickListRow(Find<QListWidget>(dialog, "List1"), name);
      Click(dialog, "Command1");
    });
  }
};

TEST_F(DeleteDocTest, DeletesTheDocumentAndItsBackupWithoutAQuestion) {
  for (const char* name : {"Guide.dat", "Guide.bak", "Guide.pln", "Guide2.bak"}) Folder.Write(name, "x");
  Delete("Guide");
  EXPECT_FALSE(Folder.Has("Guide.dat"));
  EXPECT_FALSE(Folder.Has("Guide.bak"));
  EXPECT_TRUE(Folder.Has("Guide.pln"));
  EXPECT_TRUE(Folder.Has("Guide2.bak"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(DeleteDocTest, OnlyTheExtensionOfABackupDiffers) {
  for (const char* name : {"my.notes.dat", "my.notes.bak", "my.bak"}) Folder.Write(name, "x");
  Delete("my.notes");
  EXPECT_FALSE(Folder.Has("my.notes.dat"));
  EXPECT_FALSE(Folder.Has("my.notes.bak"));
  EXPECT_TRUE(Folder.Has("my.bak"));
}

TEST_F(DeleteDocTest, ADocumentWithoutABackupGoes) {
  Folder.Write("Guide.dat", kGuide);
  Delete("Guide");
  EXPECT_FALSE(Folder.Has("Guide.dat"));
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(DeleteDocTest, AFileThatHasGoneMeanwhileIsNoError) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", kGuide);
  PlayDelete([this](QWidget& dialog) {
    std::filesystem::remove(Folder.Path() / "Guide.dat");
    ClickListRow(Find<QListWidget>(dialog, "List1"), "Guide");
    Click(dialog, "Command1");
  });
  EXPECT_FALSE(Folder.Has("Guide.bak"));
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(DeleteDocTest, DeleteWithoutASelectionWaits) {
  Folder.Write("Guide.dat", kGuide);
  PlayDelete([](QWidget& dialog) {
    Click(dialog, "Command1");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  EXPECT_TRUE(Folder.Has("Guide.dat"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(DeleteDocTest, ADoubleClickDeletes) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Trio.dat", kTrio);
  PlayDelete([](QWidget& dialog) { DoubleClickListRow(Find<QListWidget>(dialog, "List1"), "Trio"); });
  EXPECT_FALSE(Folder.Has("Trio.dat"));
  EXPECT_TRUE(Folder.Has("Guide.dat"));
}

TEST_F(DeleteDocTest, CancelEscAndTheFrameDeleteNothing) {
  Folder.Write("Guide.dat", kGuide);
  const std::vector<Robot::Step> ways = {[](QWidget& dialog) { Click(dialog, "Command2"); },
                                         [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); },
                                         [](QWidget& dialog) { dialog.close(); }};
  for (const Robot::Step& leave : ways) {
    PlayDelete([&](QWidget& dialog) {
      ClickListRow(Find<QListWidget>(dialog, "List1"), "Guide");
      leave(dialog);
    });
  }
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(DeleteDocTest, EnterInTheListDeletesNothing) {
  Folder.Write("Guide.dat", kGuide);
  PlayDelete([](QWidget& dialog) {
    auto& list = Find<QListWidget>(dialog, "List1");
    ClickListRow(list, "Guide");
    PressKey(list, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  EXPECT_TRUE(Folder.Has("Guide.dat"));
}

TEST_F(DeleteDocTest, TheOpenDocumentStaysOpenAndSaveWritesItsFileAgain) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 5);
  Delete("Guide");
  EXPECT_FALSE(Folder.Has("Guide.dat"));
  ExpectDocument("Guide");
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_EQ(Title().Bytes(), "Five");
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(DeleteDocTest, NeedsNoOpenDocumentAndAsksNothingOfAnOpenOne) {
  Folder.Write("Guide.dat", kGuide);
  OpenDocument("Trio.dat", kTrio);
  Delete("Guide");
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectDocument("Trio");
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrio);
}

TEST_F(DeleteDocTest, ShowsItsCaptions) {
  PlayDelete([](QWidget& dialog) {
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").text(), "Delete");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").text(), "Cancel");
    EXPECT_EQ(TabOrder(dialog), (Texts{"List1", "Command1", "Command2"}));
    Click(dialog, "Command2");
  });
}

}  // namespace
}  // namespace tavrel::test
