#include "ui/view/check_panel_test.h"

#include <QAction>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>
#include <gmock/gmock.h>

namespace tavrel::test {
namespace {

using testing::UnorderedElementsAreArray;

TEST_F(CheckPanelTest, EachRowShowsPageFieldAndSentence) {
  OpenWrong();
  Rows expected = {kProjectRow};
  for (const Problem& problem : ProblemsOfWrong()) expected.push_back(problem.Row);
  Rows rows = RowsOf(Findings());
  EXPECT_THAT(rows, UnorderedElementsAreArray(expected));
  EXPECT_EQ(rows.back(), kProjectRow);
  const auto page_of = [](const std::string& row) { return row.substr(0, 3); };
  EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end() - 1, [&](const auto& one, const auto& other) {
    return page_of(one) < page_of(other);
  }));
  EXPECT_EQ(Count(), "10 problems");
  EXPECT_EQ(Summary(), "10 problems");
}

TEST_F(CheckPanelTest, TheColumnsHaveHeadings) {
  OpenWrong();
  QStringList headings;
  for (int column = 0; column < 3; ++column)
    headings << Findings().model()->headerData(column, Qt::Horizontal).toString();
  EXPECT_EQ(headings, (QStringList{"Page", "Field", "What is wrong"}));
  EXPECT_FALSE(Findings().isHeaderHidden());
}

TEST_F(CheckPanelTest, ASoundProjectHasNoRows) {
  OpenWith(Sound());
  ExpectSoon({}, "No problems");
}

TEST_F(CheckPanelTest, TheCountStandsInTheStatusBarWhileThePanelIsClosed) {
  OpenDocument("Doc.dat", Sound());
  EXPECT_TRUE(WaitFor([&] { return Count() == "No problems"; })) << Count();
  const auto& count = Find<QAbstractButton>(Window(), "ProblemCount");
  EXPECT_TRUE(count.isVisible());
  EXPECT_TRUE(Window().statusBar()->isAncestorOf(&count));
  TypeInto(Title(), "");
  EXPECT_TRUE(WaitFor([&] { return Count() == "1 problem"; })) << Count();
  TypeInto(LinkTarget(), "9\n");
  // Page 9 is empty, and no longer are pages 2 and 3 reached.
  EXPECT_TRUE(WaitFor([&] { return Count() == "4 problems"; })) << Count();
}

TEST_F(CheckPanelTest, TheListFollowsTypingInAFieldThatIsNotLeft) {
  OpenWith(Sound());
  const std::string title = "001 | Title | The page has no title, so the Notes menu shows a dash.";
  const std::string text = "001 | Text | " + kLoneBracket;
  const std::string music = "001 | Music link | ";
  const std::string page = "002 | Page | " + kUnreached;
  TypeInto(Title(), "");
  ExpectSoon({title}, "1 problem");
  EXPECT_TRUE(Title().hasFocus());
  TypeInto(Body(), "a < b");
  ExpectSoon({title, text}, "2 problems");
  EXPECT_TRUE(Body().hasFocus());
  TypeInto(LinkTarget(), "003");
  LetPanelsLook();
  // A link is stored with its Enter, or when its field is left.
  ExpectSoon({title, text}, "2 problems");
  PressKey(LinkTarget(), Qt::Key_Return);
  ExpectSoon({title, text, page}, "3 problems");
  EXPECT_TRUE(LinkTarget().hasFocus());
  TypeInto(MusicText(), "Listen");
  ExpectSoon({title, text, music + "The music has no music link, so it leads to the Notes menu.", page},
             "4 problems");
  TypeInto(MusicLink(), "M8");
  ExpectSoon({title, text, music + "Music link M8 is empty, so the link leads to the Notes menu.", page},
             "4 problems");
  TypeInto(MusicText(), "");
  TypeInto(Body(), "ab");
  TypeInto(Title(), "A");
  ExpectSoon({page}, "1 problem");
}

TEST_F(CheckPanelTest, ItFollowsWithTheNextLookWhichComesWithinHalfASecond) {
  EXPECT_LE(Find<QTimer>(Window(), "LookTimer").interval(), 500);
  OpenWith(Sound());
  for (const char* title : {"", "A"}) {
    TypeInto(Title(), title);
    LetPanelsLook();
    const std::string expected = *title == '\0' ? "1 problem" : "No problems";
    EXPECT_EQ(Count(), expected);
    EXPECT_EQ(Summary(), expected);
  }
}

