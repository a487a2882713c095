#include <gtest/gtest.h>
#include <set>
#include <string>

#include "core/editing/blocks.h"
#include "core/history/added_steps.h"
#include "core/history/history.h"

// How much a history keeps.

namespace tavrel::test {
namespace {

constexpr std::size_t kMegabyte = 1U << 20U;

/// The bytes of all records that the steps keep, those that are shared counted once.
std::size_t KeptBytes(const History& steps) {
  std::set<const char*> seen;
  std::size_t bytes = 0;
  const auto count = [&](const Record& record) {
    if (seen.insert(record.Bytes().data()).second) bytes += record.size();
  };
  for (std::size_t back = 0; const Step* step = steps.StepBack(back); ++back) {
    for (const Change& change : step->Pages) {
      count(change.Before);
      count(change.After);
    }
  }
  return bytes;
}

std::size_t CountOf(const History& steps) {
  std::size_t count = 0;
  while (steps.StepBack(count) != nullptr) ++count;
  return count;
}

/// Another text of a given length for each number.
std::string Text(std::size_t length, std::size_t number) {
  const std::string digits = std::to_string(number);
  return digits + std::string(length - digits.size(), 'x');
}

/// The page that a step edits.
int PageOf(std::size_t step) {
  return 5 + static_cast<int>(step % 3);
}

class HistorySize : public testing::Test {
 protected:
  /// Edits three pages in turn; the steps are called after their number.
  void AddSteps(std::size_t count, std::size_t length) {
    for (std::size_t left = count; left > 0; --left) {
      ++number_;
      AddPage(Steps, State, 5 + static_cast<int>(number_ % 3), Text(length, number_),
              std::to_string(number_));
    }
  }

  Global State;
  History Steps;

 private:
  std::size_t number_ = 0;
};

TEST_F(HistorySize, KeepsTwoHundredEditsOfLongPages) {
  AddSteps(200, 30'000);
  EXPECT_EQ(CountOf(Steps), 200U);
  for (int step = 200; step > 0; --step) ASSERT_EQ(Steps.Undo(State).Name, std::to_string(step));
  EXPECT_EQ(State.Page(5).Bytes() + State.Page(6).Bytes() + State.Page(7).Bytes(), "");
}

TEST_F(HistorySize, StaysWithinItsBytesHoweverManyStepsAreMade) {
  for (int round = 0; round < 20; ++round) {
    AddSteps(25, 300'000);
    // The document holds three of the pages itself.
    EXPECT_LE(KeptBytes(Steps), History::kMostBytes + std::size_t{3} * 300'000);
  }
  // 64 MB hold 223 texts of 300,000 bytes.
  EXPECT_GE(CountOf(Steps), 220U);
  EXPECT_LE(CountOf(Steps), 223U);
}

TEST_F(HistorySize, StaysWithinItsBytesIfPagesBecomeEmptyAndFullAgain) {
  for (int round = 0; round < 200; ++round) {
    AddPage(Steps, State, 5, Text(kMegabyte, 1));
    AddPage(Steps, State, 5, "");
  }
  EXPECT_LE(KeptBytes(Steps), History::kMostBytes);
  // The page counts where it comes and where it goes.
  EXPECT_GE(CountOf(Steps), 60U);
}

TEST_F(HistorySize, CountsMusicLinksToo) {
  for (std::size_t step = 0; step < 8; ++step) {
    Record before = State.MusicLink(3);
    State.MusicLink(3) = Text(10 * kMegabyte, step);
    Step made = PageStep(0, "", "");
    made.Pages.clear();
    made.MusicLinks = {{3, before, State.MusicLink(3)}};
    Steps.Add(made);
  }
  EXPECT_EQ(CountOf(Steps), 6U);
}

TEST_F(HistorySize, BoundsTheNumberOfTinySteps) {
  constexpr std::size_t kMany = 300'000;
  Step tiny = PageStep(5, "a", "b");
  for (std::size_t step = 0; step < kMany; ++step) Steps.Add(tiny);
  // Each takes a step and a change at least.
  EXPECT_LE(CountOf(Steps), History::kMostBytes / (sizeof(Step) + sizeof(Change)));
}

TEST_F(HistorySize, ForgetsTheOldestFirst) {
  AddSteps(7, 20 * kMegabyte);
  ASSERT_EQ(CountOf(Steps), 3U);
  EXPECT_EQ(Steps.Undo(State).Name, "7");
  EXPECT_EQ(Steps.Undo(State).Name, "6");
  EXPECT_EQ(Steps.Undo(State).Name, "5");
  EXPECT_EQ(Steps.NextUndo(), nullptr);
  // Steps 2, 3 and 4 are what cannot be taken back any more.
  for (std::size_t step = 2; step <= 4; ++step)
    EXPECT_TRUE(State.Page(PageOf(step)) == Text(20 * kMegabyte, step)) << step;
}

TEST_F(HistorySize, NeverForgetsTheNewest) {
  AddSteps(3, 100);
  AddSteps(1, History::kMostBytes + kMegabyte);
  EXPECT_EQ(CountOf(Steps), 1U);
  EXPECT_EQ(NameOf(Steps.NextUndo()), "4");

  AddSteps(1, 100);
  EXPECT_EQ(CountOf(Steps), 1U);
  EXPECT_EQ(NameOf(Steps.NextUndo()), "5");
}

TEST_F(HistorySize, CountsNoStepThatIsForgotten) {
  for (int round = 0; round < 4; ++round) {
    AddSteps(1, 30 * kMegabyte);
    Steps.Undo(State);
  }
  AddSteps(2, 100);
  EXPECT_EQ(CountOf(Steps), 2U);
  AddSteps(2, 20 * kMegabyte);
  EXPECT_EQ(CountOf(Steps), 4U);
}

TEST_F(HistorySize, DoesNotCountPagesThatHaveOnlyMoved) {
  for (int page = 1; page <= 999; ++page) State.Page(page) = Text(3000, static_cast<std::size_t>(page));
  for (int step = 0; step < 200; ++step) {
    const Records before = RecordsOf(State);
    InsertPages(State, 1, 1);
    Steps.Add(Difference(before, State));
  }
  // Each keeps a page that has fallen off, and some bytes for each that has moved.
  EXPECT_EQ(CountOf(Steps), 200U);
}

TEST_F(HistorySize, IsNothingForANewDocument) {
  AddSteps(3, 20 * kMegabyte);
  Steps.Start();
  AddSteps(3, 20 * kMegabyte);
  EXPECT_EQ(CountOf(Steps), 3U);
}

}  // namespace
}  // namespace tavrel::test
