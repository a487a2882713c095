#include <gtest/gtest.h>

#include "ui/editing/undo_test.h"

// What the fields take back themselves, and steps of the document, between one another.

namespace tavrel::test {
namespace {

class UndoAfterStoringTest : public UndoTest {
 protected:
  void SetUp() override { OpenWorld(); }

  void PressSave() { PressKey(*Window().focusWidget(), Qt::Key_S, Qt::ControlModifier); }

  void TakeBodyBackTo(const std::string& text) {
    for (int press = 0; press < 2 * kMostPresses && Body().Bytes() != text; ++press) PressUndo();
    ASSERT_EQ(Body().Bytes(), text);
  }

  void NameTheMusic() {
    Player.Expect("MusicEditor", [](QWidget& dialog) {
      ClickRow(Find<Grid>(dialog, "MSFlexGrid2"), 2);
      TypeInto(dialog, "Text1_1", "Green");
      Click(dialog, "Command2");
      Click(dialog, "Command1");
    });
    Choose("EditMusic");
  }
};

TEST_F(UndoAfterStoringTest, BringsNoTextBackThatWasTypedInTwoFieldsAndSaved) {
  Show(7);
  TypeInto(Title(), "T");
  TypeInto(Body(), "B");
  PressSave();
  TakeBodyBackTo("");
  PressUndo();
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(State.Page(7), "");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  PressRedo();
  EXPECT_EQ(Body().Bytes(), "B");
  EXPECT_EQ(Title().Bytes(), "T");
  EXPECT_EQ(Told(), "Redone: Edit page 7. The project is as you saved it.");
}

TEST_F(UndoAfterStoringTest, BringsNoTextBackThatWasTypedWithALinkAndSaved) {
  Show(7);
  TypeInto(Body(), "B");
  TypeInto(LinkText(), "d");
  TypeInto(LinkTarget(), "3\n");
  PressSave();
  TakeBodyBackTo("");
  PressUndo();
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(State.Page(7), "");
}

TEST_F(UndoAfterStoringTest, BehindOneStepAndAnotherStoringTheStepStaysAsItWas) {
  Show(2);
  TypeInto(Body(), "a");
  NameTheMusic();
  TypeInto(Body(), "ab");
  Choose("EditCopyPage");
  TakeBodyBackTo("Beta words");
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(Told(), "Undone: Edit page 2");
  EXPECT_EQ(Body().Bytes(), "a");
  EXPECT_EQ(UndoItem(), "Undo Music links");
}

TEST_F(UndoAfterStoringTest, TheWayBackToTheSavedPageSaysSo) {
  Show(1);
  TypeInto(Body(), "B");
  PressSave();
  TakeBodyBackTo("Alpha");
  PressUndo();
  PressRedo();
  EXPECT_EQ(Body().Bytes(), "B");
  EXPECT_EQ(Told(), "Redone: Edit page 1. The project is as you saved it.");
}

TEST_F(UndoAfterStoringTest, RedoDoesNotThrowAHalfTypedLinkAway) {
  ClearPage5();
  PressUndo();
  Show(2);
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "d");
  EXPECT_EQ(RedoItem(), "Redo (grey)");
  PressRedo();
  EXPECT_EQ(LinkText().Bytes(), "d");
}

TEST_F(UndoAfterStoringTest, AReplacementThatFindsNothingIsNotNamed) {
  Show(2);
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "d");
  TypeInto(LinkTarget(), "3");
  Answer("EditReplace", "ReplaceForm", {"nowhere", "x"}, "Command1");
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
}

TEST_F(UndoAfterStoringTest, ClearingAPageOfWhichNothingWouldBeStoredIsAStep) {
  OpenDocument("Odd.dat", "\r\n 1 ,<title>A</title>\r\n 2 ,<music></music><music>M1</music>\r\n");
  Show(2);
  Choose("EditClear");
  EXPECT_EQ(State.Page(2), "");
  EXPECT_EQ(UndoItem(), "Undo Clear page 2");
}

TEST_F(UndoAfterStoringTest, StoringAPageAsNothingBeforeADialogIsLeftIsNoStep) {
  OpenDocument("Odd.dat", "\r\n 1 ,<title>A</title>\r\n 2 ,<music></music><music>M1</music>\r\n");
  Show(2);
  Answer("EditMusic", "MusicEditor", {}, "Command4");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

}  // namespace
}  // namespace tavrel::test
