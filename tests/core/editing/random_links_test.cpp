#include <gtest/gtest.h>
#include <random>
#include <string>

#include "core/editing/link_numbers.h"
#include "core/editing/literal_editing.h"
#include "core/editing/random_pages.h"

// Renumbering in one pass against the walk that reads and writes one link after another, over random records
// full of broken and odd links.

namespace tavrel::test {
namespace {

TEST(RandomLinks, GetTheNumbersOfTheLiteralWalk) {
  std::mt19937 random(7);
  for (int round = 0; round < 30'000 && !testing::Test::HasFailure(); ++round) {
    const std::string before = random() % 2 == 0 ? AnyLinks(random) : AnyRecord(random);
    const int at = AnyPage(random);
    const int step = random() % 2 == 0 ? 1 : -1;
    std::string expected = before;
    LiteralWalk(expected, [=](int number) { return number >= at ? number + step : number; });
    std::string renumbered = before;
    RenumberLinks(renumbered,
                  [=](int number) { return number >= at ? std::optional(number + step) : std::nullopt; });
    EXPECT_EQ(renumbered, expected) << before;
  }
}

}  // namespace
}  // namespace tavrel::test
