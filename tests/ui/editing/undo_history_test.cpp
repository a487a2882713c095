#include <QListWidget>
#include <QMenu>
#include <QTest>

#include <map>
#include <utility>
#include <vector>

#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// How long the history reaches back.
class UndoHistoryTest : public UndoTest {
 protected:
  void SetUp() override {
    OpenWorld();
    ClearPage5();
  }

  void ExpectNoHistory() {
    const std::string document = Document();
    EXPECT_EQ(UndoItem(), "Undo (grey)");
    EXPECT_EQ(RedoItem(), "Redo (grey)");
    PressUndo();
    PressRedo();
    PressOtherRedo();
    EXPECT_EQ(Document(), document);
    EXPECT_EQ(Told(), "");
  }

  /// Without a document the keys do nothing.
  void ExpectCover() {
    const std::string document = Document();
    EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
    QWidget& focus = Window().focusWidget() != nullptr ? *Window().focusWidget() : Window();
    PressKey(focus, Qt::Key_Z, Qt::ControlModifier);
    PressKey(focus, Qt::Key_Y, Qt::ControlModifier);
    PressKey(focus, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Document(), document);
    EXPECT_TRUE(Program.Failures.empty());
  }

  void ExpectStillThere() {
    EXPECT_EQ(UndoItem(), "Undo Clear page 5");
    PressUndo();
    EXPECT_NE(State.Page(5), "");
    EXPECT_EQ(RedoItem(), "Redo Clear page 5");
    PressRedo();
    EXPECT_EQ(State.Page(5), "");
  }
};

TEST_F(UndoHistoryTest, OpeningTheSavedProjectAgainStartsAnother) {
  PressUndo();
  Choose("FileSave");
  Choose("FileClose");
  ExpectCover();
  OpenExisting("World.dat");
  ExpectNoHistory();
  Choose("EditClear");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Clear page 1. The project is as you saved it.");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoHistoryTest, OpeningAProjectOverThisOneStartsAnother) {
  OpenDocument("Trio.dat", kTrio);
  ExpectNoHistory();
}

TEST_F(UndoHistoryTest, OpeningAProjectWhileStepsAreTakenBackStartsAnother) {
  PressUndo();
  OpenDocument("Trio.dat", kTrio);
  ExpectNoHistory();
}

TEST_F(UndoHistoryTest, ANewProjectStartsAnother) {
  Answer("FileNew", "NewDoc", {"Fresh"}, "Command1");
  EXPECT_EQ(State.DocPath, "Fresh.dat");
  ExpectNoHistory();
}

TEST_F(UndoHistoryTest, AnImportStartsAnother) {
  Folder.Write("Notes/z001.txt", "A note");
  Player.Expect("Import", [](QWidget& dialog) {
    auto& folders = Find<QListWidget>(dialog, "Dir1");
    DoubleClickListRow(folders, folders.item(folders.count() - 1)->text());
    Click(dialog, "Command2");
  });
  Choose("ToolsImport");
  EXPECT_EQ(State.DocPath, "Notes.dat");
  ExpectNoHistory();
}

TEST_F(UndoHistoryTest, ClosingEndsIt) {
  Choose("FileClose");
  ExpectCover();
}

TEST_F(UndoHistoryTest, QuestionsAnsweredWithCancelKeepIt) {
  for (const char* command : {"FileNew", "FileOpen", "FileClose", "ToolsImport", "FileExit"}) {
    SCOPED_TRACE(command);
    Messages.Answers = {false};
    Choose(command);
    ExpectStillThere();
  }
}

TEST_F(UndoHistoryTest, DialogsLeftWithCancelAfterTheQuestionEndIt) {
  const std::vector<std::pair<const char*, const char*>> dialogs = {
      {"FileNew", "NewDoc"}, {"FileOpen", "OpenDoc"}, {"ToolsImport", "Import"}};
  for (const auto& [command, dialog] : dialogs) {
    SCOPED_TRACE(command);
    Player.Expect(dialog, [](QWidget& window) { window.close(); });
    Choose(command);
    ExpectCover();
    OpenExisting("World.dat");
    ExpectNoHistory();
    Choose("EditClear");
  }
}

