#include <QTextCursor>

#include "ui/editing/edit_dialogs.h"

namespace tavrel::test {
namespace {

const Texts kNotFound = {"Find|exclamation|Not found!    |OK"};

class FindTest : public EditDialogsTest {
 protected:
  /// `start` counts every line break as one character, as the caret does.
  void ExpectMatch(int page, const QString& selected, int start) {
    ExpectCurrentPage(page);
    EXPECT_EQ(Body().textCursor().selectedText(), selected);
    EXPECT_EQ(Body().textCursor().selectionStart(), start);
    EXPECT_TRUE(Messages.Shown.empty());
  }

  void ExpectNotFound(int page) {
    EXPECT_EQ(Seen(Messages.Shown), kNotFound);
    EXPECT_EQ(Messages.LastParent, &Window());
    ExpectCurrentPage(page);
    Messages.Shown.clear();
  }

  /// Opens a document whose page 1 has this text.
  void OpenText(const std::string& text) {
    OpenDocument("Doc.dat", "\r\n 1 ,<text>" + text + "</text>\r\n");
    Messages.Shown.clear();
  }
};

TEST_F(FindTest, FindsTheFirstPageWhoseTextHoldsIt) {
  OpenDocument("Fruit.dat", kFruit);
  ClickRow(PagesGrid(), 8);
  SearchFor("apple");
  ExpectMatch(1, "Apple", 0);
  EXPECT_EQ(Title().Bytes(), "apple");
  EXPECT_TRUE(Body().hasFocus());
}

TEST_F(FindTest, MatchedCasePassesOverOtherLetters) {
  OpenDocument("Fruit.dat", kFruit);
  SearchFor("apple", true);
  ExpectMatch(5, "apple", 0);
  SearchFor("APPLE", true);
  ExpectMatch(6, "APPLE", 2);
  SearchFor("aPPLE", true);
  ExpectNotFound(6);
}

TEST_F(FindTest, TitlesNotesLinksAndMusicAreNotSearched) {
  OpenDocument("Songs.dat", kSongs);
  TypeInto(Note(), "remark");
  for (const char* text : {"Start", "remark", "002", "Play", "M1", "Blue", "<text>", "linkto"}) {
    SearchFor(text);
    ExpectNotFound(1);
  }
  SearchFor("<part two>");
  ExpectMatch(1, "<Part two>", 4);
}

TEST_F(FindTest, FindNextPassesOverTheNextPage) {
  OpenDocument("Fruit.dat", kFruit);
  SearchFor("apple");
  ClickRow(PagesGrid(), 4);
  Choose("EditFindNext");
  ExpectMatch(6, "APPLE", 2);
  Choose("EditFindNext");
  ExpectNotFound(6);
  EXPECT_EQ(Body().Bytes(), "x APPLE");
}

TEST_F(FindTest, FindNextMatchesCaseIfFindDid) {
  OpenDocument("Fruit.dat", kFruit);
  SearchFor("apple", true);
  ClickRow(PagesGrid(), 4);
  Choose("EditFindNext");
  ExpectNotFound(4);
  ClickRow(PagesGrid(), 3);
  Choose("EditFindNext");
  ExpectMatch(5, "apple", 0);
}

TEST_F(FindTest, FurtherMatchesOfThePageAreNotFoundAgain) {
  OpenDocument("Doc.dat", "\r\n 1 ,<text>a</text>\r\n 3 ,<text>pear pear</text>\r\n");
  ClickRow(PagesGrid(), 3);
  SearchFor("pear");
  ExpectMatch(3, "pear", 0);
  Choose("EditFindNext");
  ExpectNotFound(3);
}

TEST_F(FindTest, FindNextBeforeAnySearchDoesNothing) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "Changed");
  Choose("EditFindNext");
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_EQ(State.Page(1), "<title>A</title><text>one</text>");
  EXPECT_TRUE(Title().hasFocus());
}

TEST_F(FindTest, BothStoreThePageFirst) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 3);
  TypeInto(Body(), "a zebra");
  SearchFor("zebra");
  ExpectMatch(3, "zebra", 2);
  EXPECT_EQ(State.Page(3), "<title>C</title><text>a zebra</text>");
  TypeInto(Title(), "Z");
  Choose("EditFindNext");
  ExpectNotFound(3);
  EXPECT_EQ(State.Page(3), "<title>Z</title><text>a zebra</text>");
  EXPECT_EQ(PagesGrid().TextMatrix(3, 1), "Z");
}

TEST_F(FindTest, BlanksAroundTheTextDoNotCount) {
  OpenText("a cat");
  SearchFor(" cat ");
  ExpectMatch(1, "cat", 2);
  EXPECT_EQ(State.FindText, "cat");
  SearchFor("a  cat");
  ExpectNotFound(1);
}

TEST_F(FindTest, TheSelectionBehindLineBreaksIsExactlyTheMatch) {
  OpenText("ab<p>cat");
  SearchFor("cat");
  ExpectMatch(1, "cat", 3);
  OpenText("<p><p>x<p>y <p>Cat<p>cat<p>");
  SearchFor("cat");
  ExpectMatch(1, "Cat", 7);
}

