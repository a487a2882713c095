#include <QPlainTextEdit>

#include "ui/controls/text_field.h"
#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// A field of a dialog.
struct DialogField {
  const char* MenuItem;
  const char* Dialog;
  const char* Field;
  const char* Cancel;
};

constexpr DialogField kDialogFields[] = {
    {"EditSearch", "FindForm", "Text1", "Command2"},
    {"EditReplace", "ReplaceForm", "Text1", "Command2"},
    {"EditReplace", "ReplaceForm", "Text2", "Command2"},
    {"EditBlockCopy", "BlockCopy", "Text1", "Command1"},
    {"EditBlockCopy", "BlockCopy", "Text2", "Command1"},
    {"EditBlockCopy", "BlockCopy", "Text3", "Command1"},
    {"EditBlockClear", "BlockClear", "Text1", "Command1"},
    {"EditBlockDelete", "BlockDelete", "Text2", "Command1"},
    {"EditBlockInsert", "BlockInsert", "Text2", "Command1"},
    {"FileSaveAs", "SaveAs", "Text1", "Command2"},
    {"EditMusic", "MusicEditor", "Text1_1", "Command4"},
    {"EditMusic", "MusicEditor", "Text1_7", "Command4"},
};

std::string TextIn(QWidget& field) {
  if (auto* body = qobject_cast<BodyField*>(&field)) return body->Bytes();
  return dynamic_cast<LineField&>(field).Bytes();
}

/// Types into a field, and takes it back and makes it again with the keys, further than there is anything.
void TypeAndTakeBack(QWidget& field) {
  constexpr int kPresses = 5;
  const std::string before = TextIn(field);
  TypeInto(field, "12");
  EXPECT_EQ(TextIn(field), "12");
  for (int press = 0; press < kPresses; ++press) PressKey(field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TextIn(field), before);
  for (int press = 0; press < kPresses; ++press)
    PressKey(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(TextIn(field), "12");
}

class UndoInDialogsTest : public UndoTest {};

TEST_F(UndoInDialogsTest, TheKeysConcernTheFieldOnly) {
  OpenWorld();
  ClearPage5();
  const std::string document = Document();
  for (const DialogField& field : kDialogFields) {
    SCOPED_TRACE(std::string(field.Dialog) + " " + field.Field);
    Player.Expect(field.Dialog, [&](QWidget& dialog) {
      TypeAndTakeBack(Find<QWidget>(dialog, field.Field));
      EXPECT_EQ(Document(), document);
      Click(dialog, field.Cancel);
    });
    Choose(field.MenuItem);
    EXPECT_EQ(Document(), document);
    EXPECT_EQ(UndoItem(), "Undo Clear page 5");
    EXPECT_EQ(RedoItem(), "Redo (grey)");
  }
}

TEST_F(UndoInDialogsTest, TheKeysConcernTheNewProjectsNameOnly) {
  OpenWorld();
  ClearPage5();
  Player.Expect("NewDoc", [&](QWidget& dialog) {
    TypeAndTakeBack(Find<QWidget>(dialog, "Text1"));
    // The document that was open is gone already, and stays so.
    EXPECT_EQ(Document(), "");
    Click(dialog, "Command2");
  });
  Choose("FileNew");
  EXPECT_EQ(Document(), "");
}

TEST_F(UndoInDialogsTest, TheKeysConcernThePlannersFieldOnly) {
  OpenWorld();
  ClearPage5();
  const std::string document = Document();
  Choose("EditProjectPlanner");
  QWidget& planner = TopWindow("Planner");
  for (const char* field : {"Text2", "Text3_0", "Text1_0", "Text1_24"}) {
    SCOPED_TRACE(field);
    ActivateWindow(planner);
    TypeAndTakeBack(Find<QWidget>(planner, field));
    EXPECT_EQ(Document(), document);
  }
  Click(planner, "Command2");
  ActivateWindow(Window());
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
}

TEST_F(UndoInDialogsTest, TheMainWindowsKeysWorkWhileThePlannerStandsBesideIt) {
  OpenWorld();
  ClearPage5();
  Choose("EditProjectPlanner");
  QWidget& planner = TopWindow("Planner");
  ActivateWindow(planner);
  TypeInto(planner, "Text1_0", "cell");
  ActivateWindow(Window());
  TypeInto(Title(), "T");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Two");
  PressUndo();
  EXPECT_NE(State.Page(5), "");
  EXPECT_EQ(Find<BodyField>(planner, "Text1_0").Bytes(), "cell");
  EXPECT_TRUE(planner.isVisible());
  PressRedo();
  EXPECT_EQ(State.Page(5), "");
}

TEST_F(UndoInDialogsTest, WhatWasTypedBesideThePlannerIsAStepBeforeThePlan) {
  OpenWorld();
  Show(3);
  Choose("EditProjectPlanner");
  QWidget& planner = TopWindow("Planner");
  TypeInto(Title(), "T");
  ActivateWindow(planner);
  TypeInto(planner, "Text1_0", "cell");
  Click(planner, "Command1");
  ActivateWindow(Window());
  EXPECT_EQ(State.Page(2), "<text>cell</text><note>cell</note>");
  EXPECT_EQ(State.Page(3), "");
  EXPECT_EQ(UndoItem(), "Undo Insert plan at 002");
  PressUndo();
  EXPECT_EQ(State.Page(2), kWorldPage2);
  EXPECT_EQ(State.Page(3), "<title>T</title><text>Gamma words</text>");
  EXPECT_EQ(Title().Bytes(), "T");
  EXPECT_EQ(UndoItem(), "Undo Edit page 3");
  PressUndo();
  EXPECT_EQ(State.Page(3), kWorldPage3);
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

}  // namespace
}  // namespace tavrel::test
