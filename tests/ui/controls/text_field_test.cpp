#include "ui/controls/text_field.h"

#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QTest>

#include <gtest/gtest.h>
#include <utility>

#include "support/user.h"
#include "ui/controls/body_field.h"
#include "ui/controls/line_field.h"
#include "ui/controls/target_list.h"

namespace tavrel::test {
namespace {

using Span = std::pair<int, int>;

Span CaretOf(const TextField& field) {
  return {field.Anchor(), field.Caret()};
}

/// What the fields for text have in common, on each of them.
template <typename Field>
class TextFieldTest : public testing::Test {
 protected:
  TextFieldTest() {
    field_.SetBytes("0123456789");
    field_.show();
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&field_, key, modifiers);
  }

  Field field_;
};

using Fields = testing::Types<LineField, BodyField>;
TYPED_TEST_SUITE(TextFieldTest, Fields);

TYPED_TEST(TextFieldTest, TheCaretIsWhereTheKeysPutIt) {
  this->Press(Qt::Key_Home);
  EXPECT_EQ(CaretOf(this->field_), Span(0, 0));
  this->Press(Qt::Key_Right);
  EXPECT_EQ(CaretOf(this->field_), Span(1, 1));
  this->Press(Qt::Key_Right, Qt::ShiftModifier);
  this->Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(CaretOf(this->field_), Span(1, 3));
}

TYPED_TEST(TextFieldTest, ASelectionBeginsWhereItWasBegun) {
  this->Press(Qt::Key_End);
  this->Press(Qt::Key_Left, Qt::ShiftModifier);
  this->Press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(CaretOf(this->field_), Span(10, 8));
}

TYPED_TEST(TextFieldTest, TheCaretGoesWhereItIsPut) {
  for (const Span& span :
       {Span(0, 0), Span(4, 4), Span(2, 7), Span(7, 2), Span(0, 10), Span(10, 0), Span(10, 10)}) {
    SCOPED_TRACE(testing::PrintToString(span));
    this->field_.SetCaret(span.first, span.second);
    EXPECT_EQ(CaretOf(this->field_), span);
  }
}

TYPED_TEST(TextFieldTest, ACaretPutInPlaceOfASelectionEndsIt) {
  this->field_.SetCaret(2, 7);
  this->field_.SetCaret(3, 3);
  EXPECT_EQ(CaretOf(this->field_), Span(3, 3));
  QTest::keyClicks(&this->field_, "x");
  EXPECT_EQ(this->field_.Bytes(), "012x3456789");
}

TYPED_TEST(TextFieldTest, TypingReplacesTheSelectionThatWasPut) {
  this->field_.SetCaret(7, 2);
  QTest::keyClicks(&this->field_, "x");
  EXPECT_EQ(this->field_.Bytes(), "01x789");
}

TYPED_TEST(TextFieldTest, PlacesBeyondTheTextMeanItsEnd) {
  this->field_.SetCaret(4, 100);
  EXPECT_EQ(CaretOf(this->field_), Span(4, 10));
  this->field_.SetCaret(100, 4);
  EXPECT_EQ(CaretOf(this->field_), Span(10, 4));
  this->field_.SetCaret(100, 100);
  EXPECT_EQ(CaretOf(this->field_), Span(10, 10));
  this->field_.SetBytes("");
  this->field_.SetCaret(3, 5);
  EXPECT_EQ(CaretOf(this->field_), Span(0, 0));
}

TYPED_TEST(TextFieldTest, OnlyTypingCanBeTakenBack) {
  EXPECT_FALSE(this->field_.HasUndo());
  EXPECT_FALSE(this->field_.HasRedo());
  this->field_.SetCaret(2, 7);
  this->Press(Qt::Key_Home);
  this->field_.SetCaret(7, 7);
  EXPECT_FALSE(this->field_.HasUndo());
  QTest::keyClicks(&this->field_, "x");
  EXPECT_TRUE(this->field_.HasUndo());
  EXPECT_FALSE(this->field_.HasRedo());
  this->field_.Undo();
  EXPECT_EQ(this->field_.Bytes(), "0123456789");
  EXPECT_FALSE(this->field_.HasUndo());
  EXPECT_TRUE(this->field_.HasRedo());
  this->field_.Redo();
  EXPECT_EQ(this->field_.Bytes(), "0123456x789");
  EXPECT_TRUE(this->field_.HasUndo());
  EXPECT_FALSE(this->field_.HasRedo());
}

TYPED_TEST(TextFieldTest, AnotherTextLeavesNothingToTakeBack) {
  QTest::keyClicks(&this->field_, "x");
  this->field_.SetBytes("other");
  EXPECT_FALSE(this->field_.HasUndo());
  QTest::keyClicks(&this->field_, "x");
  this->field_.Undo();
  this->field_.SetBytes("third");
  EXPECT_FALSE(this->field_.HasUndo());
  EXPECT_FALSE(this->field_.HasRedo());
}

TYPED_TEST(TextFieldTest, TheKeysServeTheFieldWhereTheWindowHasNoSuchCommand) {
  QTest::keyClicks(&this->field_, "x");
  const std::string typed = this->field_.Bytes();
  this->Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(this->field_.Bytes(), "0123456789");
  this->Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(this->field_.Bytes(), typed);
}

TYPED_TEST(TextFieldTest, TheKeysAreTheWindowsWhereItHasSuchCommands) {
  QWidget window;
  auto* field = new TypeParam(&window);
  field->SetBytes("a");
  int undone = 0;
  int redone = 0;
  const QShortcut undo(QKeySequence("Ctrl+Z"), &window, [&undone] { ++undone; });
  const QShortcut redo(QKeySequence("Ctrl+Shift+Z"), &window, [&redone] { ++redone; });
  window.show();
  ActivateWindow(window);
  field->setFocus();
  QTest::keyClicks(field, "x");
  const std::string typed = field->Bytes();
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(undone, 1);
  EXPECT_EQ(redone, 1);
  EXPECT_EQ(field->Bytes(), typed);
}

TYPED_TEST(TextFieldTest, OtherKeysForTextStayTheFields) {
  QWidget window;
  auto* field = new TypeParam(&window);
  field->SetBytes("a");
  int taken = 0;
  const QShortcut all(QKeySequence("Ctrl+A"), &window, [&taken] { ++taken; });
  window.show();
  ActivateWindow(window);
  field->setFocus();
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(taken, 0);
  EXPECT_EQ(CaretOf(*field), Span(0, 1));
}

TEST(BodyFieldCaretTest, ALineBreakCountsOnce) {
  BodyField field;
  field.SetBytes("ab\r\ncd");
  field.SetCaret(3, 5);
  EXPECT_EQ(field.SelectedText(), "cd");
  EXPECT_EQ(CaretOf(field), Span(3, 5));
  field.SetCaret(0, 100);
  EXPECT_EQ(CaretOf(field), Span(0, 5));
}

TEST(TextFieldOfTest, IsTheControlItselfOrTheListsField) {
  LineField line;
  BodyField body;
  TargetList list;
  QLabel label;
  EXPECT_EQ(FieldOf(&line), &line);
  EXPECT_EQ(FieldOf(&body), &body);
  EXPECT_EQ(FieldOf(&list), &list.Field());
  EXPECT_EQ(FieldOf(&label), nullptr);
  EXPECT_EQ(FieldOf(nullptr), nullptr);
}

TEST(TextFieldKeysTest, UndoAndRedoAreKnown) {
  const auto is_known = [](Qt::Key key, Qt::KeyboardModifiers modifiers) {
    return IsUndoOrRedo(QKeyEvent(QEvent::ShortcutOverride, key, modifiers));
  };
  EXPECT_TRUE(is_known(Qt::Key_Z, Qt::ControlModifier));
  EXPECT_TRUE(is_known(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier));
  EXPECT_FALSE(is_known(Qt::Key_Z, Qt::NoModifier));
  EXPECT_FALSE(is_known(Qt::Key_X, Qt::ControlModifier));
}

}  // namespace
}  // namespace tavrel::test
