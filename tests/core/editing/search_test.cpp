#include "core/editing/search.h"

#include <gtest/gtest.h>
#include <string>

#include "core/editing/document_of.h"
#include "core/editing/searching.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

/// The page, and the position in its text from 0, of the first match; "none" without one.
std::string Found(const Global& global, std::string_view wanted, int first_page, bool match_case) {
  const std::optional<Match> match =
      FindInPages(global, wanted, first_page, match_case, CodePage::Windows1252());
  return match ? std::to_string(match->Page) + ":" + std::to_string(match->Position) : "none";
}

Global PageOf(int page, const std::string& record) {
  Global global;
  global.Page(page) = record;
  return global;
}

TEST(FindInPages, TakesCapitalsForSmallLettersUnlessCaseMatters) {
  const Global global = DocumentOf(kFruit);
  EXPECT_EQ(Found(global, "apple", 1, kAnyCase), "1:0");
  EXPECT_EQ(Found(global, "APPle", 1, kAnyCase), "1:0");
  EXPECT_EQ(Found(global, "apple", 1, kMatchCase), "5:0");
  EXPECT_EQ(Found(global, "APPLE", 1, kMatchCase), "6:2");
  EXPECT_EQ(Found(global, "aPPLE", 1, kMatchCase), "none");
}

TEST(FindInPages, BeginsAtThePageAskedFor) {
  const Global global = DocumentOf(kFruit);
  EXPECT_EQ(Found(global, "apple", 5, kAnyCase), "5:0");
  EXPECT_EQ(Found(global, "apple", 6, kAnyCase), "6:2");
  EXPECT_EQ(Found(global, "apple", 7, kAnyCase), "none");
}

TEST(FindInPages, SearchesTextsOnly) {
  const Global global = PageOf(1, "<title>pear</title><note>pear</note>" + WithText("plum") +
                                      "<link><linktext>pear</linktext><linkto>005</linkto></link>"
                                      "<music>pear</music><music>M1</music>");
  EXPECT_EQ(Found(global, "pear", 1, kAnyCase), "none");
  EXPECT_EQ(Found(global, "005", 1, kAnyCase), "none");
  EXPECT_EQ(Found(global, "text>", 1, kAnyCase), "none");
  EXPECT_EQ(Found(global, "plum", 1, kAnyCase), "1:0");
}

TEST(FindInPages, SearchesTheFirstTextOfAPage) {
  const Global global = PageOf(1, WithText("one") + WithText("two"));
  EXPECT_EQ(Found(global, "one", 1, kMatchCase), "1:0");
  EXPECT_EQ(Found(global, "two", 1, kMatchCase), "none");
}

TEST(FindInPages, PassesOverPagesWithoutAText) {
  Global global = PageOf(3, WithText("a cat"));
  global.Page(1) = Titled("cat");
  global.Page(2) = "<text>cat";
  EXPECT_EQ(Found(global, "cat", 1, kAnyCase), "3:2");
  EXPECT_EQ(Found(global, "cat", 1, kMatchCase), "3:2");
}

TEST(FindInPages, GivesTheFirstOfSeveralMatches) {
  EXPECT_EQ(Found(PageOf(1, WithText("xcat cat")), "cat", 1, kMatchCase), "1:1");
  EXPECT_EQ(Found(PageOf(1, WithText("xCat cat")), "cat", 1, kAnyCase), "1:1");
}

TEST(FindInPages, CountsALineBreakAsTwoCharacters) {
  EXPECT_EQ(Found(PageOf(1, WithText("ab\r\ncat")), "cat", 1, kAnyCase), "1:4");
  EXPECT_EQ(Found(PageOf(1, WithText("ab\r\ncat")), "\r\nc", 1, kMatchCase), "1:2");
}

TEST(FindInPages, FindsAMatchAtTheEndOfAText) {
  for (const bool match_case : {kMatchCase, kAnyCase}) {
    EXPECT_EQ(Found(PageOf(1, WithText("pine")), "e", 1, match_case), "1:3");
    EXPECT_EQ(Found(PageOf(1, WithText("pine")), "pine", 1, match_case), "1:0");
    EXPECT_EQ(Found(PageOf(1, WithText("pine")), "pines", 1, match_case), "none");
    EXPECT_EQ(Found(PageOf(1, WithText("pine")), "nes", 1, match_case), "none");
  }
}

TEST(FindInPages, KnowsTheSmallLettersOfTheWholeCodePage) {
  const Global global = PageOf(1, WithText("\xC9t\xC9 \x8A"));
  EXPECT_EQ(Found(global, "\xE9T\xE9", 1, kAnyCase), "1:0");
  EXPECT_EQ(Found(global, "\x9A", 1, kAnyCase), "1:4");
  EXPECT_EQ(Found(global, "\xE9", 1, kMatchCase), "none");
}

TEST(FindInPages, ReachesPage1000) {
  for (const bool match_case : {kMatchCase, kAnyCase}) {
    const Global global = PageOf(1000, WithText("a cat"));
    EXPECT_EQ(Found(global, "cat", 1, match_case), "1000:2");
    EXPECT_EQ(Found(global, "cat", 1000, match_case), "1000:2");
    EXPECT_EQ(Found(global, "cat", 1001, match_case), "none");
  }
}

TEST(FindInPages, DoesNotSearchWhatStandsBeforePage1) {
  EXPECT_EQ(Found(PageOf(0, WithText("cat")), "cat", 1, kAnyCase), "none");
}

TEST(FindInPages, ChangesNothing) {
  Global global = DocumentOf(kFruit, 4);
  FindInPages(global, "apple", 1, kAnyCase, CodePage::Windows1252());
  EXPECT_EQ(DocumentText(global), kFruit);
  EXPECT_EQ(global.CurrentPage, 4);
}

}  // namespace
}  // namespace tavrel::test
