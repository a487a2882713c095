#include <gtest/gtest.h>

#include "core/editing/page_commands.h"
#include "core/history/step_recorder_test.h"

// What becomes of typing: stored by a command, dropped by it or not touched yet.

namespace tavrel::test {
namespace {

TEST_F(StepRecorderTest, MakesTypingBeforeACommandAStepOfItsOwn) {
  Editor.Field = "ONE";
  Editor.Run("Insert page 1", [this] {
    Editor.SavePage();
    InsertPage(Editor.State);
    Editor.LoadPage(1);
  });
  ExpectPages("", "ONE", "two");

  ExpectUndo("Insert page 1");
  ExpectPages("ONE", "two", "three");
  ExpectUndo("Edit page 1");
  ExpectPages("one", "two", "three");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  ExpectPages("ONE", "two", "three");
  ExpectRedo("Insert page 1");
  ExpectPages("", "ONE", "two");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, ReturnsToTheEditedPageWhenTheUserHasMovedOn) {
  Editor.Caret = {.Field = "Text3", .Anchor = 2, .Caret = 2};
  Editor.Field = "ONE";
  Editor.MoveTo(3);
  Editor.Caret.Field = "Text1";

  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.State.CurrentPage, 1);
  EXPECT_EQ(Editor.Field, "one");
  EXPECT_EQ(Editor.Caret.Field, "Text3");
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Editor.State.CurrentPage, 1);
  EXPECT_EQ(Editor.Field, "ONE");
  ExpectUndo("Edit page 1");
  ExpectNoUndo();
}

TEST_F(StepRecorderTest, BringsBackTypingThatACommandDrops) {
  Editor.Field = "typed";
  Editor.Clear();
  ExpectPages("", "two", "three");

  ExpectUndo("Clear page 1");
  EXPECT_EQ(Editor.Field, "typed");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  ExpectRedo("Clear page 1");
  EXPECT_EQ(Editor.Field, "");
}

TEST_F(StepRecorderTest, BringsBackDroppedTypingIfTheDocumentIsTheSameBeforeAndAfter) {
  Editor.MoveTo(9);
  Editor.Field = "typed on an empty page";
  Editor.Clear();
  ASSERT_EQ(Page(9), "");

  ExpectUndo("Clear page 9");
  EXPECT_EQ(Page(9), "typed on an empty page");
  EXPECT_EQ(Editor.Field, "typed on an empty page");
  ExpectUndo("Edit page 9");
  EXPECT_EQ(Editor.Field, "");
  ExpectNoUndo();
}

TEST_F(StepRecorderTest, MakesOneStepOfTypingThatACommandBringsAbout) {
  Editor.State.PageClipboard = "pasted";
  Editor.Field = "pasted";
  Editor.Run("Paste page 1", [this] {
    PastePage(Editor.State);
    Editor.LoadPage(1);
  });
  // The typing is what the command pastes: it leaves nothing to change.
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  ExpectNoUndo();
}

TEST_F(StepRecorderTest, TakesBackTypingThatIsNotStored) {
  Editor.Field = "typed";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "one");
  EXPECT_EQ(Page(1), "one");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Editor.Field, "typed");
  EXPECT_EQ(Page(1), "typed");
}

TEST_F(StepRecorderTest, TakesBackTypingBeforeTheStepsBeforeIt) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.Field = "typed";
  ExpectUndo("Edit page 1");
  ExpectPages("one", "red", "three");
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
  ExpectRedo("Paint page 2");
  ExpectRedo("Edit page 1");
  ExpectPages("typed", "red", "three");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, MakesNothingAgainOverTyping) {
  Editor.TypeAndStore("ONE");
  ExpectUndo("Edit page 1");
  Editor.Field = "typed";
  ExpectNoRedo();
  EXPECT_EQ(Editor.Field, "typed");
  EXPECT_EQ(Page(1), "one");
  // Typed back, nothing stands in the way.
  Editor.Field = "one";
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "ONE");
}

TEST_F(StepRecorderTest, ForgetsWhatWasTakenBackWhenTypingIsTakenBack) {
  Editor.TypeAndStore("ONE");
  ExpectUndo("Edit page 1");
  Editor.Field = "typed";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "typed");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, LeavesTypingInTheFieldThroughCommandsThatDoNotTouchIt) {
  Editor.Field = "typed";
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  EXPECT_EQ(Editor.Field, "typed");
  ExpectUndo("Edit page 1");
  ExpectPages("one", "red", "three");
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
}

TEST_F(StepRecorderTest, SharesWhatWasTypedWithTheDocument) {
  const std::string typed(1000, 't');
  Editor.Field = typed;
  Editor.MoveTo(2);
  const char* const bytes = Editor.State.Page(1).Bytes().data();
  ExpectUndo("Edit page 1");
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), typed);
  EXPECT_EQ(Editor.State.Page(1).Bytes().data(), bytes);
}

}  // namespace
}  // namespace tavrel::test
