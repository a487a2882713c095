#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// What storing a page that stays in the fields does to the fields' own undo.
class UndoStoredTypingTest : public UndoTest {
 protected:
  void SetUp() override { OpenWorld(); }
};

TEST_F(UndoStoredTypingTest, AfterThePageWasStoredTheKeyInTheBodyTakesBackTheStoring) {
  TypeInto(Title(), "T");
  Choose("EditCopyPage");
  EXPECT_EQ(Focus(), "Text1");
  EXPECT_EQ(UndoItem(), "Undo Edit page 1");
  PressUndo();
  EXPECT_EQ(State.Page(1), kWorldPage1);
  EXPECT_EQ(Title().Bytes(), "One");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoStoredTypingTest, TheFieldsUndoMayGoBehindWhatWasStored) {
  ClearPage5();
  TypeInto(Title(), "T");
  Choose("EditCopyPage");
  Click(Title());
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_EQ(State.Page(2), kWorldPage2);
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  PressRedo();
  EXPECT_EQ(State.Page(5), "");
  EXPECT_EQ(RedoItem(), "Redo Edit page 2");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "T");
  EXPECT_NE(State.Page(2).find("<title>T</title>"), std::string::npos);
}

TEST_F(UndoStoredTypingTest, TypingByHandWhatWasStoredBeforeIsAStepOfItsOwn) {
  Show(2);
  TypeInto(Title(), "T");
  Choose("EditCopyPage");
  Show(3);
  Show(2);
  TypeInto(Title(), "Two");
  Click(Note());
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "T");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(State.Page(2), kWorldPage2);
  PressUndo();
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

/// Pages that the editor would write otherwise, in their order or with blanks.
TEST_F(UndoStoredTypingTest, TheFieldsUndoMayGoBehindTheStoringOfAForeignPage) {
  const std::string foreign = "<text>one</text><title> A </title>";
  OpenDocument("Foreign.dat", "\r\n 1 ," + foreign + "\r\n");
  TypeInto(Title(), "T");
  Choose("EditCopyPage");
  Click(Title());
  PressUndo();
  const std::string shown = Title().Bytes();
  EXPECT_NE(shown, "T");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), shown);
  for (int press = 0; press < kMostPresses; ++press) PressUndo();
  EXPECT_EQ(State.Page(1), foreign);
}

TEST_F(UndoStoredTypingTest, ThePagesGridFollowsTheFieldsUndoBehindTheFirstStoring) {
  Show(7);
  TypeInto(Body(), "new");
  Choose("EditCopyPage");
  EXPECT_EQ(State.Page(7), "<text>new</text>");
  for (int press = 0; press < kMostPresses; ++press) PressUndo();
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(State.Page(7), "");
  EXPECT_EQ(PagesGrid().CellBackColor(7, 1), QColor(0xFF, 0xFF, 0xFF));
}

TEST_F(UndoStoredTypingTest, TypingMadeAgainAfterTheFirstStoringWasTakenBackCounts) {
  TypeInto(Title(), "T");
  Choose("EditCopyPage");
  Click(Title());
  PressUndo();
  PressUndo();
  EXPECT_EQ(State.Page(1), kWorldPage1);
  TypeInto(Title(), "T");
  EXPECT_NE(Window().TypedPage().find("<title>T</title>"), std::string::npos);
  Click(Note());
  EXPECT_EQ(UndoItem(), "Undo Edit page 1");
}

}  // namespace
}  // namespace tavrel::test
