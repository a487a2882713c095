#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QStatusBar>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

class FieldNoticesTest : public WindowTest {
 protected:
  void SetUp() override { OpenDocument("Trio.dat", kTrio); }

  void Paste(QWidget& field, const QString& text) {
    TypeInto(field, "");
    QApplication::clipboard()->setText(text);
    PressKey(field, Qt::Key_V, Qt::ControlModifier);
  }

  std::string StatusText() { return Window().statusBar()->currentMessage().toStdString(); }
  std::string TagNotice() { return Find<QLabel>(Window(), "TagNotice").text().toStdString(); }
};

TEST_F(FieldNoticesTest, ACharacterOutsideTheCodePageBecomesAQuestionMarkAtOnce) {
  TypeInto(Title(), u"a\u0416b"_qs);
  EXPECT_EQ(Title().text(), "a?b");
  EXPECT_EQ(StatusText(), "A character that an iPod note cannot hold became \"?\".");
}

TEST_F(FieldNoticesTest, PastedCharactersAreCountedAndCanBeTakenBack) {
  Paste(Body(), u"x\u0416\u4E2D\U0001F600y \u20AC"_qs);
  EXPECT_EQ(Body().Bytes(), "x???y \x80");
  EXPECT_EQ(StatusText(), "3 characters that an iPod note cannot hold became \"?\".");
  PressKey(Body(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Body().Bytes(), "");
}

TEST_F(FieldNoticesTest, PastedLineBreaksBecomeBlanksInOneLineFields) {
  Paste(Title(), "a\r\nb\nc\rd");
  EXPECT_EQ(Title().Bytes(), "a b c d");
  Paste(LinkTarget().Field(), "00\n2");
  EXPECT_EQ(LinkTarget().Bytes(), "00 2");
  Click(Title());
  PressKey(Title(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(Title().Bytes(), "a b c d");
}

TEST_F(FieldNoticesTest, PastedLineBreaksOfAllKindsAreLineBreaksInTheBody) {
  Paste(Body(), u"a\r\nb\nc\rd\u2028e\u2029f"_qs);
  EXPECT_EQ(Body().Bytes(), "a\r\nb\r\nc\r\nd\r\ne\r\nf");
}

TEST_F(FieldNoticesTest, ShiftEnterIsALineBreakToo) {
  TypeInto(Body(), "a");
  PressKey(Body(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Body().Bytes(), "a\r\n");
}

TEST_F(FieldNoticesTest, AClosingTagIsToldWhileItStands) {
  TypeInto(Body(), "a</text>b");
  EXPECT_EQ(TagNotice(), "A page cannot keep what follows \"</text>\" in this field.");
  TypeInto(Body(), "ab");
  EXPECT_EQ(TagNotice(), "");
}

TEST_F(FieldNoticesTest, EveryFieldKnowsItsOwnClosingTags) {
  const std::pair<QWidget*, QString> fields[] = {
      {&Title(), "</title>"},     {&Note(), "</note>"},         {&LinkText(), "</linktext>"},
      {&LinkText(), "</link>"},   {&LinkTarget(), "</linkto>"}, {&MusicText(), "</music>"},
      {&MusicLink(), "</music>"},
  };
  for (const auto& [field, tag] : fields) {
    TypeInto(*field, tag);
    EXPECT_EQ(TagNotice(), "A page cannot keep what follows \"" + tag.toStdString() + "\" in this field.");
    TypeInto(*field, "");
    EXPECT_EQ(TagNotice(), "") << tag.toStdString();
  }
}

TEST_F(FieldNoticesTest, TheTagOfAnotherElementIsNoMatter) {
  TypeInto(Body(), "a</title>b");
  EXPECT_EQ(TagNotice(), "");
}

TEST_F(FieldNoticesTest, TheNoticeNamesATagThatStillStands) {
  TypeInto(Title(), "</title>");
  TypeInto(Note(), "</note>");
  TypeInto(Note(), "");
  EXPECT_EQ(TagNotice(), "A page cannot keep what follows \"</title>\" in this field.");
}

TEST_F(FieldNoticesTest, AnotherFieldsTagIsToldToo) {
  TypeInto(Title(), "see <text>x</text>");
  EXPECT_EQ(TagNotice(), "A page takes \"<text>\" in this field for its own markup.");
  TypeInto(Title(), "see <title>");
  EXPECT_EQ(TagNotice(), "");
  TypeInto(Body(), "hear <music>");
  EXPECT_EQ(TagNotice(), "A page takes \"<music>\" in this field for its own markup.");
  TypeInto(Body(), "see <link> and <b>");
  EXPECT_EQ(TagNotice(), "");
}

TEST_F(FieldNoticesTest, TheTagOfAnEarlierElementIsTakenForItIfThatIsEmpty) {
  for (const std::string tag : {"<title>", "<note>"}) {
    TypeInto(Body(), QString::fromStdString(tag));
    EXPECT_EQ(TagNotice(), "A page takes \"" + tag + "\" in this field for its own markup.");
  }
  TypeInto(Body(), "<link></link>");
  EXPECT_EQ(TagNotice(), "A page cannot keep what follows \"</link>\" in this field.");
}

}  // namespace
}  // namespace tavrel::test
