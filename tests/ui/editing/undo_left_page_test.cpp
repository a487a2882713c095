#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// What comes back of a page that was left by a click elsewhere.
class UndoLeftPageTest : public UndoTest {
 protected:
  void SetUp() override {
    OpenWorld();
    Show(2);
  }

  /// Takes back all that was typed in the field with the focus, by the field's own undo.
  void TakeBackTyping() {
    for (int press = 0; press < kMostPresses && UndoItem() == "Undo typing"; ++press) PressUndo();
  }
};

TEST_F(UndoLeftPageTest, TheCaretComesBackToTheFieldThatWasWritten) {
  TypeInto(Title(), "Words");
  Title().setCursorPosition(3);
  Show(3);
  EXPECT_EQ(Focus(), "Text1");
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Focus(), "Text3");
  PressRedo();
  EXPECT_EQ(Focus(), "Text3");
  EXPECT_EQ(Title().cursorPosition(), 3);
}

TEST_F(UndoLeftPageTest, TheCaretComesBackToAListOfTargets) {
  TypeInto(MusicText(), "Song");
  TypeInto(MusicLink(), "M1");
  Show(3);
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Focus(), "Combo2");
}

TEST_F(UndoLeftPageTest, TheCaretComesBackToTheBody) {
  TypeInto(Body(), "Some words");
  Show(3);
  PressUndo();
  PressRedo();
  EXPECT_EQ(Focus(), "Text1");
  EXPECT_EQ(Body().Caret(), 10);
}

TEST_F(UndoLeftPageTest, WhatAFieldTookBackIsMadeAgainAfterALookAtAnotherPage) {
  TypeInto(Body(), "A whole paragraph");
  TakeBackTyping();
  ASSERT_EQ(Body().Bytes(), "Beta words");
  Show(3);
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  EXPECT_EQ(RedoItem(), "Redo Edit page 2");
  Show(5);
  PressRedo();
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Body().Bytes(), "A whole paragraph");
  EXPECT_EQ(Told(), "Redone: Edit page 2");
  PressUndo();
  EXPECT_EQ(State.Page(2), kWorldPage2);
  EXPECT_EQ(Told(), "Undone: Edit page 2. The project is as you saved it.");
}

TEST_F(UndoLeftPageTest, WhatAFieldTookBackIsForgottenWhenOtherWordsAreWritten) {
  TypeInto(Body(), "A whole paragraph");
  TakeBackTyping();
  TypeInto(Title(), "T");
  Show(3);
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  EXPECT_EQ(RedoItem(), "Redo (grey)");
}

TEST_F(UndoLeftPageTest, StepsThatCanBeMadeAgainStayThoughAFieldTookWordsBack) {
  ClearPage5();
  PressUndo();
  Show(2);
  TypeInto(Body(), "A whole paragraph");
  TakeBackTyping();
  Show(3);
  EXPECT_EQ(RedoItem(), "Redo Clear page 5");
}

}  // namespace
}  // namespace tavrel::test
