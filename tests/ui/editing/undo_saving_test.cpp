#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// Saving keeps the history and marks the place in it.
class UndoSavingTest : public UndoTest {
 protected:
  void SetUp() override {
    OpenWorld();
    ClearPage5();
  }

  void PressSave() { PressKey(*Window().focusWidget(), Qt::Key_S, Qt::ControlModifier); }
};

TEST_F(UndoSavingTest, SavingKeepsItAndMarksThePlace) {
  TypeInto(Title(), "T");
  PressSave();
  EXPECT_EQ(LastMessage().Text, "Project saved...    ");
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Edit page 2");
  EXPECT_EQ(State.Page(2), kWorldPage2);
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Clear page 5");
  PressRedo();
  EXPECT_EQ(Told(), "Redone: Clear page 5");
  PressRedo();
  EXPECT_EQ(Told(), "Redone: Edit page 2. The project is as you saved it.");
  EXPECT_NE(Folder.Read("World.dat").find("<title>T</title>"), std::string::npos);
}

TEST_F(UndoSavingTest, WhatIsTypedAfterSavingAndTakenBackLeavesTheProjectAsSaved) {
  PressSave();
  TypeInto(Title(), "T");
  Click(Note());
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Edit page 2. The project is as you saved it.");
  PressRedo();
  EXPECT_EQ(Told(), "Redone: Edit page 2");
}

TEST_F(UndoSavingTest, SavingAfterAStepBackWritesThatAndKeepsTheStepToMakeAgain) {
  PressUndo();
  PressSave();
  EXPECT_EQ(Folder.Read("World.dat"), kWorld);
  EXPECT_EQ(RedoItem(), "Redo Clear page 5");
  PressRedo();
  EXPECT_EQ(Told(), "Redone: Clear page 5");
  EXPECT_EQ(State.Page(5), "");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Clear page 5. The project is as you saved it.");
}

TEST_F(UndoSavingTest, APlaceThatWasLeftForAnotherWayIsNotToldAnyMore) {
  PressSave();
  PressUndo();
  Show(3);
  Choose("EditClear");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Clear page 3");
}

TEST_F(UndoSavingTest, SavingUnderAnotherNameKeepsItAndMarksThePlace) {
  TypeInto(Title(), "T");
  Answer("FileSaveAs", "SaveAs", {"Copy"}, "Command1");
  EXPECT_EQ(State.DocPath, "Copy.dat");
  Click(Note());
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  // What is typed and not stored does not go into the new file.
  EXPECT_EQ(Told(), "Undone: Edit page 2. The project is as you saved it.");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Clear page 5");
  EXPECT_NE(State.Page(5), "");
}

TEST_F(UndoSavingTest, SavingUnderAnotherNameThatIsGivenUpMarksNothing) {
  Answer("FileSaveAs", "SaveAs", {"Copy"}, "Command2");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Clear page 5. The project is as you saved it.");
  PressRedo();
  EXPECT_EQ(Told(), "Redone: Clear page 5");
}

}  // namespace
}  // namespace tavrel::test
