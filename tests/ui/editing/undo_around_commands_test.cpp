#include <string>
#include <vector>

#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// What some commands have of their own.
class UndoAroundCommandsTest : public UndoTest {
 protected:
  void SetUp() override { OpenWorld(); }

  /// Types on a page, and has a command drop it.
  void TypeAndDrop(int page, const QString& command) {
    Show(page);
    TypeInto(Title(), "T");
    TypeInto(Body(), "B");
    Choose(command);
  }

  void ExpectTypedIsBack(int page) {
    EXPECT_EQ(State.CurrentPage, page);
    EXPECT_EQ(Title().Bytes(), "T");
    EXPECT_EQ(Body().Bytes(), "B");
    EXPECT_EQ(PagesGrid().TextMatrix(page, 1), "T");
    EXPECT_EQ(PagesGrid().CellBackColor(page, 1).name(), "#ffffc0");
  }
};

TEST_F(UndoAroundCommandsTest, WhatClearDropsComesBack) {
  TypeAndDrop(2, "EditClear");
  EXPECT_EQ(State.Page(2), "");
  EXPECT_EQ(UndoItem(), "Undo Clear page 2");
  PressUndo();
  ExpectTypedIsBack(2);
  EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  PressUndo();
  EXPECT_EQ(State.Page(2), kWorldPage2);
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  PressRedo();
  PressRedo();
  EXPECT_EQ(State.Page(2), "");
  EXPECT_EQ(RedoItem(), "Redo (grey)");
}

TEST_F(UndoAroundCommandsTest, WhatClearDropsOnABlankPageComesBack) {
  TypeAndDrop(7, "EditClear");
  EXPECT_EQ(State.Page(7), "");
  EXPECT_EQ(UndoItem(), "Undo Clear page 7");
  PressUndo();
  ExpectTypedIsBack(7);
  EXPECT_EQ(State.Page(7), "<title>T</title><text>B</text>");
  EXPECT_EQ(UndoItem(), "Undo Edit page 7");
  PressUndo();
  EXPECT_EQ(State.Page(7), "");
  EXPECT_EQ(PagesGrid().CellBackColor(7, 1).name(), "#ffffff");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoAroundCommandsTest, WhatPasteDropsComesBack) {
  Show(3);
  Choose("EditCopyPage");
  for (const int page : {2, 7}) {
    SCOPED_TRACE(page);
    const std::string name = "page " + std::to_string(page);
    const std::string before = State.Page(page);
    TypeAndDrop(page, "EditPastePage");
    EXPECT_EQ(State.Page(page), kWorldPage3);
    EXPECT_EQ(UndoItem(), "Undo Paste " + name);
    PressUndo();
    ExpectTypedIsBack(page);
    EXPECT_EQ(UndoItem(), "Undo Edit " + name);
    PressUndo();
    EXPECT_EQ(State.Page(page), before);
  }
}

TEST_F(UndoAroundCommandsTest, PastingThePageOverItselfDropsWhatWasTypedAsAStep) {
  Show(2);
  Choose("EditCopyPage");
  TypeInto(Title(), "T");
  Choose("EditPastePage");
  EXPECT_EQ(Title().Bytes(), "Two");
  EXPECT_EQ(UndoItem(), "Undo Paste page 2");
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "T");
}

TEST_F(UndoAroundCommandsTest, ThePageClipboardIsNotPartOfIt) {
  Show(2);
  Choose("EditDelete");
  PressUndo();
  EXPECT_EQ(State.PageClipboard, kWorldPage2);
  Show(3);
  Choose("EditCopyPage");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  PressRedo();
  EXPECT_EQ(State.PageClipboard, kWorldPage3);
}

TEST_F(UndoAroundCommandsTest, ThePageThatFellOffTheEndComesBack) {
  Show(998);
  Choose("EditInsert");
  EXPECT_EQ(State.Page(999), "");
  PressUndo();
  EXPECT_EQ(State.Page(999), "<title>Last</title><text>Omega</text>");
  EXPECT_EQ(PagesGrid().TextMatrix(999, 1), "Last");
}

