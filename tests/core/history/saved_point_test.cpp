#include <gtest/gtest.h>
#include <string>

#include "core/history/added_steps.h"
#include "core/history/history.h"

// When the steps say that the document is as it was saved: only if they lead back to that very moment.

namespace tavrel::test {
namespace {

class SavedPoint : public testing::Test {
 protected:
  void Add(const std::string& text) { AddPage(Steps, State, 7, text); }
  void Undo() { Steps.Undo(State); }
  void Redo() { Steps.Redo(State); }

  Global State;
  History Steps;
};

TEST_F(SavedPoint, IsWhereTheDocumentStarts) {
  EXPECT_TRUE(Steps.IsSaved());
  Add("a");
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_TRUE(Steps.IsSaved());
}

TEST_F(SavedPoint, IsLeftByEveryStepAndReachedAgainByUndo) {
  Add("a");
  Steps.MarkSaved();
  EXPECT_TRUE(Steps.IsSaved());
  Add("b");
  EXPECT_FALSE(Steps.IsSaved());
  Add("c");
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_TRUE(Steps.IsSaved());
}

TEST_F(SavedPoint, IsLeftByUndoAndReachedAgainByRedo) {
  Add("a");
  Add("b");
  Steps.MarkSaved();
  Undo();
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_FALSE(Steps.IsSaved());
  Redo();
  EXPECT_FALSE(Steps.IsSaved());
  Redo();
  EXPECT_TRUE(Steps.IsSaved());
}

TEST_F(SavedPoint, MovesWithEverySaving) {
  Steps.MarkSaved();
  Add("a");
  Steps.MarkSaved();
  Undo();
  EXPECT_FALSE(Steps.IsSaved());
  Steps.MarkSaved();
  EXPECT_TRUE(Steps.IsSaved());
  Redo();
  EXPECT_FALSE(Steps.IsSaved());
}

TEST_F(SavedPoint, IsLostWithTheUndoneStepsThatLedToIt) {
  Add("a");
  Add("b");
  Steps.MarkSaved();
  Undo();
  Add("other");
  // As many steps as were done when it was saved, but others.
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_FALSE(Steps.IsSaved());
  Redo();
  Redo();
  EXPECT_FALSE(Steps.IsSaved());
}

TEST_F(SavedPoint, StaysIfTheForgottenUndoneStepsLedAwayFromIt) {
  Add("a");
  Steps.MarkSaved();
  Add("b");
  Add("c");
  Undo();
  Undo();
  Add("other");
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  EXPECT_TRUE(Steps.IsSaved());
}

TEST_F(SavedPoint, IsLostWithTheOldestStepsThatLedToIt) {
  Add("a");
  Add("b");
  Add(std::string(History::kMostBytes, 'x'));  // pushes the others out
  ASSERT_EQ(Steps.StepBack(1), nullptr);
  EXPECT_FALSE(Steps.IsSaved());
  Undo();
  // The document is "b" here; it was saved two steps before that.
  EXPECT_FALSE(Steps.IsSaved());
}

TEST_F(SavedPoint, StaysLostWhateverIsDoneThen) {
  Add("a");
  Add(std::string(History::kMostBytes, 'x'));
  for (int step = 0; step < 5; ++step) {
    Add("more");
    EXPECT_FALSE(Steps.IsSaved());
  }
  while (Steps.NextUndo() != nullptr) {
    Undo();
    EXPECT_FALSE(Steps.IsSaved());
  }
}

TEST_F(SavedPoint, StaysWhereItIsWhileOlderStepsAreForgotten) {
  Add("a");
  Add("b");
  Steps.MarkSaved();
  Add(std::string(History::kMostBytes, 'x'));
  ASSERT_EQ(Steps.StepBack(1), nullptr);
  Undo();
  EXPECT_EQ(State.Page(7), "b");
  EXPECT_TRUE(Steps.IsSaved());
}

TEST_F(SavedPoint, IsWhereAnotherDocumentStarts) {
  Add("a");
  Add("b");
  Steps.Start();
  EXPECT_TRUE(Steps.IsSaved());
  Add("c");
  EXPECT_FALSE(Steps.IsSaved());
}

}  // namespace
}  // namespace tavrel::test
