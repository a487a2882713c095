#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// The commands on the body's text, on page 2 after the step "Clear page 5". To the document they are typing.
class UndoTextCommandsTest : public UndoTest {
 protected:
  void SetUp() override {
    OpenWorld();
    ClearPage5();
    QApplication::clipboard()->setText("zz");
    Click(*Body().viewport());
    Body().Select(0, 4);  // "Beta" of "Beta words"
  }

  void ExpectTakenBack(const std::string& changed) {
    EXPECT_EQ(Body().Bytes(), changed);
    EXPECT_EQ(State.Page(2), kWorldPage2);
    EXPECT_EQ(UndoItem(), "Undo typing");
    PressUndo();
    EXPECT_EQ(Body().Bytes(), "Beta words");
    EXPECT_EQ(UndoItem(), "Undo Clear page 5");
    PressRedo();
    EXPECT_EQ(Body().Bytes(), changed);
    EXPECT_EQ(State.Page(2), kWorldPage2);
  }
};

TEST_F(UndoTextCommandsTest, CutIsTakenBackAsTyping) {
  Choose("EditCut");
  ExpectTakenBack(" words");
}

TEST_F(UndoTextCommandsTest, PasteIsTakenBackAsTyping) {
  Choose("EditPaste");
  ExpectTakenBack("zz words");
}

TEST_F(UndoTextCommandsTest, ClearIsTakenBackAsTyping) {
  Choose("EditDeleteText");
  ExpectTakenBack(" words");
}

TEST_F(UndoTextCommandsTest, TheToolBarsCutIsTakenBackAsTyping) {
  ClickButton("Image5");
  ExpectTakenBack(" words");
}

TEST_F(UndoTextCommandsTest, TheToolBarsPasteIsTakenBackAsTyping) {
  ClickButton("Image7");
  ExpectTakenBack("zz words");
}

TEST_F(UndoTextCommandsTest, TheKeysAreTakenBackAsTyping) {
  PressKey(Body(), Qt::Key_X, Qt::ControlModifier);
  ExpectTakenBack(" words");
  PressUndo();
  Body().Select(0, 4);
  QApplication::clipboard()->setText("zz");
  PressKey(Body(), Qt::Key_V, Qt::ControlModifier);
  ExpectTakenBack("zz words");
}

TEST_F(UndoTextCommandsTest, CopyLeavesNothingToTakeBack) {
  Choose("EditCopy");
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
  ClickButton("Image6");
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
}

TEST_F(UndoTextCommandsTest, TheFontLeavesNothingToTakeBack) {
  Choose("EditFontLarge");
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
  PressUndo();
  EXPECT_EQ(Body().font().pointSize(), 12);
}

TEST_F(UndoTextCommandsTest, DoneFromAnotherFieldTheyAreTakenBackThereWithThePage) {
  Click(Title());
  Choose("EditCut");
  EXPECT_EQ(Body().Bytes(), " words");
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(Body().Bytes(), "Beta words");
  EXPECT_EQ(Focus(), "Text3");
  PressRedo();
  EXPECT_EQ(Body().Bytes(), "words");  // a stored text begins with its first character
}

TEST_F(UndoTextCommandsTest, APasteIntoALineFieldIsTakenBackThere) {
  Click(Title());
  PressKey(Title(), Qt::Key_A, Qt::ControlModifier);
  PressKey(Title(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Title().Bytes(), "zz");
  EXPECT_EQ(UndoItem(), "Undo typing");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(UndoItem(), "Undo Clear page 5");
}

TEST_F(UndoTextCommandsTest, AnEntryChosenFromAListIsTakenBack) {
  LinkTarget().setFocus();
  PressKey(LinkTarget(), Qt::Key_Down, Qt::AltModifier);
  QWidget* list = QApplication::activePopupWidget();
  ASSERT_NE(list, nullptr);
  QWidget& entries = *list->findChild<QAbstractItemView*>();
  PressKey(entries, Qt::Key_End);
  PressKey(entries, Qt::Key_Return);
  EXPECT_EQ(LinkTarget().Bytes(), "M3");
  // Choosing is not typing: it goes with the page.
  PressUndo();
  EXPECT_EQ(LinkTarget().Bytes(), "001");
  EXPECT_EQ(State.Page(2), kWorldPage2);
  EXPECT_EQ(State.Page(5), "");
  PressRedo();
  EXPECT_EQ(LinkTarget().Bytes(), "M3");
}

}  // namespace
}  // namespace tavrel::test
