#include "ui/editing/text_commands_test.h"

namespace tavrel::test {
namespace {

TEST_F(TextCommandsTest, CutWithoutASelectionEmptiesTheClipboardOnly) {
  SelectWithKeys(1, 0);
  Choose("EditCut");
  EXPECT_FALSE(ClipboardHoldsText());
  EXPECT_EQ(Body().Bytes(), "one");
}

TEST_F(TextCommandsTest, CutTakesTheSelectionAndCopyOfNothingLeavesAnEmptyText) {
  TypeInto(Body(), "abc");
  SelectWithKeys(1, 1);
  Choose("EditCut");
  EXPECT_EQ(Body().Bytes(), "ac");
  EXPECT_EQ(Clipboard(), "b");
  Choose("EditCopy");
  EXPECT_TRUE(ClipboardHoldsText());
  EXPECT_EQ(Clipboard(), "");
  EXPECT_EQ(Body().Bytes(), "ac");
}

TEST_F(TextCommandsTest, CopyKeepsTheSelectionWhereItIs) {
  SelectWithKeys(1, 2);
  Choose("EditCopy");
  EXPECT_EQ(Clipboard(), "ne");
  EXPECT_EQ(Body().Bytes(), "one");
  EXPECT_EQ(Body().SelectedText(), "ne");
}

TEST_F(TextCommandsTest, ClearDeletesTheSelectionAndLeavesTheClipboard) {
  TypeInto(Body(), "abc");
  SelectWithKeys(1, 1);
  Choose("EditDeleteText");
  EXPECT_EQ(Body().Bytes(), "ac");
  EXPECT_EQ(Clipboard(), "zz");
  Choose("EditDeleteText");
  EXPECT_EQ(Body().Bytes(), "ac");
}

TEST_F(TextCommandsTest, PasteReplacesTheSelectionOrGoesInAtTheCaret) {
  SelectWithKeys(1, 1);
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), "ozze");
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), "ozzzze");
  EXPECT_EQ(Clipboard(), "zz");
}

TEST_F(TextCommandsTest, PastingAnEmptyClipboardDeletesTheSelection) {
  QApplication::clipboard()->clear();
  SelectWithKeys(1, 1);
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), "oe");
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), "oe");
}

TEST_F(TextCommandsTest, PastingAPictureDeletesTheSelection) {
  QImage picture(8, 8, QImage::Format_RGB32);
  picture.fill(Qt::red);
  QApplication::clipboard()->setImage(picture);
  SelectWithKeys(0, 2);
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), "e");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(TextCommandsTest, FormattedTextIsPastedPlain) {
  auto* formatted = new QMimeData;
  formatted->setHtml("<b>bold</b>");
  formatted->setText("bold");
  QApplication::clipboard()->setMimeData(formatted);
  SelectAllWithKeys();
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), "bold");
}

TEST_F(TextCommandsTest, NothingIsStoredUntilThePageIs) {
  SelectAllWithKeys();
  Choose("EditCut");
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>one</text>");
  Choose("EditPaste");
  Choose("EditPaste");
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>one</text>");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>oneone</text>");
}

TEST_F(TextCommandsTest, AllOfThemCanBeTakenBack) {
  for (const char* command : {"EditCut", "EditPaste", "EditDeleteText"}) {
    SetClipboard("zz");
    SelectWithKeys(0, 2);
    Choose(command);
    EXPECT_NE(Body().Bytes(), "one") << command;
    PressKey(Body(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Body().Bytes(), "one") << command;
  }
}

TEST_F(TextCommandsTest, TheyActOnTheBodyWhateverHasTheFocus) {
  SelectWithKeys(0, 2);
  Click(Title());
  PressKey(Title(), Qt::Key_A, Qt::ControlModifier);
  Choose("EditCopy");
  EXPECT_EQ(Clipboard(), "on");
  Choose("EditDeleteText");
  EXPECT_EQ(Body().Bytes(), "e");
  EXPECT_EQ(Title().Bytes(), "A");
  EXPECT_TRUE(Title().hasFocus());
}

TEST_F(TextCommandsTest, TheKeysActOnTheFieldThatHasTheFocus) {
  SelectAllWithKeys();
  Click(Title());
  PressKey(Title(), Qt::Key_A, Qt::ControlModifier);
  PressKey(Title(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "A");
  PressKey(Title(), Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(Body().Bytes(), "one");
  PressKey(Title(), Qt::Key_V, Qt::ControlModifier);
  PressKey(Title(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Title().Bytes(), "AA");
  EXPECT_EQ(Body().Bytes(), "one");
}

TEST_F(TextCommandsTest, TheKeysActOnTheBodyThatHasTheFocus) {
  SelectAllWithKeys();
  PressKey(Body(), Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), "one");
  EXPECT_EQ(Body().Bytes(), "");
  PressKey(Body(), Qt::Key_V, Qt::ControlModifier);
  PressKey(Body(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Body().Bytes(), "oneone");
}

TEST_F(TextCommandsTest, TheKeysLeaveTheBodyAloneWhileAGridHasTheFocus) {
  SelectAllWithKeys();
  for (Grid* grid : {&LinksGrid(), &PagesGrid()}) {
    grid->setFocus();
    PressKey(*grid, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Clipboard(), "zz");
    PressKey(*grid, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Body().Bytes(), "one");
  }
}

}  // namespace
}  // namespace tavrel::test
