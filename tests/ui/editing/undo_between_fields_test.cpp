#include <QKeySequence>
#include <QTest>

#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// What the fields take back and make again when the focus is elsewhere, on page 2 after the step
/// "Clear page 5".
class UndoBetweenFieldsTest : public UndoTest {
 protected:
  void SetUp() override {
    OpenWorld();
    ClearPage5();
  }
};

TEST_F(UndoBetweenFieldsTest, WhatAFieldTookBackIsMadeAgainFromAnywhere) {
  TypeInto(Title(), "T");
  PressUndo();
  Click(Note());
  EXPECT_EQ(RedoItem(), "Redo typing");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "T");
  EXPECT_EQ(Focus(), "Text3");
  EXPECT_EQ(State.Page(2), kWorldPage2);
}

TEST_F(UndoBetweenFieldsTest, TheFieldWithTheFocusMakesItsOwnAgainFirst) {
  TypeInto(Title(), "T");
  PressUndo();
  TypeInto(Note(), "N");
  PressUndo();
  PressRedo();
  EXPECT_EQ(Note().Bytes(), "N");
  EXPECT_EQ(Title().Bytes(), "Two");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "T");
}

TEST_F(UndoBetweenFieldsTest, WhatAFieldTookBackIsNotLostToAStepBack) {
  TypeInto(Title(), "T");
  PressUndo();
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_NE(State.Page(5), "");
  PressRedo();
  EXPECT_EQ(State.Page(5), "");
  EXPECT_EQ(RedoItem(), "Redo Edit page 2");
  PressRedo();
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Title().Bytes(), "T");
  EXPECT_EQ(RedoItem(), "Redo (grey)");
}

TEST_F(UndoBetweenFieldsTest, ALinksTextWithoutATargetIsTakenBackBeforeTheLastCommand) {
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "d");
  Click(Title());
  EXPECT_EQ(UndoItem(), "Undo typing");
  PressUndo();
  EXPECT_EQ(LinkText().Bytes(), "");
  EXPECT_EQ(Focus(), "Text5");
  EXPECT_EQ(State.Page(5), "");
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
  PressRedo();
  EXPECT_EQ(LinkText().Bytes(), "d");
}

TEST_F(UndoBetweenFieldsTest, MusicWithoutATextIsTakenBackBeforeTheLastCommand) {
  Show(3);
  TypeInto(MusicLink(), "M1");
  Click(Title());
  EXPECT_EQ(UndoItem(), "Undo typing");
  for (int press = 0; press < 2 && !MusicLink().Bytes().empty(); ++press) PressUndo();
  EXPECT_EQ(MusicLink().Bytes(), "");
  EXPECT_EQ(State.Page(5), "");
}

TEST_F(UndoBetweenFieldsTest, AKeyThatFindsNothingLeavesTheCaret) {
  PressUndo();
  Click(Title());
  PressKey(Title(), Qt::Key_End);
  QTest::keyClicks(&Title(), "x");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Five");
  PressKey(Title(), Qt::Key_Home);
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Five");
  EXPECT_EQ(Title().Caret(), 0);
}

TEST_F(UndoBetweenFieldsTest, AKeyThatFindsNothingLeavesWhatCanBeMadeAgain) {
  PressUndo();
  Click(Title());
  PressKey(Title(), Qt::Key_End);
  QTest::keyClicks(&Title(), "x");
  PressKey(Title(), Qt::Key_Backspace);
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Fivex");
  PressUndo();
  for (int press = 0; press < 2; ++press) {
    EXPECT_EQ(Title().Bytes(), "Five");
    EXPECT_EQ(UndoItem(), "Undo (grey)");
    EXPECT_EQ(RedoItem(), "Redo typing");
    PressUndo();
  }
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "Fivex");
}

TEST_F(UndoBetweenFieldsTest, TheSystemsOwnKeysServeToo) {
  for (const QKeySequence& undo : QKeySequence::keyBindings(QKeySequence::Undo)) {
    for (const QKeySequence& redo : QKeySequence::keyBindings(QKeySequence::Redo)) {
      SCOPED_TRACE((undo.toString() + " and " + redo.toString()).toStdString());
      TypeInto(Title(), "T");
      QTest::keySequence(&Title(), undo);
      EXPECT_EQ(Title().Bytes(), "Two");
      QTest::keySequence(&Title(), redo);
      EXPECT_EQ(Title().Bytes(), "T");
      QTest::keySequence(&Title(), undo);
      QTest::keySequence(&Title(), undo);
      EXPECT_NE(State.Page(5), "");
      QTest::keySequence(Window().focusWidget(), redo);
      EXPECT_EQ(State.Page(5), "");
      Show(2);
    }
  }
}

}  // namespace
}  // namespace tavrel::test