TEST_F(CheckPanelTest, CommandsAreFollowedToo) {
  OpenWith(Sound());
  ClickRow(PagesGrid(), 2);
  Choose("EditClear");
  ExpectSoon({"001 | Link to 1 | Page 002 is empty.", "003 | Page | " + kUnreached}, "2 problems");
  PressKey(*Window().focusWidget(), Qt::Key_Z, Qt::ControlModifier);
  ExpectSoon({}, "No problems");
}

TEST_F(CheckPanelTest, TheSelectedRowSurvivesChangesElsewhere) {
  OpenWrong();
  const std::string row = "003 | Music text | " + kStrange;
  ClickRowOf(Findings(), RowWith(Findings(), row));
  const int before = RowWith(Findings(), row);
  TypeInto(Title(), "");
  ASSERT_TRUE(WaitFor([&] { return Count() == "11 problems"; }));
  EXPECT_EQ(SelectedRow(Findings()), row);
  EXPECT_EQ(RowWith(Findings(), row), before + 1);
  EXPECT_TRUE(Title().hasFocus());
  TypeInto(Title(), "Start");
  ASSERT_TRUE(WaitFor([&] { return Count() == "10 problems"; }));
  EXPECT_EQ(SelectedRow(Findings()), row);
}

TEST_F(CheckPanelTest, ARowThatIsMendedIsNoLongerSelected) {
  OpenWrong();
  ClickRowOf(Findings(), RowWith(Findings(), "Page 007 is empty."));
  ClickRow(LinksGrid(), 3);
  TypeInto(LinkTarget(), "001\n");
  ASSERT_TRUE(WaitFor([&] { return Count() == "9 problems"; }));
  EXPECT_EQ(SelectedRow(Findings()), "");
}

TEST_F(CheckPanelTest, AClickOnTheCountOpensThePanel) {
  OpenDocument("Doc.dat", Wrong());
  ASSERT_TRUE(WaitFor([&] { return Count() == "10 problems"; }));
  Click(Window(), "ProblemCount");
  EXPECT_TRUE(Dock("CheckPanelDock").isVisible());
  EXPECT_TRUE(Find<QAction>(Window(), "ViewCheck").isChecked());
  EXPECT_EQ(Findings().model()->rowCount(), 10);
  Click(Window(), "ProblemCount");
  EXPECT_TRUE(Dock("CheckPanelDock").isVisible());
}

TEST_F(CheckPanelTest, AClickOnTheCountBringsThePanelBeforeTheOther) {
  OpenDocument("Doc.dat", Wrong());
  Choose("ViewCheck");
  Choose("ViewFindAll");
  ASSERT_TRUE(WaitFor([&] { return Find<LineField>(Window(), "FindWhat").isVisible(); }));
  Click(Window(), "ProblemCount");
  EXPECT_TRUE(WaitFor([&] { return !Findings().visibleRegion().isEmpty(); }));
}

TEST_F(CheckPanelTest, WithoutAProjectItSaysSo) {
  Choose("ViewCheck");
  EXPECT_TRUE(WaitFor([&] { return Summary() == "No project is open."; })) << Summary();
  EXPECT_EQ(RowsOf(Findings()), Rows());
  EXPECT_FALSE(Find<QAbstractButton>(Window(), "ProblemCount").isVisible());
}

TEST_F(CheckPanelTest, ProjectsThatComeAndGoAreFollowed) {
  OpenWrong();
  Choose("FileClose");
  EXPECT_TRUE(WaitFor([&] { return Summary() == "No project is open."; })) << Summary();
  EXPECT_EQ(RowsOf(Findings()), Rows());
  OpenDocument("Sound.dat", Sound());
  ExpectSoon({}, "No problems");
  OpenDocument("Wrong.dat", Wrong());
  EXPECT_TRUE(WaitFor([&] { return Summary() == "10 problems"; })) << Summary();
}

TEST_F(CheckPanelTest, AProjectClosedWhileThePanelIsClosedIsGoneWhenItOpens) {
  OpenWrong();
  Choose("ViewCheck");
  Choose("FileClose");
  LetPanelsLook();
  Choose("ViewCheck");
  EXPECT_TRUE(WaitFor([&] { return Summary() == "No project is open."; })) << Summary();
  EXPECT_EQ(RowsOf(Findings()), Rows());
}

TEST_F(CheckPanelTest, CheckingStoresNothing) {
  OpenWrong();
  TypeInto(Title(), "Other");
  LetPanelsLook();
  EXPECT_TRUE(Stored(1).starts_with("<title>Start</title>"));
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "Start");
  EXPECT_TRUE(Messages.Shown.empty());
}

}  // namespace
}  // namespace tavrel::test
