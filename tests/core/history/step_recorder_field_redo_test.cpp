#include <gtest/gtest.h>

#include "core/history/step_recorder_test.h"

// Typing that a field has taken back and could make again. A step that shows a page empties the field's own
// redo, so the typing is kept as a step that has been taken back.

namespace tavrel::test {
namespace {

TEST_F(StepRecorderTest, KeepsTypingThatTheFieldHasTakenBackForRedo) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.FieldRedo = "one more";  // typed, and taken back by the field
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
  ExpectRedo("Paint page 2");
  ExpectPages("one", "red", "three");
  ExpectRedo("Edit page 1");
  ExpectPages("one more", "red", "three");
  EXPECT_EQ(Editor.Field, "one more");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, KeepsTypingThatTheFieldHasTakenBackHalfWay) {
  Editor.Field = "one more";
  Editor.FieldRedo = "one more time";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "one more");
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "one more time");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, LeavesTheFieldsRedoToItIfThereIsNothingToTakeBack) {
  Editor.FieldRedo = "one more";
  ExpectNoUndo();
  EXPECT_EQ(Editor.FieldRedo, "one more");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, KeepsStoredTypingThatTheFieldHasTakenBack) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("ab");
  Editor.Field = "one";
  Editor.FieldRedo = "ab";
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
  ExpectRedo("Paint page 2");
  ExpectRedo("Edit page 1");
  ExpectPages("a", "red", "three");
  ExpectRedo("Edit page 1");
  ExpectPages("ab", "red", "three");
  ExpectNoRedo();
}

// The field has gone behind two storings with another step between them.
TEST_F(StepRecorderTest, FollowsNoStoringBeyondAnotherStep) {
  Editor.TypeAndStore("a");
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.TypeAndStore("ab");
  Editor.Field = "one";
  ExpectUndo("Edit page 1");
  ExpectPages("ab", "red", "three");
}

TEST_F(StepRecorderTest, KnowsTheSavedPlaceThatTheFieldCouldMakeAgain) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.TypeAndStore("a");
  Editor.Run({}, [this] { Editor.Steps.Saved(); });
  Editor.Field = "one";
  Editor.FieldRedo = "a";
  ExpectUndo("Paint page 2");
  ExpectRedo("Paint page 2");
  ExpectRedo("Edit page 1");
  ExpectPages("a", "red", "three");
  EXPECT_TRUE(Editor.Steps.IsSaved());
}

// Two fields were written and stored, and one of them has gone back.
TEST_F(StepRecorderTest, TakesAStoringBackThatAFieldHasGoneHalfWayBehind) {
  Editor.TypeAndStore("title and body");
  Editor.Field = "title";
  Editor.FieldRedo = "title and body";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "title and body");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, ClearingAPageOfWhichNothingWouldBeStoredIsAStep) {
  Editor.State.Page(4) = "   ";
  Editor.LoadPage(4);
  Editor.Clear();
  EXPECT_EQ(Page(4), "");
  ExpectUndo("Clear page 4");
  EXPECT_EQ(Page(4), "   ");
}

TEST_F(StepRecorderTest, TakesBackToTheVeryFirstBytesWhateverTheFieldCouldMakeAgain) {
  Editor.State.Page(4) = "four  ";
  Editor.LoadPage(4);
  Editor.TypeAndStore("a");
  Editor.Field = "four  ";
  Editor.FieldRedo = "a";
  while (Editor.Undo()) continue;
  EXPECT_EQ(Page(4), "four  ");
  while (Editor.Redo()) continue;
  EXPECT_EQ(Page(4), "a");
}

TEST_F(StepRecorderTest, KeepsTypingThatTheFieldHasTakenBackOverALookAtAnotherPage) {
  Editor.FieldRedo = "one more";
  Editor.MoveTo(2);
  ExpectPages("one", "two", "three");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  ExpectPages("one more", "two", "three");
  ExpectUndo("Edit page 1");
  ExpectPages("one", "two", "three");
}

TEST_F(StepRecorderTest, KeepsTheStepsThatCanBeMadeAgainRatherThanWhatTheFieldHasTakenBack) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  ExpectUndo("Paint page 2");
  Editor.FieldRedo = "one more";
  Editor.MoveTo(3);
  ExpectRedo("Paint page 2");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, ForgetsWhatTheFieldHasTakenBackAtTheNextStep) {
  Editor.FieldRedo = "one more";
  Editor.Clear();
  ExpectNoRedo();
  ExpectUndo("Clear page 1");
  ExpectRedo("Clear page 1");
  ExpectNoRedo();
}

}  // namespace
}  // namespace tavrel::test