TEST_F(UndoHistoryTest, PublishingKeepsIt) {
  TypeInto(Title(), "T");
  Answer("ToolsPublish", "Publish", {}, "Command2");
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Edit page 2");
  ExpectStillThere();
}

TEST_F(UndoHistoryTest, WindowsThatDoNotEditKeepIt) {
  for (const auto& [command, dialog] : {std::pair("FileBackup", "Backup"),
                                        {"FileDelete", "DeleteDoc"},
                                        {"ToolsManage", "Manage"},
                                        {"HelpCustomise", "Skins"}}) {
    Player.Expect(dialog, [](QWidget& window) { window.close(); });
    Choose(command);
  }
  ExpectStillThere();
}

TEST_F(UndoHistoryTest, RefusedBlocksLeaveNoStep) {
  const std::map<QString, QStringList> refused = {{"BlockCopy", {"1", "3", "2"}},
                                                  {"BlockClear", {"0", "3"}},
                                                  {"BlockDelete", {"999", "3"}},
                                                  {"BlockInsert", {"3", "51"}}};
  for (const auto& block : refused) {
    Player.Expect(block.first, [&block](QWidget& dialog) {
      int field = 0;
      for (const QString& number : block.second) TypeInto(dialog, QString("Text%1").arg(++field), number);
      Click(dialog, "Command2");
      EXPECT_TRUE(dialog.isVisible());
      Click(dialog, "Command1");
    });
    Choose("Edit" + block.first);
  }
  ExpectStillThere();
}

TEST_F(UndoHistoryTest, APlanThatIsNotInsertedLeavesNoStep) {
  Messages.Answers = {false};
  InsertPlan();
  EXPECT_EQ(State.Page(2), kWorldPage2);
  ExpectStillThere();
}

TEST_F(UndoHistoryTest, ACommandThatFailsDoesNotTurnUpLater) {
  State.FindText = "Omega";
  Show(999);
  // The search goes on behind the last page and cannot show what it finds there.
  State.Pages[1000] = "<text>Omega</text>";
  Show(998);
  Choose("EditFindNext");
  EXPECT_EQ(Program.Failures.size(), 1U);
  Choose("EditUndo");
  EXPECT_NE(State.Page(5), "");
}

TEST_F(UndoHistoryTest, WhatTheMenuSaidDoesNotBindTheKeys) {
  PressUndo();
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  TypeInto(Title(), "T");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Five");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "T");
}

TEST_F(UndoHistoryTest, TheMenuReachedWithTheAltKeyNamesWhatTheFieldTakesBack) {
  TypeInto(Title(), "T");
  PressKey(Title(), Qt::Key_E, Qt::AltModifier);
  EXPECT_EQ(Find<QAction>(Window(), "EditUndo").text(), "Undo typing");
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  PressKey(*menu, Qt::Key_Return);
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(State.Page(5), "");
}

TEST_F(UndoHistoryTest, TheMenuReachedThroughTheMenuBarNamesWhatTheFieldTakesBack) {
  TypeInto(Title(), "T");
  QTest::keyPress(&Title(), Qt::Key_Alt);
  QTest::keyRelease(&Title(), Qt::Key_Alt);
  QWidget* bar = QApplication::focusWidget();
  ASSERT_NE(bar, nullptr);
  if (bar == &Title()) GTEST_SKIP() << "this style's menu bar does not take the focus";
  PressKey(*bar, Qt::Key_Right);
  PressKey(*bar, Qt::Key_Down);
  QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->objectName(), "EditMenu");
  EXPECT_EQ(Find<QAction>(Window(), "EditUndo").text(), "Undo typing");
  PressKey(*menu, Qt::Key_Return);
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(State.Page(5), "");
}

}  // namespace
}  // namespace tavrel::test
