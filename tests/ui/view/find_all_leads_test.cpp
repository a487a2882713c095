#include <QTest>

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "ui/view/find_all_panel_test.h"

namespace tavrel::test {
namespace {

using testing::ElementsAre;

class FindAllLeadsTest : public FindAllPanelTest {};

TEST_F(FindAllLeadsTest, AClickLeadsToTheHit) {
  OpenOrchard();
  Look("pear");
  const std::vector<std::string> places = {
      "page 2, Text3 [Pear]",         "page 2, Text4 [pear]", "page 2, Text1 [pear]", "page 2, Text1 [PEAR]",
      "page 2, link 2, Text5 [pear]", "page 2, Text6 [Pear]", "page 5, Text1 [pear]"};
  for (std::size_t row = places.size(); row-- > 0;) {
    ClickRowOf(Hits(), static_cast<int>(row));
    EXPECT_EQ(Where(), places[row]) << kPears[row];
    EXPECT_EQ(SelectedRow(Hits()), kPears[row]);
  }
}

TEST_F(FindAllLeadsTest, AClickLeadsToTargets) {
  OpenOrchard();
  Look("00");
  ClickRowOf(Hits(), 2);
  EXPECT_EQ(Where(), "page 2, link 2, Combo1 [00]");
  Look("1");
  ClickRowOf(Hits(), RowWith(Hits(), "Music link"));
  EXPECT_EQ(Where(), "page 2, Combo2 [1]");
}

TEST_F(FindAllLeadsTest, TheSelectionBehindLineBreaksIsExactlyTheHit) {
  OpenOrchard();
  Look("pear");
  ClickRowOf(Hits(), 3);
  // "One pear," is 9 long, the line break counts as one for the caret, "two " is 4 long.
  EXPECT_EQ(Body().textCursor().selectionStart(), 14);
  EXPECT_EQ(Body().textCursor().selectionEnd(), 18);
}

TEST_F(FindAllLeadsTest, AccentedLettersAreFoundAndSelected) {
  OpenOrchard();
  EXPECT_THAT(HitsOf(u"caf\u00E9"_qs),
              ElementsAre("005 | Title | Caf\u00E9", "005 | Text | x  y  the CAF\u00C9 pear"));
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 5, Text3 [Caf\u00E9]");
  ClickRowOf(Hits(), 1);
  EXPECT_EQ(Where(), "page 5, Text1 [CAF\u00C9]");
  EXPECT_EQ(Body().textCursor().selectionStart(), 8);
}

TEST_F(FindAllLeadsTest, EnterInTheListLeadsToTheHit) {
  OpenOrchard();
  Look("pear");
  PressEnterOnRowOf(Hits(), 4);
  EXPECT_EQ(Where(), "page 2, link 2, Text5 [pear]");
  PressEnterOnRowOf(Hits(), 6);
  EXPECT_EQ(Where(), "page 5, Text1 [pear]");
}

TEST_F(FindAllLeadsTest, TheArrowKeysInTheListLeadNowhere) {
  OpenOrchard();
  Look("pear");
  Hits().setFocus();
  PressKey(Hits(), Qt::Key_Home);
  PressKey(Hits(), Qt::Key_Down);
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_TRUE(Hits().hasFocus());
}

TEST_F(FindAllLeadsTest, EnterInTheFieldLeadsToTheFirstHitOrTheSelectedOne) {
  OpenOrchard();
  TypeInto(FindWhat(), "pear\n");
  EXPECT_EQ(Where(), "page 2, Text3 [Pear]");
  ClickRowOf(Hits(), 6);
  FindWhat().setFocus();
  PressKey(FindWhat(), Qt::Key_Return);
  EXPECT_EQ(Where(), "page 5, Text1 [pear]");
}

TEST_F(FindAllLeadsTest, EnterWithoutHitsLeadsNowhere) {
  OpenOrchard();
  TypeInto(FindWhat(), "zebra\n");
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_TRUE(FindWhat().hasFocus());
  EXPECT_EQ(Count(), "0 hits");
  EXPECT_EQ(RowsOf(Hits()), Rows());
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(FindAllLeadsTest, HitsOnThePageBeingEditedAreReachedBehindUnstoredTyping) {
  OpenOrchard();
  ClickRow(PagesGrid(), 2);
  TypeInFront(Body(), "an apple and ");
  PressKey(Body(), Qt::Key_Return);
  TypeInFront(Title(), "Apple or ");
  Look("pear");
  EXPECT_TRUE(WaitFor([&] { return RowsOf(Hits()).front() == "002 | Title | Apple or Pear tart"; }));
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 2, Text3 [Pear]");
  EXPECT_EQ(Title().selectionStart(), 9);
  ClickRowOf(Hits(), 3);
  EXPECT_EQ(Where(), "page 2, Text1 [PEAR]");
  // What was typed is 13 letters and a line break long.
  EXPECT_EQ(Body().textCursor().selectionStart(), 14 + 14);
  EXPECT_EQ(Body().Bytes(), "an apple and \r\nOne pear,\r\ntwo PEARs");
  EXPECT_EQ(Title().Bytes(), "Apple or Pear tart");
}

TEST_F(FindAllLeadsTest, BlanksAroundAFieldDoNotShiftTheHit) {
  OpenWith("\r\n 1 ,<title>  a pear</title><text>   x pear</text>\r\n 2 ,<text>   x pear</text>\r\n");
  Look("pear");
  ASSERT_EQ(Hits().model()->rowCount(), 3);
  for (const int row : {1, 0, 1}) {
    ClickRowOf(Hits(), row);
    EXPECT_EQ(Where(), row == 0 ? "page 1, Text3 [pear]" : "page 1, Text1 [pear]");
  }
  ClickRowOf(Hits(), 2);
  EXPECT_EQ(Where(), "page 2, Text1 [pear]");
}

TEST_F(FindAllLeadsTest, WordsLikeALinksInATextDoNotShiftTheRows) {
  OpenWith("\r\n 1 ,<text>a <linkto>7</linkto></text><link>" + LinkRecord("x", "002") +
           "</link>\r\n 2 ,<text>t</text>\r\n");
  EXPECT_THAT(HitsOf("002"), ElementsAre("001 | Link to 1 | 002"));
  ClickRowOf(Hits(), 0);
  EXPECT_EQ(Where(), "page 1, link 1, Combo1 [002]");
}

TEST_F(FindAllLeadsTest, WhatWasTypedBeforeIsKeptAndIsOneStepOfUndo) {
  OpenOrchard();
  const std::string before = Stored(1);
  TypeInto(Title(), "Typed");
  TypeInto(Body(), "text");
  Look("pear");
  ClickRowOf(Hits(), RowWith(Hits(), "005"));
  EXPECT_EQ(Where(), "page 5, Text1 [pear]");
  EXPECT_EQ(Stored(1), "<title>Typed</title><text>text</text><link>" + LinkRecord("On", "002") + "</link>");
  PressKey(Body(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Stored(1), before);
  EXPECT_EQ(State.CurrentPage, 1);
}

TEST_F(FindAllLeadsTest, AFloatingPanelLeadsIntoTheMainWindow) {
  OpenOrchard();
  ClickFrame("FindAllPanelDock", "float");
  ActivateWindow(Dock("FindAllPanelDock"));
  Look("pear");
  ClickRowOf(Hits(), 6);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
  EXPECT_EQ(Where(), "page 5, Text1 [pear]");
}

/// Find and Replace of the Edit menu beside the panel.
class FindBesideFindAllTest : public FindAllPanelTest {
 protected:
  static std::vector<std::string> FieldsOf(const Rows& rows) {
    std::vector<std::string> fields;
    for (const std::string& row : rows) fields.push_back(row.substr(6, row.rfind(" | ") - 6));
    return fields;
  }

  /// Opens Find or Replace, sees what it proposes, types and starts.
  void PlayOn(const QString& item, const QString& dialog_name, const QString& proposed,
              const QStringList& texts) {
    Player.Expect(dialog_name, [&](QWidget& dialog) {
      EXPECT_EQ(Find<LineField>(dialog, "Text1").text(), proposed);
      int field = 0;
      for (const QString& text : texts) TypeInto(dialog, QString("Text%1").arg(++field), text);
      Click(dialog, "Command1");
    });
    Choose(item);
  }
};

TEST_F(FindBesideFindAllTest, ThePanelLeavesTheTextOfFindAlone) {
  OpenOrchard();
  Look("pear");
  ClickRowOf(Hits(), 6);
  EXPECT_EQ(State.FindText, "");
  PlayOn("EditSearch", "FindForm", "", {"nothing"});
  EXPECT_EQ(Where(), "page 1, Text1 [Nothing]");
  EXPECT_EQ(State.FindText, "nothing");
  EXPECT_EQ(FindWhat().text(), "pear");
  EXPECT_EQ(RowsOf(Hits()), kPears);
}

TEST_F(FindBesideFindAllTest, FindNextGoesOnWithItsOwnText) {
  OpenOrchard();
  PlayOn("EditSearch", "FindForm", "", {"the"});
  EXPECT_EQ(State.FindText, "the");
  Look("two");
  Click(Window(), "MatchCase");
  // Find Next begins behind the next page.
  ClickRow(PagesGrid(), 3);
  Choose("EditFindNext");
  EXPECT_EQ(Where(), "page 5, Text1 [the]");
  EXPECT_EQ(State.FindText, "the");
}

TEST_F(FindBesideFindAllTest, ReplaceChangesThePageAndTheListFollows) {
  OpenOrchard();
  Look("pear");
  ClickRowOf(Hits(), 6);
  PlayOn("EditReplace", "ReplaceForm", "", {"pear", "plum"});
  EXPECT_EQ(Body().Bytes(), "x\r\ny\r\nthe CAF\xC9 plum");
  // The texts of all pages were changed, and nothing but texts.
  EXPECT_TRUE(WaitForRows(4)) << testing::PrintToString(RowsOf(Hits()));
  EXPECT_EQ(FieldsOf(RowsOf(Hits())),
            (std::vector<std::string>{"Title", "Note", "Link text 2", "Music text"}));
  EXPECT_EQ(FindWhat().text(), "pear");
}

}  // namespace
}  // namespace tavrel::test
