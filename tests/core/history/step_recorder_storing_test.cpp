#include <gtest/gtest.h>

#include "core/history/step_recorder_test.h"

// Pages that are stored and stay in the fields, whose own undo can then go back behind what was stored.

namespace tavrel::test {
namespace {

TEST_F(StepRecorderTest, MakesAStepOfEachStoringWhileThePageStaysShown) {
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("ab");
  Editor.TypeAndStore("abc");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "ab");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "a");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
  for (const char* text : {"a", "ab", "abc"}) {
    ExpectRedo("Edit page 1");
    EXPECT_EQ(Editor.Field, text);
    EXPECT_EQ(Page(1), text);
  }
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, MakesStoringAndWhatElseTheCommandDoesTwoSteps) {
  Editor.Field = "typed";
  Editor.Run("Music links", [this] {
    Editor.SavePage();
    Editor.State.MusicLink(4) = "<song>Blue</song>";
  });
  ExpectUndo("Music links");
  EXPECT_EQ(Editor.State.MusicLink(4), "");
  EXPECT_EQ(Page(1), "typed");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  ExpectRedo("Music links");
  EXPECT_EQ(Editor.State.MusicLink(4), "<song>Blue</song>");
}

TEST_F(StepRecorderTest, FollowsTheFieldsOwnUndoBehindOneStoring) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.TypeAndStore("a");
  Editor.Field = "one";
  // The field shows page 1 as it was: the step that comes next is the one before.
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
  ExpectRedo("Paint page 2");
  ExpectRedo("Edit page 1");
  ExpectPages("a", "red", "three");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, FollowsTheFieldsOwnUndoBehindSeveralStorings) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  for (const char* text : {"a", "ab", "abc"}) Editor.TypeAndStore(text);
  Editor.Field = "one";
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
  ExpectRedo("Paint page 2");
  for (const char* text : {"a", "ab", "abc"}) {
    ExpectRedo("Edit page 1");
    EXPECT_EQ(Page(1), text);
  }
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, FollowsTheFieldsOwnUndoBehindSomeOfTheStorings) {
  for (const char* text : {"a", "ab", "abc"}) Editor.TypeAndStore(text);
  Editor.Field = "a";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
  for (const char* text : {"a", "ab", "abc"}) {
    ExpectRedo("Edit page 1");
    EXPECT_EQ(Page(1), text);
  }
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, TakesAStoringThatTheFieldIsBehindIfThereIsNothingElse) {
  for (const char* text : {"a", "ab"}) Editor.TypeAndStore(text);
  Editor.Field = "one";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "a");
  ExpectRedo("Edit page 1");
  EXPECT_EQ(Page(1), "ab");
}

TEST_F(StepRecorderTest, TakesAFieldsUndoThatHasGoneOnlyHalfWayForTyping) {
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("abcd");
  Editor.Field = "ab";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "abcd");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "a");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
  for (const char* text : {"a", "abcd", "ab"}) {
    ExpectRedo("Edit page 1");
    EXPECT_EQ(Page(1), text);
  }
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, FollowsOnlyStoringsOfTheSameShowing) {
  Editor.TypeAndStore("a");
  Editor.Run("Show again", [this] { Editor.LoadPage(1); });
  // What is typed now is typing, though it looks like what was there before.
  Editor.Field = "one";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "a");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Editor.Field, "one");
  ExpectNoUndo();
}

TEST_F(StepRecorderTest, FollowsNoStoringWithAnotherStepInBetween) {
  Editor.TypeAndStore("a");
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.Field = "one";
  ExpectUndo("Edit page 1");
  ExpectPages("a", "red", "three");
  ExpectUndo("Paint page 2");
  ExpectPages("a", "two", "three");
  ExpectUndo("Edit page 1");
  ExpectPages("one", "two", "three");
}

TEST_F(StepRecorderTest, MakesAStepOfStoringWhatTheFieldsOwnUndoHasBroughtBack) {
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("one");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "a");
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  ExpectNoUndo();
}

}  // namespace
}  // namespace tavrel::test
