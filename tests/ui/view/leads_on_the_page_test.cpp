#include <QTest>
#include <QTimer>

#include <string>
#include <utility>
#include <vector>

#include "ui/main/page_grids.h"
#include "ui/view/find_all_panel_test.h"

namespace tavrel::test {
namespace {

/// Being led on the page that is being edited.
class LeadsOnThePageTest : public FindAllPanelTest {
 protected:
  /// Types the words of a link, which has no target yet.
  void TypeHalfALink(int row) {
    ClickRow(LinksGrid(), row);
    TypeInto(LinkText(), "half");
  }

  void EmptyFirstLink() {
    ClickRow(LinksGrid(), 1);
    TypeInto(LinkText(), "");
    TypeInto(LinkTarget(), "");
    PressKey(LinkTarget().Field(), Qt::Key_Return);
    LetPanelsLook();
  }

  void ClickHit(const std::string& row) { ClickRowOf(Hits(), RowWith(Hits(), row)); }

  /// From now on nothing that is typed is looked at but by what people do.
  void StopLooking() { Find<QTimer>(Window(), "LookTimer").stop(); }
};

TEST_F(LeadsOnThePageTest, WordsOfALinkWithoutATargetStay) {
  OpenOrchard();
  const std::string stored = Stored(1);
  TypeHalfALink(2);
  Look("Start");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Text3 [Start]");
  EXPECT_EQ(LinkText().Bytes(), "half");
  Look("On");
  ClickHit("001 | Link text 1");
  EXPECT_EQ(Where(), "page 1, link 1, Text5 [On]");
  EXPECT_EQ(LinksGrid().TextMatrix(2, kTextColumn), "half");
  ClickRow(LinksGrid(), 2);
  EXPECT_EQ(LinkText().Bytes(), "half");
  EXPECT_EQ(Stored(1), stored);
}

TEST_F(LeadsOnThePageTest, AMusicLinkThatWasTypedBeforeItsTextStays) {
  OpenOrchard();
  const std::string stored = Stored(1);
  TypeInto(MusicLink(), "M5");
  Look("Start");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Text3 [Start]");
  EXPECT_EQ(MusicLink().Bytes(), "M5");
  EXPECT_EQ(Stored(1), stored);
}

TEST_F(LeadsOnThePageTest, TypedWordsAreNotStoredAndTheirFieldCanStillTakeThemBack) {
  OpenOrchard();
  const std::string stored = Stored(1);
  TypeInto(Title(), "Pear");
  Look("Nothing");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Text1 [Nothing]");
  EXPECT_EQ(Title().Bytes(), "Pear");
  EXPECT_EQ(Stored(1), stored);
  EXPECT_TRUE(Title().HasUndo());
}

TEST_F(LeadsOnThePageTest, AHalfTypedLinkBetweenTheRowsDoesNotShiftThem) {
  OpenOrchard();
  TypeHalfALink(2);
  ClickRow(LinksGrid(), 3);
  TypeInto(LinkText(), "Last");
  TypeInto(LinkTarget(), "005\n");
  Look("Last");
  ASSERT_TRUE(WaitForRows(1));
  EXPECT_EQ(RowsOf(Hits()), Rows{"001 | Link text 2 | Last"}) << "as the page is stored";
  ClickRow(LinksGrid(), 1);
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, link 3, Text5 [Last]");
  Look("005");
  ClickRow(LinksGrid(), 1);
  ClickHit("001 | Link to 2");
  EXPECT_EQ(Where(), "page 1, link 3, Combo1 [005]");
}

TEST_F(LeadsOnThePageTest, ALinkThatTheClickItselfHasPutInFrontDoesNotShiftTheRows) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title>\r\n 2 ,<title>U</title>\r\n");
  Choose("ViewFindAll");
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkText(), "gold");
  TypeInto(LinkTarget(), "2\n");
  for (const std::string word : {"gold", "002"}) {
    Look(QString::fromStdString(word));
    ASSERT_TRUE(WaitForRows(1));
    ClickRow(LinksGrid(), 1);
    TypeInto(LinkText(), "first");
    // The field keeps it to itself until the click takes the focus away.
    TypeInto(LinkTarget(), "1");
    LetPanelsLook();
    ClickRowOf(Hits(), 0);
    EXPECT_EQ(Where(), word == "gold" ? "page 1, link 2, Text5 [gold]" : "page 1, link 2, Combo1 [2]");
    EmptyFirstLink();
  }
}

