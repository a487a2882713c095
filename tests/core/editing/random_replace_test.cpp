#include <gtest/gtest.h>
#include <random>
#include <string>

#include "core/editing/document_of.h"
#include "core/editing/literal_editing.h"
#include "core/editing/random_pages.h"
#include "core/editing/search.h"

// Replacing in one pass against building the whole text anew for each match.

namespace tavrel::test {
namespace {

/// Characters that match one another often.
std::string AnyLetters(std::mt19937& random, int least, int most) {
  std::string letters;
  for (int left = Any(random, least, most); left > 0; --left)
    letters += AnyOf<char>(random, {'a', 'b', 'a', 'A'});
  return letters;
}

/// Replaces in texts that begin with `filler` x's and compares each with the literal rule.
void CheckReplacement(std::mt19937& random, const std::string& wanted, const std::string& replacement,
                      bool match_case, int filler, int texts) {
  Global global;
  for (int page = 1; page <= texts; ++page) {
    global.Page(page) =
        WithText(std::string(static_cast<std::size_t>(filler), 'x') + AnyLetters(random, 0, 24));
  }
  const Global before = global;
  ReplaceInPages(global, wanted, replacement, match_case, CodePage::Windows1252());
  for (int page = 1; page <= texts; ++page) {
    std::string expected = before.Page(page);
    LiteralReplace(expected, wanted, replacement, match_case, CodePage::Windows1252());
    EXPECT_EQ(global.Page(page), expected)
        << before.Page(page) << ": " << wanted << " by " << replacement << (match_case ? " exactly" : "");
  }
}

/// Whether a replacement would be found again in itself, so that only the limit ends the search.
bool IsEndless(std::string wanted, const std::string& replacement, bool match_case) {
  const std::size_t length = wanted.size();
  if (!match_case) wanted = CodePage::Windows1252().Lower(wanted);
  return replacement.find(wanted, length) != std::string::npos;
}

TEST(RandomReplacements, GiveTheTextOfTheLiteralRule) {
  std::mt19937 random(11);
  for (int round = 0; round < 600 && !testing::Test::HasFailure(); ++round) {
    const std::string wanted = AnyLetters(random, 1, 4);
    const std::string replacement = AnyLetters(random, 0, 7);
    const bool match_case = random() % 2 == 0;
    if (IsEndless(wanted, replacement, match_case)) continue;
    CheckReplacement(random, wanted, replacement, match_case, 0, 60);
  }
}

TEST(RandomReplacements, StopWhereTheLiteralRuleDoes) {
  std::mt19937 random(12);
  for (int round = 0; round < 150 && !testing::Test::HasFailure(); ++round) {
    const std::string wanted = AnyLetters(random, 1, 3);
    const std::string replacement = AnyLetters(random, 0, 9);
    const int filler = 32767 - Any(random, 0, 40);
    CheckReplacement(random, wanted, replacement, random() % 2 == 0, filler, 4);
  }
}

}  // namespace
}  // namespace tavrel::test
