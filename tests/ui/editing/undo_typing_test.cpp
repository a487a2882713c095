#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// Typing in several fields, and by commands.
class UndoTypingTest : public UndoTest {
 protected:
  void SetUp() override { OpenWorld(); }
};

TEST_F(UndoTypingTest, EveryFieldTakesBackItsOwnTyping) {
  Show(2);
  TypeInto(Title(), "T");
  TypeInto(Note(), "N");
  Click(Title());
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(Note().Bytes(), "N");
  Click(Note());
  PressUndo();
  EXPECT_EQ(Note().Bytes(), "n2");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoTypingTest, TypingInSeveralFieldsIsTakenBackTogetherInAnother) {
  Show(2);
  TypeInto(Title(), "T");
  TypeInto(Note(), "N");
  TypeInto(MusicText(), "S");
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkText(), "L");
  Click(*Body().viewport());
  PressUndo();
  EXPECT_EQ(Fields(),
            "title: Two\nnote: n2\nbody: Beta words\nlink text: b\nlink to: 003\nmusic text: Play\n"
            "music link: M1\n");
  PressRedo();
  EXPECT_EQ(Fields(),
            "title: T\nnote: N\nbody: Beta words\nlink text: L\nlink to: 003\nmusic text: S\n"
            "music link: M1\n");
}

TEST_F(UndoTypingTest, AHalfTypedLinkIsTakenBackWithThePage) {
  Show(2);
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "d");
  TypeInto(LinkTarget(), "3");
  Click(Title());
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(LinksGrid().TextMatrix(4, 0), "");
  EXPECT_EQ(LinksGrid().TextMatrix(4, 1), "");
  EXPECT_EQ(LinkText().Bytes(), "");
  EXPECT_EQ(LinkTarget().Bytes(), "");
  EXPECT_EQ(LinksGrid().Row(), 4);
  PressRedo();
  EXPECT_EQ(LinksGrid().TextMatrix(4, 0), "d");
  EXPECT_EQ(LinksGrid().TextMatrix(4, 1), "003");
  EXPECT_NE(State.Page(2).find("<linktext>d</linktext><linkto>003</linkto></link>"), std::string::npos);
}

TEST_F(UndoTypingTest, AHalfTypedLinkThatACommandDropsComesBack) {
  Show(2);
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "d");
  TypeInto(LinkTarget(), "3");
  Choose("EditPageDown");
  EXPECT_EQ(State.Page(3).find("<linktext>d</linktext>"), std::string::npos);
  EXPECT_EQ(UndoItem(), "Undo Move page 2 down");
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(LinkText().Bytes(), "d");
  EXPECT_EQ(LinkTarget().Bytes(), "003");
  EXPECT_EQ(LinksGrid().Row(), 4);
  PressUndo();
  EXPECT_EQ(State.Page(2), kWorldPage2);
  EXPECT_EQ(LinkText().Bytes(), "");
}

TEST_F(UndoTypingTest, TypingBackToWhatWasThereLeavesNothing) {
  Show(2);
  TypeInto(Title(), "T");
  TypeInto(Title(), "Two");
  Click(*Body().viewport());
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoTypingTest, TypingOnABlankPageIsTakenBack) {
  Show(7);
  TypeInto(Body(), "new");
  Show(2);
  EXPECT_EQ(UndoItem(), "Undo Edit page 7");
  const std::string yellow = PagesRows();
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 7);
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(PagesGrid().CellBackColor(7, 1), QColor(0xFF, 0xFF, 0xFF));
  PressRedo();
  EXPECT_EQ(PagesRows(), yellow);
  EXPECT_EQ(State.Page(7), "<text>new</text>");
}

TEST_F(UndoTypingTest, TypingAfterAnUndoneStepLeavesNothingToMakeAgainOnceItCounts) {
  ClearPage5();
  PressUndo();
  EXPECT_EQ(RedoItem(), "Redo Clear page 5");
  TypeInto(Title(), "T");
  PressUndo();
  EXPECT_EQ(RedoItem(), "Redo typing");
  TypeInto(Title(), "T");
  Click(Note());
  EXPECT_EQ(RedoItem(), "Redo (grey)");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "T");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Five");
  EXPECT_EQ(RedoItem(), "Redo Edit page 5");
}

}  // namespace
}  // namespace tavrel::test