TEST_F(LeadsOnThePageTest, ALinkThatTheClickItselfHasPutInFrontOfOthersThatAreAlikeDoesNotShiftTheRows) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title>\r\n 2 ,<title>U</title>\r\n");
  Choose("ViewFindAll");
  const std::vector<std::pair<const char*, const char*>> links = {
      {"back", "1\n"}, {"gold", "2\n"}, {"back", "2\n"}};
  for (int row = 2; row <= 4; ++row) {
    ClickRow(LinksGrid(), row);
    TypeInto(LinkText(), links[static_cast<std::size_t>(row) - 2].first);
    TypeInto(LinkTarget(), links[static_cast<std::size_t>(row) - 2].second);
  }
  struct Case {
    const char* Words;
    int Hit;
    const char* Place;
  };
  for (const Case& hit : {Case{"back", 0, "link 2, Text5 [back]"}, Case{"back", 1, "link 4, Text5 [back]"},
                          Case{"002", 0, "link 3, Combo1 [2]"}, Case{"002", 1, "link 4, Combo1 [2]"}}) {
    Look(hit.Words);
    ASSERT_TRUE(WaitForRows(2));
    ClickRow(LinksGrid(), 1);
    TypeInto(LinkText(), "first");
    TypeInto(LinkTarget(), "2");
    LetPanelsLook();
    ClickRowOf(Hits(), hit.Hit);
    EXPECT_EQ(Where(), std::string("page 1, ") + hit.Place) << hit.Words << hit.Hit;
    EmptyFirstLink();
  }
}

TEST_F(LeadsOnThePageTest, BlanksThatTheRecordHasInFrontAreSelectedWithTheWords) {
  OpenWith("\r\n 1 ,<title>  T</title><text>  poem of pear</text>\r\n");
  Look("  poem");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Text1 [  poem]");
  Look(" ");
  for (const int hit : {0, 1}) {
    ClickRowOf(Hits(), hit);
    EXPECT_EQ(Where(), "page 1, Text3 [ ]") << hit;
    EXPECT_EQ(Title().selectionStart(), hit);
  }
}

TEST_F(LeadsOnThePageTest, BlanksThatAreNotShownSelectNothing) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><link>" + LinkRecord("  word", "001") + "</link>\r\n");
  Choose("ViewFindAll");
  ClickRow(LinksGrid(), 2);
  ClickRow(LinksGrid(), 1);
  ASSERT_EQ(LinkText().Bytes(), "word");
  Look(" ");
  ASSERT_TRUE(WaitForRows(2));
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, link 1, Text5 []");
}

TEST_F(LeadsOnThePageTest, AMusicLinkInSmallLettersBehindBlanksIsSelected) {
  OpenDocument("Doc.dat", " 7 ,<song>S</song>\r\n\r\n 1 ,<title>T</title>\r\n");
  Choose("ViewFindAll");
  TypeInto(MusicText(), "song");
  TypeInto(MusicLink(), "  m7");
  Look("M7");
  ASSERT_TRUE(WaitForRows(1));
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Combo2 [m7]");
}

TEST_F(LeadsOnThePageTest, EachRowLeadsToItsOwnWordsThoughTheFieldIsWrittenOtherwise) {
  OpenOrchard();
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkText(), "x");
  TypeInto(LinkTarget(), "22\n");
  LetPanelsLook();
  Look("2");
  ASSERT_EQ(RowsOf(Hits()).at(1), "001 | Link to 2 | 022");
  for (const int hit : {1, 2}) {
    ClickRowOf(Hits(), hit);
    EXPECT_EQ(Where(), "page 1, link 2, Combo1 [2]");
    EXPECT_EQ(LinkTarget().Field().selectionStart(), hit - 1);
  }
  TypeInto(Note(), "<text>");
  TypeInto(Body(), "an apple and an apple");
  LetPanelsLook();
  Look("apple");
  ASSERT_TRUE(WaitForRows(2));
  for (const int hit : {0, 1}) {
    ClickRowOf(Hits(), hit);
    EXPECT_EQ(Body().textCursor().selectionStart(), hit == 0 ? 3 : 16);
  }
}

