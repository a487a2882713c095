#include <QLabel>

#include "ui/editing/edit_dialogs.h"

namespace tavrel::test {
namespace {

class ReplaceTest : public EditDialogsTest {
 protected:
  /// Opens a document whose page 1 has this text.
  void OpenText(const std::string& text) {
    OpenDocument("Doc.dat", "\r\n 1 ,<text>" + text + "</text>\r\n");
    Messages.Shown.clear();
  }

  /// Expects page 1 to hold and to show a text, and no message.
  void ExpectText(const std::string& text) {
    EXPECT_EQ(State.Page(1), "<text>" + text + "</text>");
    EXPECT_EQ(Body().Bytes(), text);
    EXPECT_TRUE(Messages.Shown.empty());
  }
};

TEST_F(ReplaceTest, EveryMatchIsReplacedWithoutAMessage) {
  OpenText("cat cat");
  Replace("cat", "dog");
  ExpectText("dog dog");
  Replace("cat", "dog");
  ExpectText("dog dog");
}

TEST_F(ReplaceTest, MatchedCaseLeavesOtherLetters) {
  OpenText("Cat cat");
  Replace("cat", "Dog", true);
  ExpectText("Cat Dog");
  OpenText("Cat cat");
  Replace("cat", "Dog", false);
  ExpectText("Dog Dog");
}

TEST_F(ReplaceTest, NothingTakesTheMatchesOut) {
  OpenText("one cat, two cat");
  Replace("cat", "");
  ExpectText("one , two ");
}

TEST_F(ReplaceTest, TheSearchGoesOnOneLengthOfTheTextBehindTheReplacementsStart) {
  OpenText("cat cat");
  Replace("cat", "");
  ExpectText(" cat");
  OpenText("catcat");
  Replace("cat", "");
  ExpectText("cat");
  OpenText("cat cat cat");
  Replace("cat", "x");
  ExpectText("x cat x");
  OpenText("cat");
  Replace("cat", "catx");
  ExpectText("catx");
}

TEST_F(ReplaceTest, ReplacementsAreComparedAsTyped) {
  OpenText("cat");
  Replace("cat", "xxxCat");
  ExpectText("xxxCat");
}

// Matches at 1, 4, 7, ... 32767: 10,923 of them, each of which makes the text three characters longer.
TEST_F(ReplaceTest, AReplacementThatHoldsTheTextEndsWhenPositionsDo) {
  OpenDocument("Doc.dat", "\r\n 1 ,<text>cat</text>\r\n 2 ,<text>no</text>\r\n 3 ,<text>cat</text>\r\n");
  Replace("cat", "catcat");
  std::string cats;
  for (int count = 0; count < 10923 + 1; ++count) cats += "cat";
  EXPECT_EQ(Body().Bytes(), cats);
  EXPECT_EQ(State.Page(2), "<text>no</text>");
  EXPECT_EQ(State.Page(3), "<text>" + cats + "</text>");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(ReplaceTest, TheTextIsTrimmedAndTheReplacementIsNot) {
  OpenText("a-b-c");
  Replace("  b ", " dog ");
  ExpectText("a- dog -c");
  EXPECT_EQ(State.FindText, "b");
}

TEST_F(ReplaceTest, CapitalsOfTheWholeCodePageEqualTheirSmallLetters) {
  OpenText("CAF\xC9 caf\xE9");
  Replace(u"caf\u00E9"_qs, u"th\u00E9"_qs);
  ExpectText("th\xE9 th\xE9");
}

TEST_F(ReplaceTest, LineBreaksStay) {
  OpenText("cat<p>a cat<p>");
  Replace("cat", "dog");
  ExpectText("dog\r\na dog\r\n");
}

TEST_F(ReplaceTest, AllPagesAreReplacedButOnlyTheirTexts) {
  OpenDocument("Doc.dat",
               "\r\n 1 ,<title>cat</title><note>cat</note><text>cat</text><link><linktext>cat</linktext>"
               "<linkto>002</linkto></link><music>cat</music><music>M1</music>\r\n 2 ,<title>cat</title>\r\n"
               " 999 ,<title>end</title><text>a Cat</text>\r\n");
  Replace("cat", "dog");
  EXPECT_EQ(State.Page(1),
            "<title>cat</title><note>cat</note><text>dog</text><link><linktext>cat</linktext>"
            "<linkto>002</linkto></link><music>cat</music><music>M1</music>");
  EXPECT_EQ(State.Page(2), "<title>cat</title>");
  EXPECT_EQ(State.Page(3), "");
  EXPECT_EQ(State.Page(999), "<title>end</title><text>a dog</text>");
}

TEST_F(ReplaceTest, ATextThatBecomesEmptyKeepsItsElementUntilItsPageIsStored) {
  OpenDocument("Doc.dat", "\r\n 1 ,<text>a</text>\r\n 2 ,<title>B</title><text>cat</text>\r\n");
  Replace("cat", "");
  EXPECT_EQ(State.Page(2), "<title>B</title><text></text>");
  ClickRow(PagesGrid(), 2);
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(State.Page(2), "<title>B</title>");
}

TEST_F(ReplaceTest, TheShownPageIsStoredFirstAndShownAgain) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 2);
  TypeInto(Body(), "my cat ");
  TypeInto(Title(), " Two ");
  Replace("cat", "dog");
  EXPECT_EQ(State.Page(2), "<title>Two</title><text>my dog</text>");
  EXPECT_EQ(Body().Bytes(), "my dog");
  EXPECT_EQ(Title().Bytes(), "Two");
  ExpectCurrentPage(2);
}

TEST_F(ReplaceTest, FindNextLooksForTheSameTextWithTheCaseOfFind) {
  OpenDocument("Fruit.dat", kFruit);
  Replace("apple", "apple", true);
  EXPECT_EQ(State.FindText, "apple");
  ClickRow(PagesGrid(), 4);
  Choose("EditFindNext");
  ExpectCurrentPage(6);
  SearchFor("none", true);
  Replace("apple", "APPLE", false);
  ClickRow(PagesGrid(), 3);
  Choose("EditFindNext");
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Find|exclamation|Not found!    |OK"});
  ExpectCurrentPage(3);
}

TEST_F(ReplaceTest, WhatFindLeftIsOffered) {
  OpenDocument("Fruit.dat", kFruit);
  SearchFor(" pine ");
  Player.Expect("ReplaceForm", [](QWidget& dialog) {
    EXPECT_EQ(Find<LineField>(dialog, "Text1").text(), "pine");
    TypeInto(dialog, "Text2", "fir");
    Click(dialog, "Command1");
  });
  PressKey(Body(), Qt::Key_H, Qt::ControlModifier);
  EXPECT_EQ(State.Page(8), "<text>fir</text>");
  EXPECT_EQ(Body().Bytes(), "fir");
}

TEST_F(ReplaceTest, ADocumentWithoutPagesStaysSo) {
  OpenDocument("Empty.dat", "\r\n");
  Replace("a", "b");
  EXPECT_EQ(State.Page(1), "");
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(ReplaceTest, WhatIsSavedAfterwardsIsTheReplacedText) {
  OpenDocument("Trio.dat", kTrio);
  Replace("o", "0");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>A</title><text>0ne</text>\r\n"
            " 2 ,<title>B</title><text>tw0</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(ReplaceTest, AReplacementThatWouldEndTheTextIsTold) {
  OpenText("a cat");
  Play("EditReplace", "ReplaceForm", [](QWidget& dialog) {
    const auto& notice = Find<QLabel>(dialog, "TagNotice");
    TypeInto(dialog, "Text2", "</text>");
    EXPECT_EQ(notice.text(), "A page cannot keep what follows \"</text>\" in this field.");
    TypeInto(dialog, "Text2", "<text>");
    EXPECT_EQ(notice.text(), "");
    Click(dialog, "Command2");
  });
}

}  // namespace
}  // namespace tavrel::test
