#include <gtest/gtest.h>

#include "core/history/step_recorder_test.h"

// When the recorder says that the document is as it was saved.

namespace tavrel::test {
namespace {

TEST_F(StepRecorderTest, KnowsTheDocumentAsSavedByTheCommandWithAllThatItStored) {
  EXPECT_TRUE(Editor.Steps.IsSaved());
  Editor.Field = "typed";
  EXPECT_TRUE(Editor.Steps.IsSaved());
  Editor.Run({}, [this] {
    Editor.SavePage();
    Editor.Steps.Saved();
  });
  EXPECT_TRUE(Editor.Steps.IsSaved());
  Editor.TypeAndStore("more");
  EXPECT_FALSE(Editor.Steps.IsSaved());
  ExpectUndo("Edit page 1");
  EXPECT_TRUE(Editor.Steps.IsSaved());
  ExpectUndo("Edit page 1");
  EXPECT_FALSE(Editor.Steps.IsSaved());
  ExpectRedo("Edit page 1");
  EXPECT_TRUE(Editor.Steps.IsSaved());
}

TEST_F(StepRecorderTest, KnowsTheDocumentAsSavedWithoutTheTyping) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.Field = "typed";
  Editor.Run({}, [this] { Editor.Steps.Saved(); });
  EXPECT_TRUE(Editor.Steps.IsSaved());
  ExpectUndo("Edit page 1");
  EXPECT_TRUE(Editor.Steps.IsSaved());
  ExpectRedo("Edit page 1");
  EXPECT_FALSE(Editor.Steps.IsSaved());
}

TEST_F(StepRecorderTest, KnowsTheDocumentAsSavedWhenItFollowsTheFieldToThere) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  Editor.Run({}, [this] { Editor.Steps.Saved(); });
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("ab");
  Editor.Field = "a";
  ExpectUndo("Edit page 1");
  EXPECT_EQ(Page(1), "one");
  EXPECT_TRUE(Editor.Steps.IsSaved());
}

TEST_F(StepRecorderTest, LosesTheSavedMomentWhenTypingTakesThePlaceOfItsSteps) {
  Editor.TypeAndStore("a");
  Editor.Run({}, [this] { Editor.Steps.Saved(); });
  ExpectUndo("Edit page 1");
  Editor.Field = "b";
  ExpectUndo("Edit page 1");
  EXPECT_FALSE(Editor.Steps.IsSaved());
  ExpectRedo("Edit page 1");
  EXPECT_FALSE(Editor.Steps.IsSaved());
}

}  // namespace
}  // namespace tavrel::test
