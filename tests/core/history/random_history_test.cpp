// Random sequences of commands, typing, Undo and Redo, on small documents with pages and links at both ends.
// Whole copies of the document before and after each step say what Undo and Redo have to give; at the end
// each sequence goes through all its steps in both directions, turning after every number of them.
//
// TAVREL_SEQUENCES: how many sequences there are (5,000 if not given). TAVREL_SEED: where the random numbers
// start (1 if not given).

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/editing/random_pages.h"
#include "core/history/random_editor.h"

namespace tavrel::test {
namespace {

constexpr unsigned kParts = 10;
constexpr int kMostDeeds = 4;
constexpr int kManyDeeds = 20;
constexpr int kShortOnes = 50;  ///< one sequence after so many short ones is long
constexpr int kRecords = 200;

/// A number from the environment.
unsigned long Given(const char* variable, unsigned long otherwise) {
  const char* given = std::getenv(variable);
  return given == nullptr ? otherwise : std::strtoul(given, nullptr, 10);
}

/// Records as the editor and others write them. Some end with blanks, which storing would drop.
std::vector<std::string> AnyRecords(std::mt19937& random) {
  std::vector<std::string> records;
  for (int record = 0; record < kRecords; ++record)
    records.push_back(AnyRecord(random) + (record % 4 == 0 ? "  " : ""));
  return records;
}

/// In several parts, so that they can run side by side.
class RandomHistory : public testing::TestWithParam<unsigned> {};

TEST_P(RandomHistory, IsTakenBackAndMadeAgainAsItWas) {
  const unsigned long seed = Given("TAVREL_SEED", 1);
  const unsigned long sequences = Given("TAVREL_SEQUENCES", 5000) / kParts + 1;
  std::mt19937 random(static_cast<unsigned>(seed * kParts + GetParam()));
  const std::vector<std::string> records = AnyRecords(random);
  std::size_t steps = 0;
  for (unsigned long sequence = 0; sequence < sequences && !HasFailure(); ++sequence) {
    SCOPED_TRACE("TAVREL_SEED=" + std::to_string(seed) + ", sequence " + std::to_string(sequence));
    RandomEditor editor(random, records);
    int deeds = sequence % kShortOnes == 0 ? kManyDeeds : Any(random, 1, kMostDeeds);
    for (; deeds > 0 && !HasFailure(); --deeds) editor.DoAnything();
    editor.GoThroughAllSteps();
    steps += editor.Steps();
  }
  EXPECT_GT(steps, sequences);
}

INSTANTIATE_TEST_SUITE_P(Parts, RandomHistory, testing::Range(0U, kParts));

}  // namespace
}  // namespace tavrel::test