TEST_F(FindTest, ALoneCarriageReturnOrLineFeedCountsAsOneCharacter) {
  OpenText("x");
  State.Page(1) = "<text>a\rb\r\nc\nd\r\ncat</text>";
  Window().LoadPage(1);
  SearchFor("cat");
  ExpectMatch(1, "cat", 8);
}

TEST_F(FindTest, TheSelectionInALongTextIsExactlyTheMatch) {
  std::string lines;
  for (int line = 0; line < 9000; ++line) lines += "12345678<p>";
  OpenText(lines + "x needle");
  SearchFor("Needle");
  ExpectMatch(1, "needle", 9000 * 9 + 2);
  EXPECT_TRUE(Body().viewport()->rect().contains(Body().cursorRect().center()));
}

TEST_F(FindTest, CapitalsOfTheWholeCodePageEqualTheirSmallLetters) {
  OpenText("un caf\xC9 noir");
  SearchFor(u"CAF\u00E9"_qs);
  ExpectMatch(1, u"caf\u00C9"_qs, 3);
  SearchFor(u"caf\u00E9"_qs, true);
  ExpectNotFound(1);
  SearchFor(u"caf\u00C9"_qs, true);
  ExpectMatch(1, u"caf\u00C9"_qs, 3);
}

TEST_F(FindTest, SignsOfPatternsStandForThemselves) {
  OpenText("abc a.c [x] 100% \\d");
  SearchFor("a.c");
  ExpectMatch(1, "a.c", 4);
  SearchFor("[x] 100% \\D");
  ExpectMatch(1, "[x] 100% \\d", 8);
  SearchFor("*");
  ExpectNotFound(1);
}

TEST_F(FindTest, AWordThatBeginsAgainInsideItselfIsFound) {
  OpenText("aab aaab");
  SearchFor("aaab");
  ExpectMatch(1, "aaab", 4);
}

TEST_F(FindTest, TheLastPageIsSearched) {
  OpenDocument("Doc.dat", "\r\n 1 ,<text>a</text>\r\n 999 ,<text>at the end</text>\r\n");
  SearchFor("end");
  ExpectMatch(999, "end", 7);
  for (const int page : {997, 1}) {
    ClickRow(PagesGrid(), page);
    Choose("EditFindNext");
    ExpectMatch(999, "end", 7);
  }
  for (const int page : {998, 999}) {
    ClickRow(PagesGrid(), page);
    Choose("EditFindNext");
    ExpectNotFound(page);
  }
}

TEST_F(FindTest, AMatchOnAPageThatCannotBeShownIsARunTimeError) {
  OpenDocument("Doc.dat", "\r\n 1 ,<text>a</text>\r\n 1000 ,<text>beyond</text>\r\n");
  SearchFor("beyond");
  ASSERT_EQ(Program.Failures.size(), 1U);
  EXPECT_NE(Program.Failures[0].find("Doc.dat\n"), std::string::npos);
  EXPECT_NE(Program.Failures[0].find("Save the project and open it again."), std::string::npos);
  ClickRow(PagesGrid(), 998);
  Choose("EditFindNext");
  EXPECT_EQ(Program.Failures.size(), 2U);
  EXPECT_TRUE(Messages.Shown.empty());
  ClickRow(PagesGrid(), 999);
  Choose("EditFindNext");
  ExpectNotFound(999);
  EXPECT_EQ(Program.Failures.size(), 2U);
}

TEST_F(FindTest, ThePageBeforeAMatchThatCannotBeShownWins) {
  OpenDocument("Doc.dat", "\r\n 999 ,<text>beyond</text>\r\n 1000 ,<text>beyond</text>\r\n");
  SearchFor("beyond");
  ExpectMatch(999, "beyond", 0);
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(FindTest, KeysOpenTheDialogAndGoOn) {
  OpenDocument("Fruit.dat", kFruit);
  Player.Expect("FindForm", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "apple");
    Click(dialog, "Command1");
  });
  PressKey(Body(), Qt::Key_F, Qt::ControlModifier);
  ActivateWindow(Window());
  ExpectMatch(1, "Apple", 0);
  PressKey(Body(), Qt::Key_F3);
  ExpectMatch(5, "apple", 0);
}

TEST_F(FindTest, WithoutADocumentKeysDoNothing) {
  Start();
  State.FindText = "kept";
  for (const Qt::Key key : {Qt::Key_F, Qt::Key_H}) PressKey(Window(), key, Qt::ControlModifier);
  PressKey(Window(), Qt::Key_F3);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(FindTest, ALinkThatWasBeingTypedIsNotLostWhenNothingIsFound) {
  OpenDocument("Trio.dat", kTrio);
  for (const char* item : {"EditSearch", "EditFindNext"}) {
    const int row = item == std::string("EditSearch") ? 1 : 2;
    ClickRow(LinksGrid(), row);
    TypeInto(LinkText(), "new");
    TypeInto(LinkTarget(), "2");
    if (row == 1) {
      SearchFor("zzz");
    } else {
      Choose(item);
    }
    EXPECT_EQ(LinksGrid().TextMatrix(row, 0), "new");
    EXPECT_EQ(LinksGrid().TextMatrix(row, 1), "2");
  }
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Page(1),
            "<title>A</title><text>one</text><link><linktext>new</linktext><linkto>002</linkto>"
            "<linktext>new</linktext><linkto>002</linkto></link>");
}

}  // namespace
}  // namespace tavrel::test