TEST_F(LeadsOnThePageTest, BlanksTypedInFrontDoNotShiftTheSelection) {
  OpenOrchard();
  ClickRow(PagesGrid(), 2);
  ClickRow(LinksGrid(), 2);
  for (QWidget* field : {static_cast<QWidget*>(&Title()), static_cast<QWidget*>(&Note()),
                         static_cast<QWidget*>(&Body()), static_cast<QWidget*>(&LinkText()),
                         static_cast<QWidget*>(&LinkTarget().Field()), static_cast<QWidget*>(&MusicText())})
    TypeInFront(*field, "   ");
  Look("pear");
  LetPanelsLook();
  const std::vector<std::string> places = {"Text3 [Pear]", "Text4 [pear]",         "Text1 [pear]",
                                           "Text1 [PEAR]", "link 2, Text5 [pear]", "Text6 [Pear]"};
  for (std::size_t row = 0; row < places.size(); ++row) {
    ClickRowOf(Hits(), static_cast<int>(row));
    EXPECT_EQ(Where(), "page 2, " + places[row]) << kPears[row];
  }
  Look("001");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 2, link 2, Combo1 [001]");
  EXPECT_EQ(Title().Bytes(), "   Pear tart") << "the blanks stay until the page is stored";
}

TEST_F(LeadsOnThePageTest, BlanksTypedIntoAPageThatTheEditorHasNotStoredYetDoNotShiftTheSelection) {
  // The editor stores the note in front of the text, so storing would write another record than this one.
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><text>first page of all</text><note>n</note>\r\n");
  Choose("ViewFindAll");
  TypeInFront(Body(), "  ");
  LetPanelsLook();
  Look("page of");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Text1 [page of]");
  EXPECT_EQ(Body().textCursor().selectionStart(), 8);
}

TEST_F(LeadsOnThePageTest, BlanksThatTheGridHasTakenOffDoNotShiftTheSelection) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><link>" + LinkRecord("  word", "  002") +
                              LinkRecord("b", "002") + "</link>\r\n");
  Choose("ViewFindAll");
  for (int time = 1; time <= 2; ++time) {
    Look("word");
    ClickRowOf(Hits(), 0);
    EXPECT_EQ(Where(), "page 1, link 1, Text5 [word]") << time;
    Look("002");
    ClickRowOf(Hits(), 0);
    EXPECT_EQ(Where(), "page 1, link 1, Combo1 [002]") << time;
    ClickRow(LinksGrid(), 2);
    LetPanelsLook();
  }
  EXPECT_EQ(LinksGrid().TextMatrix(1, kTextColumn), "word");
}

TEST_F(LeadsOnThePageTest, OfATargetThatIsTypedWithFewerDigitsAllIsSelected) {
  OpenOrchard();
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkText(), "x");
  TypeInto(LinkTarget(), "7\n");
  for (const char* word : {"7", "007", "07"}) {
    Look(word);
    ASSERT_TRUE(WaitForRows(1));
    ClickRowOf(Hits(), 0);
    EXPECT_EQ(Where(), "page 1, link 2, Combo1 [7]") << word;
  }
}

TEST_F(LeadsOnThePageTest, WordsBehindATagInAnotherFieldAreSelectedWhereTheyStand) {
  OpenOrchard();
  TypeInto(Note(), "<text>");
  TypeInto(Body(), "an apple");
  LetPanelsLook();
  // The record's text now begins at the note's tag.
  Look("apple");
  ASSERT_TRUE(WaitForRows(1));
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, Text1 [apple]");
}

TEST_F(LeadsOnThePageTest, WordsThatHaveMovedSinceTheLastLookAreNotSelectedByTheirOldPlace) {
  OpenOrchard();
  ClickRow(PagesGrid(), 2);
  Look("pear");
  LetPanelsLook();
  StopLooking();
  TypeInFront(Title(), "longer ");
  TypeInFront(Body(), "longer ");
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 2, Text3 []");
  ClickHit("Link text 2");
  EXPECT_EQ(Where(), "page 2, link 2, Text5 [pear]");
  TypeInFront(Body(), "still ");
  ClickHit("longer One");
  EXPECT_EQ(Where(), "page 2, Text1 []");
  // "still longer One " stood before the word when the row was shown with "longer One " before it.
  EXPECT_EQ(Body().textCursor().position(), 11) << "near to where it was";
  ClickHit("still longer One");
  EXPECT_EQ(Where(), "page 2, Text1 [pear]") << "the list was renewed";
}

TEST_F(LeadsOnThePageTest, AFieldThatWasEmptiedSinceTheLastLookIsLedToAllTheSame) {
  OpenOrchard();
  ClickRow(PagesGrid(), 2);
  Look("pear");
  LetPanelsLook();
  StopLooking();
  TypeInto(Body(), "");
  ClickRowOf(Hits(), 3);
  EXPECT_EQ(Where(), "page 2, Text1 []");
  EXPECT_EQ(Body().Bytes(), "");
}

}  // namespace
}  // namespace tavrel::test
