#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "core/editing/document_of.h"
#include "core/editing/search.h"
#include "core/editing/searching.h"

// Replacements that hold the searched text would be searched for ever, so a text is searched up to its
// 32,767th character only.

namespace tavrel::test {
namespace {

constexpr std::size_t kLastPosition = 32767;

/// Compares texts that are too long to be shown.
testing::AssertionResult IsSame(const std::string& text, const std::string& expected) {
  if (text == expected) return testing::AssertionSuccess();
  std::size_t same = 0;
  while (same < std::min(text.size(), expected.size()) && text[same] == expected[same]) ++same;
  return testing::AssertionFailure() << "length " << text.size() << ", not " << expected.size()
                                     << "; the first difference is behind " << same << " characters";
}

TEST(ReplaceLimits, EndAnEndlessReplacement) {
  for (const bool match_case : {true, false}) {
    // Each "b" moves the "a" on by one character.
    EXPECT_TRUE(IsSame(Replaced("a", "a", "ba", match_case), Repeated(kLastPosition, "b") + "a"));
    EXPECT_TRUE(IsSame(Replaced("a tail", "a", "ba", match_case), Repeated(kLastPosition, "b") + "a tail"));
  }
}

TEST(ReplaceLimits, EndAnEndlessReplacementOfALongerText) {
  // Matches begin at characters 1, 4, 7 and so on; the last within the limit begins at 32,767.
  EXPECT_TRUE(IsSame(Replaced("cat", "cat", "catcat"), Repeated(kLastPosition / 3 + 2, "cat")));
}

TEST(ReplaceLimits, ApplyToTheCharacterWhereAMatchBegins) {
  const std::string before = Repeated(kLastPosition - 1, "x");
  for (const bool match_case : {true, false}) {
    EXPECT_TRUE(IsSame(Replaced(before + "cat", "cat", "dog", match_case), before + "dog"));
    EXPECT_TRUE(IsSame(Replaced(before + "xcat", "cat", "dog", match_case), before + "xcat"));
  }
}

TEST(ReplaceLimits, CountTheReplacementsBefore) {
  const std::string between = Repeated(kLastPosition - 5, "x");
  // Behind the first replacement, of 4 characters and of 2, the second match begins at the last position.
  EXPECT_TRUE(IsSame(Replaced("cat" + between + "cat", "cat", "mice"), "mice" + between + "mice"));
  EXPECT_TRUE(IsSame(Replaced("cat" + between + "xcat", "cat", "mice"), "mice" + between + "xcat"));
  EXPECT_TRUE(IsSame(Replaced("cat" + between + "xxcat", "cat", "mr"), "mr" + between + "xxmr"));
  EXPECT_TRUE(IsSame(Replaced("cat" + between + "xxxcat", "cat", "mr"), "mr" + between + "xxxcat"));
}

TEST(ReplaceLimits, GoOnWithTheNextPage) {
  Global global;
  for (const int page : {1, 2, 1000}) global.Page(page) = WithText("a");
  ReplaceInPages(global, "a", "ba", true, CodePage::Windows1252());
  for (const int page : {1, 2, 1000})
    EXPECT_TRUE(IsSame(global.Page(page), WithText(Repeated(kLastPosition, "b") + "a"))) << page;
}

TEST(ReplaceLimits, KeepALongTextBehindThem) {
  const std::string tail = Repeated(100'000, "cat ");
  EXPECT_TRUE(IsSame(Replaced(Repeated(kLastPosition, "x") + tail, "cat", "dog"),
                     Repeated(kLastPosition, "x") + tail));
}

TEST(ReplaceLimits, EndReplacingWhenTheDocumentHasGrownByTwentyMillionCharacters) {
  // The "a" in each replacement is found next. The second makes the text exactly 20 million longer.
  const std::string ten_million(9'999'999, 'c');
  EXPECT_TRUE(IsSame(Replaced("a", "a", "ba" + ten_million), "bba" + ten_million + ten_million));
}

TEST(ReplaceLimits, LetTheReplacementBeforeTheLimitGoBeyondIt) {
  // The first makes the text one character less than 20 million longer.
  const std::string less(19'999'998, 'c');
  EXPECT_TRUE(IsSame(Replaced("a", "a", "ba" + less), "bba" + less + less));
}

TEST(ReplaceLimits, CountTheGrowthOfAllPages) {
  Global global;
  for (const int page : {1, 2, 3}) global.Page(page) = WithText("x");
  const std::string ten_million(10'000'001, 'y');
  ReplaceInPages(global, "x", ten_million, true, CodePage::Windows1252());
  EXPECT_TRUE(IsSame(global.Page(1), WithText(ten_million)));
  EXPECT_TRUE(IsSame(global.Page(2), WithText(ten_million)));
  EXPECT_EQ(global.Page(3), WithText("x"));
}

TEST(ReplaceLimits, CountTheGrowthOfTheTextOnly) {
  // The text is long, but it has not grown.
  const std::string tail(2'000'000, 'x');
  EXPECT_TRUE(IsSame(Replaced("aa" + tail, "a", "b"), "bb" + tail));
}

TEST(ReplaceLimits, TakeOneReplacementOfAnyLength) {
  const std::string long_text(3'000'000, 'x');
  EXPECT_TRUE(IsSame(Replaced("cat", "cat", long_text), long_text));
}

}  // namespace
}  // namespace tavrel::test