TEST_F(UndoAroundCommandsTest, TheLastPageThatInsertEmptiedComesBack) {
  Show(999);
  const std::string before = PagesRows();
  Choose("EditInsert");
  EXPECT_EQ(UndoItem(), "Undo Insert page 999");
  PressUndo();
  EXPECT_EQ(State.Page(999), "<title>Last</title><text>Omega</text>");
  EXPECT_EQ(PagesRows(), before);
  PressRedo();
  EXPECT_EQ(State.Page(999), "");
}

TEST_F(UndoAroundCommandsTest, CommandsThatHaveNothingToDoLeaveNoStep) {
  Choose("EditPageUp");
  Choose("EditLinkUp");
  Show(4);
  Choose("EditClear");
  Choose("EditLinkDelete");
  Choose("EditLinkDown");
  Show(999);
  Choose("EditPageDown");
  Answer("EditReplace", "ReplaceForm", {"nowhere", "x"}, "Command1");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoAroundCommandsTest, LooksAtPagesLeaveNoStep) {
  for (const int page : {2, 3, 4, 999, 1}) Show(page);
  for (const int row : {2, 3, 1}) ClickRow(LinksGrid(), row);
  Answer("EditSearch", "FindForm", {"Gamma"}, "Command1");
  Choose("EditFindNext");
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoAroundCommandsTest, DialogsThatAreLeftLeaveOnlyWhatWasTyped) {
  TypeInto(Title(), "T");
  Answer("EditBlockCopy", "BlockCopy", {"1", "2", "3"}, "Command1");
  Answer("EditBlockClear", "BlockClear", {"1", "2"}, "Command1");
  Answer("EditBlockDelete", "BlockDelete", {"1", "2"}, "Command1");
  Answer("EditBlockInsert", "BlockInsert", {"1", "2"}, "Command1");
  Answer("EditReplace", "ReplaceForm", {"Alpha", "x"}, "Command2");
  Answer("EditMusic", "MusicEditor", {}, "Command4");
  EXPECT_EQ(UndoItem(), "Undo Edit page 1");
  PressUndo();
  EXPECT_EQ(State.Page(1), kWorldPage1);
  EXPECT_EQ(UndoItem(), "Undo (grey)");
}

TEST_F(UndoAroundCommandsTest, FindStoresWhatWasTypedAsAStep) {
  TypeInto(Title(), "T");
  Answer("EditSearch", "FindForm", {"Gamma"}, "Command1");
  EXPECT_EQ(State.CurrentPage, 3);
  EXPECT_EQ(UndoItem(), "Undo Edit page 1");
  PressUndo();
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(Title().Bytes(), "One");
}

TEST_F(UndoAroundCommandsTest, AMovedLinksRowIsSelectedAgainWithEveryStep) {
  Show(2);
  ClickRow(LinksGrid(), 2);
  Choose("EditLinkDown");
  Choose("EditLinkDown");
  const std::string twice = Screen();
  PressUndo();
  EXPECT_EQ(LinksGrid().Row(), 2);
  PressUndo();
  EXPECT_EQ(LinksGrid().Row(), 2);
  PressRedo();
  PressRedo();
  EXPECT_EQ(Screen(), twice);
}

TEST_F(UndoAroundCommandsTest, ManyCommandsAreTakenBackInTheirOrder) {
  const std::string first = Document();
  std::vector<std::string> states{first};
  for (const char* command : {"EditPageDown", "EditInsert", "EditPastePage", "EditLinkDelete", "EditPageUp",
                              "EditClear", "EditDelete"}) {
    Choose(command);
    states.push_back(Document());
    EXPECT_NE(states.back(), states[states.size() - 2]) << command;
  }
  for (std::size_t state = states.size() - 1; state-- > 0;) {
    PressUndo();
    EXPECT_EQ(Document(), states[state]) << state;
  }
  EXPECT_EQ(UndoItem(), "Undo (grey)");
  PressUndo();
  EXPECT_EQ(Document(), first);
  for (std::size_t state = 1; state < states.size(); ++state) {
    PressRedo();
    EXPECT_EQ(Document(), states[state]) << state;
  }
  PressRedo();
  EXPECT_EQ(Document(), states.back());
}

}  // namespace
}  // namespace tavrel::test
