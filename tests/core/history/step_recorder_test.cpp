#include "core/history/step_recorder_test.h"

#include <utility>

#include "core/editing/page_commands.h"

// What the recorder makes of commands: which steps, their names and their places.

namespace tavrel::test {
namespace {

TEST_F(StepRecorderTest, TakesBackACommandThatChangesOnePage) {
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  ExpectPages("one", "red", "three");
  ExpectUndo("Paint page 2");
  ExpectPages("one", "two", "three");
  ExpectNoUndo();
  ExpectRedo("Paint page 2");
  ExpectPages("one", "red", "three");
  ExpectNoRedo();
}

TEST_F(StepRecorderTest, CallsAStepAfterItsChangesIfTheCommandHasNoName) {
  const auto name = [this](const auto& command) {
    Editor.Run({}, command);
    return Editor.Steps.UndoName(Editor.State, Editor.Now());
  };
  EXPECT_EQ(name([this] { Editor.State.Page(2) = "red"; }), "Edit page 2");
  EXPECT_EQ(name([this] { Editor.State.Page(2) = Editor.State.Page(3) = "blue"; }), "Edit pages");
  EXPECT_EQ(name([this] { Editor.State.MusicLink(4) = "<song>Blue</song>"; }), "Music links");
}

TEST_F(StepRecorderTest, CallsNoStepAfterAnotherCommand) {
  Editor.Run("Named in vain", [] {});
  Editor.Run({}, [this] { Editor.State.Page(2) = "red"; });
  ExpectUndo("Edit page 2");
}

TEST_F(StepRecorderTest, LetsACommandNameItsStepLastOfAll) {
  Editor.Run("Replace", [this] {
    Editor.State.Page(2) = "red";
    Editor.Steps.Name("Replace in 1 page");
  });
  ExpectUndo("Replace in 1 page");
}

TEST_F(StepRecorderTest, MakesNoStepOfNothing) {
  Editor.Run("Nothing", [] {});
  Editor.Run("The same", [this] { Editor.State.Page(2) = "two"; });
  Editor.Run("There and back", [this] {
    Editor.State.Page(2) = "red";
    Editor.State.Page(2) = "two";
  });
  Editor.Run("Store what is stored", [this] { Editor.SavePage(); });
  Editor.Run("Copy", [this] { Editor.State.PageClipboard = Editor.State.Page(1); });
  Editor.MoveTo(3);
  ExpectNoUndo();
  EXPECT_TRUE(Editor.Steps.IsSaved());
}

TEST_F(StepRecorderTest, KeepsWhatWasTakenBackThroughCommandsThatChangeNothing) {
  Editor.TypeAndStore("ONE");
  ExpectUndo("Edit page 1");
  Editor.Run("Nothing", [] {});
  Editor.MoveTo(2);
  ExpectRedo("Edit page 1");
  ExpectPages("ONE", "two", "three");
}

TEST_F(StepRecorderTest, ReturnsToWhereTheCommandBeganAndRedoesToWhereItEnded) {
  Editor.LoadPage(2);
  Editor.Caret = {.Link = 4, .Field = "Text3", .Anchor = 1, .Caret = 3, .Row = 5};
  Editor.Run("Move page 2 up", [this] {
    MovePageUp(Editor.State);
    Editor.LoadPage(1);
    Editor.Caret = {.Link = 1, .Field = "Text1", .Anchor = 0, .Caret = 0, .Row = 1};
  });
  ExpectPages("two", "one", "three");

  ExpectUndo("Move page 2 up");
  EXPECT_EQ(Editor.State.CurrentPage, 2);
  EXPECT_EQ(Editor.Caret.Link, 4);
  EXPECT_EQ(Editor.Caret.Field, "Text3");
  EXPECT_EQ(Editor.Caret.Anchor, 1);
  EXPECT_EQ(Editor.Caret.Caret, 3);
  EXPECT_EQ(Editor.Caret.Row, 5);

  ExpectRedo("Move page 2 up");
  EXPECT_EQ(Editor.State.CurrentPage, 1);
  EXPECT_EQ(Editor.Caret.Link, 1);
  EXPECT_EQ(Editor.Caret.Field, "Text1");
  EXPECT_EQ(Editor.Caret.Row, 1);
}

TEST_F(StepRecorderTest, LeavesThePageClipboardAlone) {
  Editor.Run("Cut page 1", [this] {
    CutPage(Editor.State);
    Editor.LoadPage(1);
  });
  ExpectUndo("Cut page 1");
  EXPECT_EQ(Editor.State.PageClipboard, "one");
  Editor.State.PageClipboard = "other";
  ExpectRedo("Cut page 1");
  EXPECT_EQ(Editor.State.PageClipboard, "other");
}

TEST_F(StepRecorderTest, ForgetsWhatWasTakenBackAtTheNextStep) {
  Editor.TypeAndStore("a");
  Editor.TypeAndStore("b");
  ExpectUndo("Edit page 1");
  ExpectUndo("Edit page 1");
  Editor.Run("Paint page 3", [this] { Editor.State.Page(3) = "red"; });
  ExpectNoRedo();
  ExpectUndo("Paint page 3");
  ExpectNoUndo();
  ExpectPages("one", "two", "three");
}

TEST_F(StepRecorderTest, TakesNothingWithoutACommand) {
  EXPECT_EQ(Editor.Steps.Undo(Editor.State, Page(1)), nullptr);
  EXPECT_EQ(Editor.Steps.Redo(Editor.State), nullptr);
  Editor.Run("Paint page 2", [this] { Editor.State.Page(2) = "red"; });
  EXPECT_EQ(Editor.Steps.Undo(Editor.State, Page(1)), nullptr);
  EXPECT_EQ(Page(2), "red");
  ExpectUndo("Paint page 2");
  EXPECT_EQ(Editor.Steps.Redo(Editor.State), nullptr);
  EXPECT_EQ(Page(2), "two");
}

TEST_F(StepRecorderTest, RecordsNothingAtAnEndWithoutABeginning) {
  Editor.State.Page(2) = "red";
  Editor.Steps.End(Editor.State, Editor.Now());
  ExpectNoUndo();
  Editor.Run({}, [] {});
  Editor.State.Page(2) = "blue";
  Editor.Steps.End(Editor.State, Editor.Now());
  ExpectNoUndo();
  EXPECT_EQ(Page(2), "blue");
}

TEST_F(StepRecorderTest, RecordsNothingOfTheCommandThatBringsAnotherDocument) {
  Editor.TypeAndStore("ONE");
  Editor.Field = "typed";
  Editor.Run("Open", [this] {
    Editor.State.Page(1) = "another";
    Editor.State.Page(2).clear();
    Editor.Open();
  });
  EXPECT_TRUE(Editor.Steps.IsSaved());
  ExpectNoUndo();
  ExpectNoRedo();
  ExpectPages("another", "", "three");

  Editor.TypeAndStore("x");
  ExpectUndo("Edit page 1");
  ExpectPages("another", "", "three");
  ExpectNoUndo();
}

TEST_F(StepRecorderTest, LeavesOutWhatAFailedCommandDid) {
  Editor.Steps.Begin(Editor.State, Editor.Now());
  Editor.Steps.Name("Failed");
  Editor.Steps.Saved();
  Editor.State.Page(2) = "half done";

  Editor.Run({}, [this] { Editor.State.Page(3) = "red"; });
  EXPECT_FALSE(Editor.Steps.IsSaved());
  ExpectUndo("Edit page 3");
  ExpectPages("one", "half done", "three");
  ExpectNoUndo();
}

}  // namespace
}  // namespace tavrel::test
