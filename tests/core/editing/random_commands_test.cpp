#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "core/editing/random_pages.h"
#include "core/editing/two_editors.h"

// The program's editing commands against their rules run a step at a time, over random documents full of
// broken and odd links. The whole document is compared after each command.

namespace tavrel::test {
namespace {

constexpr int kSequences = 850;
constexpr int kMostCommands = 5;

/// Several seeds, so that the parts can run side by side.
class RandomCommands : public testing::TestWithParam<unsigned> {
 protected:
  std::mt19937 random_{GetParam()};
};

TEST_P(RandomCommands, GiveWhatTheRulesGiveStepByStep) {
  for (int sequence = 0; sequence < kSequences && !HasFailure(); ++sequence) {
    TwoEditors editors(random_);
    editors.FillSomePages();
    for (int left = Any(random_, 1, kMostCommands); left > 0 && !HasFailure(); --left) {
      editors.RunAnyCommand();
      editors.ExpectSameState();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomCommands, testing::Range(1U, 13U));

class RandomBlocks : public RandomCommands {};

TEST_P(RandomBlocks, OfFullDocumentsGiveWhatTheRepeatedCommandGives) {
  TwoEditors editors(random_);
  editors.FillAllPages();
  const int start = Any(random_, 1, 990);
  editors.RunBlockDelete(start, std::min(start + Any(random_, 9, 60), 999));
  editors.ExpectSameState();
  const int at = Any(random_, 1, 998);
  editors.RunBlockInsert(at, Any(random_, 10, 50));
  editors.ExpectSameState();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomBlocks, testing::Range(1U, 6U));

}  // namespace
}  // namespace tavrel::test
