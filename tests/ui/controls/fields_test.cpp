#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string_view>

#include "support/user.h"
#include "ui/controls/body_field.h"
#include "ui/controls/line_field.h"
#include "ui/controls/text_conversion.h"

namespace tavrel::test {
namespace {

using namespace std::string_view_literals;

/// Hands the body field's clipboard text to the test.
class OpenBodyField : public BodyField {
 public:
  using BodyField::createMimeDataFromSelection;
};

std::string RandomBytes(std::mt19937& random, std::size_t length) {
  constexpr std::string_view kLikely = "\r\n\r\n\r\n \xA0\t\0abc"sv;
  std::string bytes;
  while (bytes.size() < length) {
    bytes += random() % 2 == 0 ? kLikely[random() % kLikely.size()] : static_cast<char>(random() % 256);
  }
  return bytes;
}

TEST(BodyFieldTest, GivesBackEveryTextAsItWentIn) {
  std::mt19937 random(1);
  BodyField field;
  for (int round = 0; round < 500; ++round) {
    const std::string bytes = RandomBytes(random, random() % 60);
    field.SetBytes(bytes);
    ASSERT_EQ(field.Bytes(), bytes) << round;
    ASSERT_EQ(field.Length(), static_cast<int>(bytes.size())) << round;
  }
}

TEST(BodyFieldTest, CopiesNoBreakSpacesAsTheyAre) {
  OpenBodyField field;
  field.SetBytes(
      "a\xA0"
      "b\r\nc");
  field.selectAll();
  const std::unique_ptr<QMimeData> copied(field.createMimeDataFromSelection());
  EXPECT_EQ(copied->text(), u"a\u00A0b\nc"_qs);
}

TEST(BodyFieldTest, BreaksEndlessWordsAnywhereAndOthersBetweenWords) {
  constexpr std::size_t kTooLong = 2001;
  BodyField field;
  for (const std::string& word : {std::string(kTooLong, 'w'), std::string(kTooLong, '\xA0')}) {
    field.SetBytes("a " + word);
    EXPECT_EQ(field.wordWrapMode(), QTextOption::WrapAnywhere);
    field.SetBytes("a " + word.substr(1));
    EXPECT_EQ(field.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    field.ReplaceSelection(QString::fromLatin1(word.c_str()));
    EXPECT_EQ(field.wordWrapMode(), QTextOption::WrapAnywhere);
  }
}

TEST(BodyFieldTest, TheInputMethodsTextIsMadeFit) {
  BodyField field;
  int replaced = 0;
  QObject::connect(&field, &BodyField::CharactersReplaced, [&](int count) { replaced += count; });
  QInputMethodEvent event;
  event.setCommitString(u"\u4E2D\u00E9"_qs);
  QApplication::sendEvent(&field, &event);
  EXPECT_EQ(field.Bytes(), "?\xE9");
  EXPECT_EQ(replaced, 1);
}

TEST(LineFieldTest, GivesBackEveryTextAsItWentIn) {
  std::mt19937 random(2);
  LineField field;
  for (int round = 0; round < 500; ++round) {
    const std::string bytes = RandomBytes(random, random() % 40);
    field.SetBytes(bytes);
    ASSERT_EQ(field.Bytes(), bytes) << round;
  }
}

TEST(LineFieldTest, TheInputMethodsTextIsMadeFit) {
  LineField field;
  QInputMethodEvent event;
  event.setCommitString(u"\u4E2D\u00E9"_qs);
  QApplication::sendEvent(&field, &event);
  EXPECT_EQ(field.Bytes(), "?\xE9");
}

TEST(LineFieldTest, TypingOverASelectionCanBeTakenBack) {
  LineField field;
  field.SetBytes("old");
  TypeInto(field, u"\u4E2D"_qs);
  EXPECT_EQ(field.Bytes(), "?");
  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field.Bytes(), "old");
}

TEST(LineFieldTest, TellsByATipWhereNobodyListens) {
  LineField field;
  field.show();
  QApplication::clipboard()->setText(u"\u4E2D\u6587"_qs);
  QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(QToolTip::text(), "2 characters that an iPod note cannot hold became \"?\".");
}

void Drop(QWidget& target, const QString& text) {
  QMimeData mime;
  mime.setText(text);
  QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &enter);
  QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &drop);
}

TEST(LineFieldTest, DroppedTextIsMadeFit) {
  LineField field;
  Drop(field, u"a\n\u4E2D"_qs);
  EXPECT_EQ(field.Bytes(), "a ?");
}

TEST(BodyFieldTest, DroppedTextIsMadeFit) {
  BodyField field;
  Drop(*field.viewport(), u"a\n\u4E2D"_qs);
  EXPECT_EQ(field.Bytes(), "a\r\n?");
}

TEST(TextConversionTest, CountsACharacterBeyondTheBasicPlaneOnce) {
  EXPECT_EQ(ToBytes(u"a\U0001F600b"_qs, CodePage::Windows1252()), "a?b");
  const FittedText fitted = Fit(u"\U0001F600"_qs, CodePage::Windows1252(), u' ');
  EXPECT_EQ(fitted.Text, "?");
  EXPECT_EQ(fitted.Replaced, 1);
}

}  // namespace
}  // namespace tavrel::test
