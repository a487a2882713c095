#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "ui/view/check_panel_test.h"

namespace tavrel::test {
namespace {

class CheckLeadsTest : public CheckPanelTest {
 protected:
  /// Whether the Edit menu has something to take back.
  bool HasUndo() {
    auto& menu = Find<QMenu>(Window(), "EditMenu");
    menu.popup(Window().pos());
    const bool has_undo = Find<QAction>(Window(), "EditUndo").isEnabled();
    menu.close();
    ActivateWindow(Window());
    return has_undo;
  }
};

TEST_F(CheckLeadsTest, ADoubleClickLeadsToTheCulprit) {
  OpenWrong();
  for (const Problem& problem : ProblemsOfWrong()) {
    DoubleClickRowOf(Findings(), RowWith(Findings(), problem.Row));
    EXPECT_EQ(Where(), problem.Where) << problem.Row;
  }
}

TEST_F(CheckLeadsTest, EnterLeadsToTheCulprit) {
  OpenWrong();
  const std::vector<Problem>& problems = ProblemsOfWrong();
  for (auto problem = problems.rbegin(); problem != problems.rend(); ++problem) {
    PressEnterOnRowOf(Findings(), RowWith(Findings(), problem->Row));
    EXPECT_EQ(Where(), problem->Where) << problem->Row;
  }
}

TEST_F(CheckLeadsTest, AFloatingPanelLeadsIntoTheMainWindow) {
  OpenWrong();
  ClickFrame("CheckPanelDock", "float");
  ActivateWindow(Dock("CheckPanelDock"));
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
  EXPECT_EQ(Where(), "page 2, Text1 [<]");
}

TEST_F(CheckLeadsTest, TheBracketBehindALineBreakIsSelectedItself) {
  OpenWrong();
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  // "one", a line break that the caret counts as one, "ab ".
  EXPECT_EQ(Body().textCursor().selectionStart(), 7);
  EXPECT_EQ(Body().textCursor().selectionEnd(), 8);
}

TEST_F(CheckLeadsTest, WhatIsAboutTheWholeProjectLeadsNowhere) {
  OpenWrong();
  ClickRow(PagesGrid(), 2);
  TypeInto(Note(), "typed");
  const std::string stored = Stored(2);
  DoubleClickRowOf(Findings(), RowWith(Findings(), "Project"));
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(PagesGrid().Row(), 2);
  EXPECT_EQ(Note().Bytes(), "typed");
  EXPECT_EQ(Stored(2), stored);
  PressEnterOnRowOf(Findings(), RowWith(Findings(), "Project"));
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Stored(2), stored);
}

TEST_F(CheckLeadsTest, AClickAloneLeadsNowhere) {
  OpenWrong();
  ClickRowOf(Findings(), RowWith(Findings(), kUnreached));
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(SelectedRow(Findings()), "004 | Page | " + kUnreached);
}

TEST_F(CheckLeadsTest, WhatWasTypedBeforeIsKeptAndIsOneStepOfUndo) {
  OpenWrong();
  ClickRow(PagesGrid(), 4);
  const std::string before = Stored(4);
  TypeInto(Title(), "Typed title");
  TypeInto(Body(), "typed text");
  TypeInto(LinkText(), "One");
  TypeInto(LinkTarget(), "001");
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  EXPECT_EQ(Where(), "page 2, Text1 [<]");
  EXPECT_EQ(Stored(4),
            "<title>Typed title</title><text>typed text</text><link>" + LinkRecord("One", "001") + "</link>");
  EXPECT_TRUE(HasUndo());
  PressKey(Body(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Stored(4), before);
  EXPECT_EQ(State.CurrentPage, 4);
  EXPECT_EQ(Title().Bytes(), "Alone");
  EXPECT_FALSE(HasUndo());
}

TEST_F(CheckLeadsTest, BeingLedWithoutHavingTypedIsNoStep) {
  OpenWrong();
  for (const Problem& problem : ProblemsOfWrong())
    DoubleClickRowOf(Findings(), RowWith(Findings(), problem.Row));
  EXPECT_FALSE(HasUndo());
}

TEST_F(CheckLeadsTest, ALinkBeyondTheEditorsRowsLeadsToItsPage) {
  std::string links;
  for (int link = 1; link < 56; ++link) links += LinkRecord("x", "002");
  OpenWith("\r\n 1 ,<title>A</title>\r\n 2 ,<title>B</title><link>" + links + LinkRecord("y", "M500") +
           "</link>\r\n");
  const std::string culprit = "002 | Link to 56 | ";
  ASSERT_TRUE(WaitFor([&] { return Findings().model()->rowCount() > 0; }));
  for (const char* from : {"another page", "the page itself"}) {
    DoubleClickRowOf(Findings(), RowWith(Findings(), culprit));
    EXPECT_EQ(Where(), "page 2, Text1 []") << from;
    Title().setFocus();
  }
}

TEST_F(CheckLeadsTest, LinksOutsideOfTheListOfLinksDoNotShiftItsRows) {
  OpenWith("\r\n 1 ,<title>T</title><text>see <linkto>5</linkto></text><link>" + LinkRecord("one", "001") +
           LinkRecord("two", "009") + "</link>\r\n");
  ASSERT_TRUE(WaitFor([&] { return Findings().model()->rowCount() > 0; }));
  DoubleClickRowOf(Findings(), RowWith(Findings(), "001 | Link to 2 | Page 009 is empty."));
  EXPECT_EQ(Where(), "page 1, link 2, Combo1 [009]");
  DoubleClickRowOf(Findings(), RowWith(Findings(), "001 | Page | There can be no page \"5\"."));
  EXPECT_EQ(Where(), "page 1, Text1 []");
}

TEST_F(CheckLeadsTest, AHalfTypedLinkOnTheCulpritsOwnPageStays) {
  OpenWrong();
  const std::string stored = Stored(1);
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "half");
  TypeInto(MusicLink(), "M5");
  DoubleClickRowOf(Findings(), RowWith(Findings(), "Page 007 is empty."));
  EXPECT_EQ(Where(), "page 1, link 3, Combo1 [007]");
  EXPECT_EQ(MusicLink().Bytes(), "M5");
  ClickRow(LinksGrid(), 4);
  EXPECT_EQ(LinkText().Bytes(), "half");
  EXPECT_EQ(Stored(1), stored);
}

TEST_F(CheckLeadsTest, ACulpritThatHasMovedSinceTheLastLookIsNotSelectedByItsOldPlace) {
  OpenWrong();
  ClickRow(PagesGrid(), 2);
  LetPanelsLook();
  Find<QTimer>(Window(), "LookTimer").stop();
  TypeInFront(Body(), "more words ");
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  EXPECT_EQ(Where(), "page 2, Text1 []");
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  EXPECT_EQ(Where(), "page 2, Text1 [<]") << "the list was renewed";
}

TEST_F(CheckLeadsTest, TypingOnTheCulpritsOwnPageStaysInTheFields) {
  OpenWrong();
  ClickRow(PagesGrid(), 2);
  TypeInFront(Body(), "more words ");
  LetPanelsLook();
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  EXPECT_EQ(Where(), "page 2, Text1 [<]");
  EXPECT_EQ(Body().textCursor().selectionStart(), 7 + 11);
  EXPECT_EQ(Body().Bytes(), "more words one\r\nab < c");
  EXPECT_EQ(Stored(2), "<text>one\r\nab < c</text>");
  PressKey(Body(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Body().Bytes(), "one\r\nab < c");
}

TEST_F(CheckLeadsTest, BlanksTypedInFrontOfTheCulpritDoNotShiftIt) {
  OpenWrong();
  ClickRow(PagesGrid(), 2);
  TypeInFront(Body(), "   ");
  LetPanelsLook();
  DoubleClickRowOf(Findings(), RowWith(Findings(), kLoneBracket));
  EXPECT_EQ(Where(), "page 2, Text1 [<]");
}

TEST_F(CheckLeadsTest, BehindTheCoverNothingIsLedTo) {
  OpenWrong();
  TypeInto(Body(), "typed");
  LetPanelsLook();
  // The list keeps what it shows until the next look.
  Find<QTimer>(Window(), "LookTimer").stop();
  const std::string stored = Stored(1);
  Player.Expect("Import", [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); });
  Choose("ToolsImport");
  ASSERT_EQ(Findings().model()->rowCount(), 10);
  DoubleClickRowOf(Findings(), RowWith(Findings(), kStrange));
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(Stored(1), stored);
  EXPECT_EQ(Body().Bytes(), "typed");
}

TEST_F(CheckLeadsTest, APageThatWasNeverStoredByTheEditorShowsItsCulpritsAsWell) {
  // The editor itself stores neither blanks around a text nor links without a target.
  const std::string page = "<title>T</title><text>   ab < c</text><link>" + LinkRecord("lost", "") +
                           LinkRecord("x", "008") + "</link>";
  OpenWith("\r\n 1 ," + page + "\r\n 2 ," + page + "\r\n");
  ASSERT_TRUE(WaitFor([&] { return Findings().model()->rowCount() > 6; }));
  for (const char* number : {"001", "002"}) {
    const std::string in_text = std::string(number) + " | Text | " + kLoneBracket;
    const std::string in_link = std::string(number) + " | Link to 2 | Page 008 is empty.";
    const std::string there = "page " + std::string(number + 2) + ", ";
    DoubleClickRowOf(Findings(), RowWith(Findings(), in_text));
    EXPECT_EQ(Where(), there + "Text1 [<]");
    DoubleClickRowOf(Findings(), RowWith(Findings(), in_text));
    EXPECT_EQ(Where(), there + "Text1 [<]");
    DoubleClickRowOf(Findings(), RowWith(Findings(), in_link));
    EXPECT_EQ(Where(), there + "link 2, Combo1 [008]");
  }
}

}  // namespace
}  // namespace tavrel::test
