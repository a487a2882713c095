#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/document/markup.h"
#include "core/editing/literal_tags.h"

// The tag routines against the rules written down step by step, with positions counted from 1, over random
// texts full of broken and overlapping tags.

namespace tavrel::test {
namespace {

int CountOpenings(const std::string& text, const std::string& tag) {
  int count = 0;
  while (LiteralOpening(text, tag, count + 1) > 0) ++count;
  return count;
}

/// Whole tags, closing tags, halves of both and plain characters in any order.
std::string HostileText(std::mt19937& random, const std::string& tag) {
  const std::string closing = LiteralClosing(tag);
  const std::size_t half = tag.size() / 2;
  const std::vector<std::string> pieces = {tag,
                                           tag,
                                           closing,
                                           tag.substr(0, half),
                                           tag.substr(half),
                                           closing.substr(0, 2),
                                           closing.substr(2),
                                           tag + tag,
                                           closing + tag,
                                           tag + closing,
                                           "<linktext>",
                                           "</linktext>",
                                           "a",
                                           "/",
                                           "<",
                                           ">",
                                           "\r\n",
                                           std::string(1, '\0'),
                                           "\xE9"};
  std::uniform_int_distribution<std::size_t> any_piece(0, pieces.size() - 1);
  std::string text;
  for (int left = std::uniform_int_distribution<int>(0, 14)(random); left > 0; --left) {
    text += pieces[any_piece(random)];
  }
  return text;
}

class RandomTags : public testing::TestWithParam<std::string> {
 protected:
  static constexpr int kTexts = 3000;

  /// Calls `check` with many texts and, as a help to find a failure, shows the text.
  template <typename Check>
  void ForManyTexts(Check check) {
    std::mt19937 random(20060303);
    for (int i = 0; i < kTexts && !HasFailure(); ++i) {
      const std::string text = HostileText(random, GetParam());
      SCOPED_TRACE(testing::PrintToString(text));
      check(text, CountOpenings(text, GetParam()));
    }
  }
};

TEST_P(RandomTags, GetTagFollowsTheRule) {
  ForManyTexts([](const std::string& text, int count) {
    for (int occurrence = -1; occurrence <= count + 2; ++occurrence) {
      EXPECT_EQ(GetTag(text, GetParam(), occurrence), LiteralGetTag(text, GetParam(), occurrence))
          << occurrence;
    }
  });
}

TEST_P(RandomTags, SetTagFollowsTheRule) {
  ForManyTexts([](const std::string& text, int count) {
    for (int occurrence = -1; occurrence <= count + 2; ++occurrence) {
      std::string expected = text;
      LiteralSetTag(expected, "new", GetParam(), occurrence);
      std::string changed = text;
      SetTag(changed, "new", GetParam(), occurrence);
      EXPECT_EQ(changed, expected) << occurrence;
    }
  });
}

TEST_P(RandomTags, TagWalkerMeetsEveryElementOnceInOrder) {
  ForManyTexts([](const std::string& text, int count) {
    const std::string tag = GetParam();
    TagWalker walker(text, tag);
    for (int occurrence = 1; occurrence <= count; ++occurrence) {
      ASSERT_TRUE(walker.Next()) << occurrence;
      EXPECT_EQ(walker.Content(), LiteralGetTag(text, tag, occurrence)) << occurrence;
    }
    EXPECT_FALSE(walker.Next());
    EXPECT_EQ(walker.Content(), "");
  });
}

INSTANTIATE_TEST_SUITE_P(Tags, RandomTags, testing::Values("<t>", "<linkto>", "<<>", "<aa>"));
INSTANTIATE_TEST_SUITE_P(OverlappingTags, RandomTags, testing::Values("aa", "aaa", "aba", "<a<"));

}  // namespace
}  // namespace tavrel::test
