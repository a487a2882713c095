#include "core/history/history.h"

#include <gtest/gtest.h>
#include <string>

#include "core/history/added_steps.h"

namespace tavrel::test {
namespace {

class HistoryTest : public testing::Test {
 protected:
  HistoryTest() { State.Page(7) = "one"; }

  Global State;
  History Steps;
};

TEST_F(HistoryTest, HasNoStepsAtFirst) {
  EXPECT_EQ(Steps.NextUndo(), nullptr);
  EXPECT_EQ(Steps.NextRedo(), nullptr);
  EXPECT_EQ(Steps.StepBack(0), nullptr);
}

TEST_F(HistoryTest, TakesBackAndMakesAgainWhatHappenedToPages) {
  AddPage(Steps, State, 7, "two");
  AddPage(Steps, State, 7, "");
  AddPage(Steps, State, 8, "new");

  Steps.Undo(State);
  EXPECT_EQ(State.Page(8), "");
  EXPECT_EQ(State.Page(7), "");
  Steps.Undo(State);
  EXPECT_EQ(State.Page(7), "two");
  Steps.Undo(State);
  EXPECT_EQ(State.Page(7), "one");
  EXPECT_EQ(Steps.NextUndo(), nullptr);

  Steps.Redo(State);
  EXPECT_EQ(State.Page(7), "two");
  Steps.Redo(State);
  EXPECT_EQ(State.Page(7), "");
  EXPECT_EQ(State.Page(8), "");
  Steps.Redo(State);
  EXPECT_EQ(State.Page(8), "new");
  EXPECT_EQ(Steps.NextRedo(), nullptr);
}

TEST_F(HistoryTest, TakesBackAndMakesAgainManyRecordsAsOneStep) {
  State.MusicLink(3) = "<song>Blue</song>";
  const Records before = RecordsOf(State);
  for (const int page : {0, 1, 999, 1000}) State.Page(page) = "page " + std::to_string(page);
  for (const int link : {0, 1, 100}) State.MusicLink(link) = "link " + std::to_string(link);
  State.MusicLink(3).clear();
  const Records after = RecordsOf(State);
  Steps.Add(Difference(before, State));

  Steps.Undo(State);
  EXPECT_EQ(State.Pages, before.Pages);
  EXPECT_EQ(State.MusicLinks, before.MusicLinks);
  Steps.Redo(State);
  EXPECT_EQ(State.Pages, after.Pages);
  EXPECT_EQ(State.MusicLinks, after.MusicLinks);
}

TEST_F(HistoryTest, TouchesNothingButWhatTheStepChanged) {
  AddPage(Steps, State, 7, "two");
  State.Page(9) = "of another hand";
  State.PageClipboard = "clipboard";
  State.CurrentPage = 12;
  Steps.Undo(State);
  EXPECT_EQ(State.Page(9), "of another hand");
  EXPECT_EQ(State.PageClipboard, "clipboard");
  EXPECT_EQ(State.CurrentPage, 12);
}

TEST_F(HistoryTest, NamesWhatComesNext) {
  AddPage(Steps, State, 7, "two", "first");
  AddPage(Steps, State, 7, "three", "second");
  EXPECT_EQ(NameOf(Steps.NextUndo()), "second");
  EXPECT_EQ(NameOf(Steps.NextRedo()), "none");

  EXPECT_EQ(Steps.Undo(State).Name, "second");
  EXPECT_EQ(NameOf(Steps.NextUndo()), "first");
  EXPECT_EQ(NameOf(Steps.NextRedo()), "second");

  EXPECT_EQ(Steps.Undo(State).Name, "first");
  EXPECT_EQ(NameOf(Steps.NextUndo()), "none");
  EXPECT_EQ(NameOf(Steps.NextRedo()), "first");

  EXPECT_EQ(Steps.Redo(State).Name, "first");
  EXPECT_EQ(NameOf(Steps.NextUndo()), "first");
  EXPECT_EQ(NameOf(Steps.NextRedo()), "second");
}

TEST_F(HistoryTest, LooksBackOverTheStepsThatAreNotTakenBack) {
  AddPage(Steps, State, 7, "two", "first");
  AddPage(Steps, State, 7, "three", "second");
  AddPage(Steps, State, 7, "four", "third");
  Steps.Undo(State);
  EXPECT_EQ(NameOf(Steps.StepBack(0)), "second");
  EXPECT_EQ(NameOf(Steps.StepBack(1)), "first");
  EXPECT_EQ(NameOf(Steps.StepBack(2)), "none");
}

TEST_F(HistoryTest, GivesThePlacesOfAStep) {
  Step step = PageStep(7, "one", "two");
  step.Before = {.Page = 7, .Link = 3, .Field = "Text3", .Anchor = 1, .Caret = 4, .Row = 2};
  step.After = {.Page = 12, .Link = 1, .Field = "Text1", .Anchor = 0, .Caret = 9, .Row = 0};
  Steps.Add(step);
  const Place before = Steps.Undo(State).Before;
  EXPECT_EQ(before.Page, 7);
  EXPECT_EQ(before.Link, 3);
  EXPECT_EQ(before.Field, "Text3");
  EXPECT_EQ(before.Anchor, 1);
  EXPECT_EQ(before.Caret, 4);
  EXPECT_EQ(before.Row, 2);
  const Place after = Steps.Redo(State).After;
  EXPECT_EQ(after.Page, 12);
  EXPECT_EQ(after.Field, "Text1");
  EXPECT_EQ(after.Caret, 9);
  EXPECT_EQ(after.Row, 0);
}

TEST_F(HistoryTest, ForgetsWhatWasTakenBackWhenSomethingNewIsDone) {
  AddPage(Steps, State, 7, "two", "first");
  AddPage(Steps, State, 7, "three", "second");
  AddPage(Steps, State, 7, "four", "third");
  Steps.Undo(State);
  Steps.Undo(State);
  AddPage(Steps, State, 7, "other", "new");

  EXPECT_EQ(Steps.NextRedo(), nullptr);
  EXPECT_EQ(Steps.Undo(State).Name, "new");
  EXPECT_EQ(State.Page(7), "two");
  EXPECT_EQ(Steps.Undo(State).Name, "first");
  EXPECT_EQ(State.Page(7), "one");
  EXPECT_EQ(Steps.NextUndo(), nullptr);
  Steps.Redo(State);
  Steps.Redo(State);
  EXPECT_EQ(State.Page(7), "other");
  EXPECT_EQ(Steps.NextRedo(), nullptr);
}

TEST_F(HistoryTest, StartsAnewWithoutSteps) {
  AddPage(Steps, State, 7, "two");
  AddPage(Steps, State, 7, "three");
  Steps.Undo(State);
  Steps.Start();
  EXPECT_EQ(Steps.NextUndo(), nullptr);
  EXPECT_EQ(Steps.NextRedo(), nullptr);
  EXPECT_EQ(State.Page(7), "two");
}

TEST(Difference, IsEmptyIfAllBytesAreTheSame) {
  Global global;
  global.Page(7) = "one";
  const Records before = RecordsOf(global);
  global.Page(7) = "two";
  global.Page(7) = "one";
  global.Page(8).Edit();
  global.PageClipboard = "clipboard";
  EXPECT_TRUE(Difference(before, global).IsEmpty());
}

TEST(Difference, HoldsOnlyTheRecordsThatHaveChanged) {
  Global global;
  for (const int page : {1, 2, 3}) global.Page(page) = "same";
  const Records before = RecordsOf(global);
  global.Page(2) = "changed";
  global.MusicLink(5) = "new";
  const Step step = Difference(before, global);

  EXPECT_FALSE(step.IsEmpty());
  ASSERT_EQ(step.Pages.size(), 1U);
  EXPECT_EQ(step.Pages[0].Number, 2);
  EXPECT_EQ(step.Pages[0].Before, "same");
  EXPECT_EQ(step.Pages[0].After, "changed");
  ASSERT_EQ(step.MusicLinks.size(), 1U);
  EXPECT_EQ(step.MusicLinks[0].Number, 5);
  EXPECT_EQ(step.MusicLinks[0].Before, "");
  EXPECT_EQ(step.MusicLinks[0].After, "new");
}

}  // namespace
}  // namespace tavrel::test
