#include "ui/view/find_all_panel_test.h"

#include <QCheckBox>
#include <QStatusBar>
#include <QTest>

#include <algorithm>
#include <gmock/gmock.h>

namespace tavrel::test {
namespace {

using testing::ElementsAre;

TEST_F(FindAllPanelTest, OneTypesAtOnceWhenItOpens) {
  OpenDocument("Doc.dat", Orchard());
  PressOnFocus(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(FindWhat().hasFocus());
  EXPECT_EQ(FindWhat().text(), "");
  EXPECT_EQ(Count(), "");
}

TEST_F(FindAllPanelTest, OpenedAgainItsTextCanBeTypedOver) {
  OpenOrchard();
  Look("pear");
  Choose("ViewFindAll");
  Choose("ViewFindAll");
  EXPECT_TRUE(FindWhat().hasFocus());
  EXPECT_EQ(FindWhat().selectedText(), "pear");
  EXPECT_EQ(RowsOf(Hits()), kPears);
}

TEST_F(FindAllPanelTest, EachHitIsARowWithPageFieldAndTheWordsAround) {
  OpenOrchard();
  EXPECT_EQ(HitsOf("pear"), kPears);
  EXPECT_EQ(Count(), "7 hits");
}

TEST_F(FindAllPanelTest, HitsAppearAsOneTypes) {
  OpenOrchard();
  FindWhat().setFocus();
  QTest::keyClicks(&FindWhat(), "pear");
  EXPECT_TRUE(WaitForRows(7));
  QTest::keyClicks(&FindWhat(), "s");
  EXPECT_TRUE(WaitForRows(1));
  EXPECT_THAT(RowsOf(Hits()), ElementsAre("002 | Text | One pear,  two PEARs"));
  EXPECT_EQ(Count(), "1 hit");
  PressKey(FindWhat(), Qt::Key_Backspace);
  EXPECT_TRUE(WaitForRows(7));
  EXPECT_TRUE(FindWhat().hasFocus());
}

TEST_F(FindAllPanelTest, WhatWasFoundStandsAtTheRightInAMirroredWindow) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><text>Text</text>\r\n");
  Choose("ViewFindAll");
  Window().setLayoutDirection(Qt::RightToLeft);
  ASSERT_THAT(HitsOf("ext"), ElementsAre("001 | Text | Text"));
  const QImage picture = Hits().viewport()->grab().toImage();
  const QRect cell = Hits().visualRect(Hits().model()->index(0, 2));
  int first = cell.right();
  for (int y = cell.top(); y <= cell.bottom(); ++y) {
    for (int x = cell.left(); x < cell.right(); ++x) {
      if (qGray(picture.pixel(x, y)) < 100) first = std::min(first, x);
    }
  }
  EXPECT_GT(first, cell.center().x());
  EXPECT_LT(first, cell.right());
}

TEST_F(FindAllPanelTest, WhatWasFoundStandsAtTheHeightOfTheOtherColumns) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><text>Text</text>\r\n");
  Choose("ViewFindAll");
  ASSERT_THAT(HitsOf("ext"), ElementsAre("001 | Text | Text"));
  const QImage picture = Hits().viewport()->grab().toImage();
  const auto top_of_text = [&](int column) {
    const QRect cell = Hits().visualRect(Hits().model()->index(0, column));
    for (int y = cell.top(); y <= cell.bottom(); ++y) {
      for (int x = cell.left(); x < cell.right(); ++x) {
        if (qGray(picture.pixel(x, y)) < 100) return y;
      }
    }
    return -1;
  };
  EXPECT_GE(top_of_text(1), 0);
  EXPECT_EQ(top_of_text(2), top_of_text(1));
}

TEST_F(FindAllPanelTest, TargetsAndMusicLinksAreSearched) {
  OpenOrchard();
  EXPECT_THAT(HitsOf("005"), ElementsAre("002 | Link to 1 | 005"));
  EXPECT_THAT(HitsOf("m1"), ElementsAre("002 | Music link | M1"));
  EXPECT_THAT(HitsOf("00"),
              ElementsAre("001 | Link to 1 | 002", "002 | Link to 1 | 005", "002 | Link to 2 | 001"));
}

TEST_F(FindAllPanelTest, MarkupAndMusicRecordsAreNotSearched) {
  OpenOrchard();
  for (const char* text : {"title", "<", "linkto", "Blue", "song>"}) {
    EXPECT_EQ(HitsOf(text), Rows()) << text;
    EXPECT_EQ(Count(), "0 hits");
  }
}

TEST_F(FindAllPanelTest, MatchCasePassesOverOtherCapitals) {
  OpenOrchard();
  Look("pear");
  Click(Window(), "MatchCase");
  ASSERT_TRUE(Find<QCheckBox>(Window(), "MatchCase").isChecked());
  EXPECT_TRUE(WaitForRows(4));
  EXPECT_THAT(RowsOf(Hits()),
              ElementsAre("002 | Note | my pear note", "002 | Text | One pear,  two PEARs",
                          "002 | Link text 2 | The pear link", "005 | Text | x  y  the CAF\u00C9 pear"));
  EXPECT_THAT(HitsOf("PEAR"), ElementsAre("002 | Text | One pear,  two PEARs"));
  Click(Window(), "MatchCase");
  EXPECT_TRUE(WaitForRows(7));
}

TEST_F(FindAllPanelTest, LongTextsAreCutAroundTheHit) {
  const std::string before(60, 'b');
  const std::string after(60, 'a');
  OpenWith("\r\n 1 ,<text>" + before + "pear" + after + "</text>\r\n");
  EXPECT_THAT(HitsOf("pear"),
              ElementsAre("001 | Text | ..." + std::string(40, 'b') + "pear" + std::string(40, 'a') + "..."));
}

TEST_F(FindAllPanelTest, TheHitItselfStandsOut) {
  OpenWith("\r\n 1 ,<text>pear or pear</text>\r\n");
  Look("pear");
  ASSERT_EQ(Hits().model()->rowCount(), 2);
  const auto painted = [this](int row) {
    return Hits().viewport()->grab(Hits().visualRect(Hits().model()->index(row, 2))).toImage();
  };
  EXPECT_NE(painted(0), painted(1)) << "the same words with another hit in them look the same";
}

TEST_F(FindAllPanelTest, AClearedFieldHasNoHits) {
  OpenOrchard();
  Look("pear");
  TypeInto(FindWhat(), "");
  EXPECT_EQ(RowsOf(Hits()), Rows());
  EXPECT_EQ(Count(), "");
  PressKey(FindWhat(), Qt::Key_Return);
  EXPECT_EQ(State.CurrentPage, 1);
}

TEST_F(FindAllPanelTest, TheListFollowsTypingInTheEditor) {
  OpenOrchard();
  Look("pear");
  TypeInto(Title(), "A pear");
  EXPECT_TRUE(WaitForRows(8));
  EXPECT_EQ(RowsOf(Hits()).front(), "001 | Title | A pear");
  EXPECT_EQ(Count(), "8 hits");
  EXPECT_TRUE(Title().hasFocus());
  TypeInto(LinkText(), "pear\n");
  EXPECT_TRUE(WaitForRows(9));
  EXPECT_EQ(RowsOf(Hits())[1], "001 | Link text 1 | pear");
  TypeInto(Title(), "A plum");
  EXPECT_TRUE(WaitForRows(8));
  EXPECT_EQ(Stored(1).find("pear"), std::string::npos) << "nothing is stored by looking";
}

TEST_F(FindAllPanelTest, TheSelectedHitSurvivesChangesElsewhere) {
  OpenOrchard();
  Look("pear");
  ClickRowOf(Hits(), 4);
  TypeInto(MusicText(), "Pear and pear");
  EXPECT_TRUE(WaitForRows(8));
  EXPECT_EQ(SelectedRow(Hits()), kPears[4]);
  EXPECT_TRUE(MusicText().hasFocus());
}

TEST_F(FindAllPanelTest, TheKeysForUndoInTheFieldTakeBackItsOwnTyping) {
  OpenOrchard();
  TypeInto(Title(), "Typed");
  for (const bool floats : {false, true}) {
    if (floats) {
      ClickFrame("FindAllPanelDock", "float");
      ActivateWindow(Dock("FindAllPanelDock"));
    }
    // Taking back typing that has replaced a word may bring back that word.
    const QString word = floats ? "plum" : "pear";
    TypeInto(FindWhat(), "");
    ASSERT_TRUE(WaitFor([&] { return FindWhat().hasFocus(); })) << floats;
    QTest::keyClicks(&FindWhat(), word);
    PressOnFocus(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(FindWhat().text(), word) << floats;
    EXPECT_EQ(Title().Bytes(), "Typed") << floats;
    PressOnFocus(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(FindWhat().text(), word) << floats;
  }
}

TEST_F(FindAllPanelTest, CharactersBeyondTheCodePageBecomeQuestionMarksAndAreTold) {
  OpenOrchard();
  TypeInto(FindWhat(), u"\u0142ab"_qs);
  EXPECT_EQ(FindWhat().text(), "?ab");
  const QStatusBar& status_bar = *Window().statusBar();
  EXPECT_EQ(status_bar.currentMessage(), "A character that an iPod note cannot hold became \"?\".");
  EXPECT_TRUE(status_bar.isVisible());
}

TEST_F(FindAllPanelTest, WithoutAProjectThereAreNoHits) {
  Choose("ViewFindAll");
  EXPECT_EQ(HitsOf("a"), Rows());
  PressKey(FindWhat(), Qt::Key_Return);
  OpenDocument("Doc.dat", Orchard());
  TypeInto(FindWhat(), "pear");
  EXPECT_TRUE(WaitForRows(7));
  Choose("FileClose");
  EXPECT_TRUE(WaitForRows(0));
}

TEST_F(FindAllPanelTest, ManyHitsAllCome) {
  std::string pages = "\r\n";
  for (int page = 1; page <= 999; ++page)
    pages += " " + std::to_string(page) + " ,<text>pear pear, pear</text>\r\n";
  OpenWith(pages);
  TypeInto(FindWhat(), "pear");
  EXPECT_TRUE(WaitForRows(3 * 999));
  EXPECT_EQ(QString::fromStdString(Count()).remove(',').remove('.'), "2997 hits");
  ClickRowOf(Hits(), 3 * 999 - 1);
  EXPECT_EQ(Where(), "page 999, Text1 [pear]");
  EXPECT_EQ(Body().textCursor().selectionStart(), 11);
}

}  // namespace
}  // namespace tavrel::test
