#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/document/markup.h"

// The tag routines against the rules written down step by step, with positions counted from 1, over random
// texts full of broken and overlapping tags.

namespace tavrel::test {
namespace {

/// Position of `part` in `text`, searching from position `from`; 0 if absent.
int PositionFrom(int from, const std::string& text, const std::string& part) {
  const int last = static_cast<int>(text.size()) - static_cast<int>(part.size()) + 1;
  for (int position = from; position <= last; ++position) {
    if (text.compare(static_cast<std::size_t>(position) - 1, part.size(), part) == 0) return position;
  }
  return 0;
}

std::string Characters(const std::string& text, int position, int count) {
  return text.substr(static_cast<std::size_t>(position) - 1, static_cast<std::size_t>(count));
}

std::string Closing(const std::string& tag) {
  return tag.substr(0, 1) + "/" + tag.substr(1);
}

int OpeningPosition(const std::string& text, const std::string& tag, int occurrence) {
  int pos = PositionFrom(1, text, tag);
  while (occurrence > 1 && pos > 0) {
    occurrence = occurrence - 1;
    pos = PositionFrom(pos + 1, text, tag);
  }
  return pos;
}

std::string ExpectedGet(const std::string& text, const std::string& tag, int occurrence) {
  int pos = OpeningPosition(text, tag, occurrence);
  if (pos < 1) return "";
  pos = pos + static_cast<int>(tag.size());
  const int end = PositionFrom(pos, text, Closing(tag));
  if (end < 1 || pos >= end) return "";
  return Characters(text, pos, end - pos);
}

std::string ExpectedSet(const std::string& text, const std::string& value, const std::string& tag,
                        int occurrence) {
  int pos = OpeningPosition(text, tag, occurrence);
  if (pos < 1) return text;
  pos = pos + static_cast<int>(tag.size()) - 1;
  const int end = PositionFrom(pos, text, Closing(tag));
  if (end < 1) return text;
  const int rest = static_cast<int>(text.size()) - end + 1;
  return Characters(text, 1, pos) + value + Characters(text, end, rest);
}

int CountOpenings(const std::string& text, const std::string& tag) {
  int count = 0;
  while (OpeningPosition(text, tag, count + 1) > 0) ++count;
  return count;
}

/// Whole tags, closing tags, halves of both and plain characters in any order.
std::string HostileText(std::mt19937& random, const std::string& tag) {
  const std::string closing = Closing(tag);
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
      EXPECT_EQ(GetTag(text, GetParam(), occurrence), ExpectedGet(text, GetParam(), occurrence))
          << occurrence;
    }
  });
}

TEST_P(RandomTags, SetTagFollowsTheRule) {
  ForManyTexts([](const std::string& text, int count) {
    for (int occurrence = -1; occurrence <= count + 2; ++occurrence) {
      std::string changed = text;
      SetTag(changed, "new", GetParam(), occurrence);
      EXPECT_EQ(changed, ExpectedSet(text, "new", GetParam(), occurrence)) << occurrence;
    }
  });
}

TEST_P(RandomTags, TagWalkerMeetsEveryElementOnceInOrder) {
  ForManyTexts([](const std::string& text, int count) {
    const std::string tag = GetParam();
    TagWalker walker(text, tag);
    for (int occurrence = 1; occurrence <= count; ++occurrence) {
      ASSERT_TRUE(walker.Next()) << occurrence;
      EXPECT_EQ(walker.Content(), ExpectedGet(text, tag, occurrence)) << occurrence;
    }
    EXPECT_FALSE(walker.Next());
    EXPECT_EQ(walker.Content(), "");
  });
}

INSTANTIATE_TEST_SUITE_P(Tags, RandomTags, testing::Values("<t>", "<linkto>", "<<>", "<aa>"));
INSTANTIATE_TEST_SUITE_P(OverlappingTags, RandomTags, testing::Values("aa", "aaa", "aba", "<a<"));

}  // namespace
}  // namespace tavrel::test
