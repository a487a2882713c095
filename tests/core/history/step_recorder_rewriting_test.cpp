#include <gtest/gtest.h>

#include "core/editing/page_commands.h"
#include "core/history/step_recorder_test.h"

// Pages whose record is not as the editor would write it: storing them changes the document though nobody has
// typed anything. That is no step of its own, but is taken back with the others.

namespace tavrel::test {
namespace {

class RewritingTest : public StepRecorderTest {
 protected:
  RewritingTest() {
    Editor.State.Page(4) = "four  ";
    Editor.LoadPage(4);
  }

  /// Shows page 4 and leaves it, so that it is stored.
  void LookAtPage4() {
    if (Editor.State.CurrentPage != 4) Editor.MoveTo(4);
    Editor.MoveTo(2);
    EXPECT_EQ(Page(4), "four");
  }

  void ExpectSame(const std::string& one, const std::string& four) const {
    EXPECT_EQ(Page(1), one);
    EXPECT_EQ(Page(4), four);
  }
};

TEST_F(RewritingTest, DoesNotHappenWhileThePageIsNotStored) {
  Editor.Run("Nothing", [] {});
  EXPECT_FALSE(Editor.IsTyped());
  Editor.Run("Show again", [this] { Editor.LoadPage(4); });
  ExpectNoUndo();
  EXPECT_EQ(Page(4), "four  ");
}

TEST_F(RewritingTest, IsNoStep) {
  LookAtPage4();
  ExpectNoUndo();
  Editor.MoveTo(4);
  Editor.Run({}, [this] { Editor.SavePage(); });
  ExpectNoUndo();
  EXPECT_TRUE(Editor.Steps.IsSaved());
}

TEST_F(RewritingTest, IsTakenBackWithTheStepAfterItIfThereIsNoneBefore) {
  LookAtPage4();
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  ExpectUndo("Paint page 1");
  ExpectSame("one", "four  ");
  ExpectNoUndo();
  ExpectRedo("Paint page 1");
  ExpectSame("red", "four");
}

TEST_F(RewritingTest, IsTakenBackWithTheFirstStepEvenIfThatChangesThePage) {
  LookAtPage4();
  Editor.MoveTo(4);
  Editor.TypeAndStore("FOUR");
  ExpectUndo("Edit page 4");
  EXPECT_EQ(Page(4), "four  ");
  ExpectNoUndo();
  ExpectRedo("Edit page 4");
  EXPECT_EQ(Page(4), "FOUR");
}

TEST_F(RewritingTest, IsTakenBackWithTheStepBeforeIt) {
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  LookAtPage4();
  ExpectUndo("Paint page 1");
  ExpectSame("one", "four  ");
  ExpectRedo("Paint page 1");
  ExpectSame("red", "four");
}

TEST_F(RewritingTest, ForgetsNoStepThatWasTakenBack) {
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  ExpectUndo("Paint page 1");
  LookAtPage4();
  ExpectRedo("Paint page 1");
  ExpectSame("red", "four");
  ExpectUndo("Paint page 1");
  ExpectSame("one", "four  ");
}

TEST_F(RewritingTest, IsTakenBackWithANewFirstStepToo) {
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  ExpectUndo("Paint page 1");
  LookAtPage4();
  Editor.Run("Paint page 1 again", [this] { Editor.State.Page(1) = "blue"; });
  ExpectUndo("Paint page 1 again");
  ExpectSame("one", "four  ");
  ExpectNoUndo();
  ExpectRedo("Paint page 1 again");
  ExpectSame("blue", "four");
}

TEST_F(RewritingTest, IsPartOfAStepThatChangesOnlyMusicLinks) {
  Editor.Run("Music links", [this] {
    Editor.SavePage();
    Editor.State.MusicLink(3) = "<song>Blue</song>";
  });
  ExpectUndo("Music links");
  EXPECT_EQ(Page(4), "four  ");
  EXPECT_EQ(Editor.State.MusicLink(3), "");
  ExpectNoUndo();
}

TEST_F(RewritingTest, IsNoStepEvenIfItLeavesThePageEmpty) {
  Editor.State.Page(4) = "  ";
  Editor.LoadPage(4);
  Editor.MoveTo(2);
  EXPECT_EQ(Page(4), "");
  ExpectNoUndo();
}

TEST_F(RewritingTest, IsThereAgainAfterALaterStepIsMadeAgainAndTakenBack) {
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  Editor.Run("Paint page 4", [this] {
    Editor.State.Page(4) = "blue";
    Editor.LoadPage(4);
  });
  ExpectUndo("Paint page 4");
  LookAtPage4();
  ExpectRedo("Paint page 4");
  ExpectSame("red", "blue");
  ExpectUndo("Paint page 4");
  ExpectSame("red", "four");
  ExpectUndo("Paint page 1");
  ExpectSame("one", "four  ");
}

TEST_F(RewritingTest, IsThereAgainWithTheFirstStepThoughALaterOneChangesThePage) {
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  Editor.Run("Paint page 4", [this] {
    Editor.State.Page(4) = "blue";
    Editor.LoadPage(4);
  });
  ExpectUndo("Paint page 4");
  ExpectUndo("Paint page 1");
  LookAtPage4();
  ExpectRedo("Paint page 1");
  ExpectRedo("Paint page 4");
  ExpectUndo("Paint page 4");
  ExpectSame("red", "four");
  ExpectUndo("Paint page 1");
  ExpectSame("one", "four  ");
}

TEST_F(RewritingTest, IsPartOfTheCommandThatDoesMore) {
  Editor.Run("Insert page 4", [this] {
    Editor.SavePage();
    InsertPage(Editor.State);
    Editor.LoadPage(4);
  });
  EXPECT_EQ(Page(5), "four");
  ExpectUndo("Insert page 4");
  EXPECT_EQ(Page(4), "four  ");
  EXPECT_EQ(Page(5), "");
  ExpectNoUndo();
}

TEST_F(RewritingTest, IsPartOfTheEditOfThePage) {
  Editor.Field = "typed  ";
  Editor.MoveTo(2);
  EXPECT_EQ(Page(4), "typed");
  ExpectUndo("Edit page 4");
  EXPECT_EQ(Page(4), "four  ");
  ExpectNoUndo();
}

TEST_F(RewritingTest, DoesNotKeepTheFieldsOwnUndoFromGoingBehindTheFirstStoring) {
  Editor.Run("Paint page 1", [this] { Editor.State.Page(1) = "red"; });
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("ab");
  Editor.Field = "four  ";
  ExpectUndo("Paint page 1");
  ExpectSame("one", "four  ");
  ExpectNoUndo();
}

}  // namespace
}  // namespace tavrel::test
