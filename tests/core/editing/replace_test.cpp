#include <gtest/gtest.h>
#include <string>

#include "core/editing/document_of.h"
#include "core/editing/search.h"
#include "core/editing/searching.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

void Replace(Global& global, std::string_view wanted, std::string_view replacement, bool match_case) {
  ReplaceInPages(global, wanted, replacement, match_case, CodePage::Windows1252());
}

TEST(ReplaceInPages, ReplacesEveryMatchOfAText) {
  EXPECT_EQ(Replaced("cat cat", "cat", "dog"), "dog dog");
  EXPECT_EQ(Replaced("catcat", "cat", "dog"), "dogdog");
  EXPECT_EQ(Replaced("a cat", "cat", "dog"), "a dog");
  EXPECT_EQ(Replaced("cattle", "cat", "dog"), "dogtle");
  EXPECT_EQ(Replaced("no match", "cat", "dog"), "no match");
  EXPECT_EQ(Replaced("ca", "cat", "dog"), "ca");
}

TEST(ReplaceInPages, TakesCapitalsForSmallLettersUnlessCaseMatters) {
  EXPECT_EQ(Replaced("Cat cat", "cat", "Dog", kAnyCase), "Dog Dog");
  EXPECT_EQ(Replaced("Cat cat", "cat", "Dog", kMatchCase), "Cat Dog");
  EXPECT_EQ(Replaced("cat CAT", "cAt", "dog", kAnyCase), "dog dog");
  EXPECT_EQ(Replaced("cat CAT", "cAt", "dog", kMatchCase), "cat CAT");
}

TEST(ReplaceInPages, KeepsTheCaseOfTheRest) {
  EXPECT_EQ(Replaced("A Cat IN a Hat", "cat", "Dog", kAnyCase), "A Dog IN a Hat");
}

TEST(ReplaceInPages, KnowsTheSmallLettersOfTheWholeCodePage) {
  EXPECT_EQ(Replaced("\xC9t\xE9", "\xE9", "e", kAnyCase), "ete");
  EXPECT_EQ(Replaced("\xC9t\xE9", "\xE9", "e", kMatchCase), "\xC9te");
}

TEST(ReplaceInPages, RemovesMatchesThatAreFarEnoughApart) {
  EXPECT_EQ(Replaced("one cat, two cat", "cat", ""), "one , two ");
  EXPECT_EQ(Replaced("cat", "cat", ""), "");
}

TEST(ReplaceInPages, PassesOverMatchesCloseBehindAShorterReplacement) {
  EXPECT_EQ(Replaced("cat cat", "cat", ""), " cat");
  EXPECT_EQ(Replaced("catcat", "cat", ""), "cat");
  EXPECT_EQ(Replaced("cat cat cat", "cat", "x"), "x cat x");
  // The search goes on at the third character after the start of the replacement, just where a match is.
  EXPECT_EQ(Replaced("catabccat", "cat", ""), "abc");
  EXPECT_EQ(Replaced("cat  cat", "cat", "x"), "x  x");
}

TEST(ReplaceInPages, FindsNothingThatTheGapClosed) {
  EXPECT_EQ(Replaced("cacatt", "cat", ""), "cat");
}

TEST(ReplaceInPages, FindsWhatAReplacementCompletesBehindItsStart) {
  // "catx": the search goes on at the "x", where the text has none.
  EXPECT_EQ(Replaced("cat", "cat", "catx"), "catx");
  // The "c" that ends the replacement and the "at" behind it are a new match, replaced once more.
  EXPECT_EQ(Replaced("catat", "cat", "dogc"), "dogdogc");
  EXPECT_EQ(Replaced("catatat", "cat", "dogc"), "dogdogdogc");
}

TEST(ReplaceInPages, ComparesReplacementsAsTyped) {
  EXPECT_EQ(Replaced("cat", "cat", "xxxCat", kAnyCase), "xxxCat");
  EXPECT_EQ(Replaced("CATAT", "cat", "dogC", kAnyCase), "dogCAT");
  EXPECT_EQ(Replaced("CATAT", "cat", "dogc", kAnyCase), "dogdogc");
  EXPECT_EQ(Replaced("aXbX", "X", "YX", kAnyCase), "aYXbYX");
}

TEST(ReplaceInPages, DoesNotTrimTheReplacement) {
  EXPECT_EQ(Replaced("cat", "cat", "  "), "  ");
  EXPECT_EQ(Replaced("a b", " ", "\r\n"), "a\r\nb");
}

TEST(ReplaceInPages, GoesThroughAllPagesTo1000) {
  Global global;
  for (const int page : {0, 1, 2, 999, 1000}) global.Page(page) = WithText("cat");
  Replace(global, "cat", "dog", kMatchCase);
  EXPECT_EQ(global.Page(0), WithText("cat"));
  for (const int page : {1, 2, 999, 1000}) EXPECT_EQ(global.Page(page), WithText("dog")) << page;
}

TEST(ReplaceInPages, ReplacesInTextsOnly) {
  const std::string head = "<title>cat</title><note>cat</note>";
  const std::string tail = WithText("cat") + LinkingTo({"cat"}) + "<music>cat</music><music>M1</music>";
  Global global;
  global.Page(1) = head + WithText("cat") + tail;
  Replace(global, "cat", "dog", kMatchCase);
  EXPECT_EQ(global.Page(1), head + WithText("dog") + tail);
}

TEST(ReplaceInPages, LeavesPagesWithoutATextAlone) {
  Global global;
  global.Page(1) = Titled("cat");
  global.Page(2) = "<text>cat";
  global.Page(3) = WithText("");
  Replace(global, "cat", "dog", kMatchCase);
  EXPECT_EQ(global.Page(1), Titled("cat"));
  EXPECT_EQ(global.Page(2), "<text>cat");
  EXPECT_EQ(global.Page(3), WithText(""));
  EXPECT_EQ(global.Page(4), "");
}

TEST(ReplaceInPages, LeavesAnEmptiedTextInPlace) {
  Global global;
  global.Page(1) = Titled("T") + WithText("cat");
  Replace(global, "cat", "", kMatchCase);
  EXPECT_EQ(global.Page(1), Titled("T") + WithText(""));
}

TEST(ReplaceInPages, ChangesNothingButTexts) {
  Global global = DocumentOf(kFruit, 4);
  global.PageClipboard = "X";
  global.FindText = "other";
  Replace(global, "absent", "dog", kAnyCase);
  EXPECT_EQ(DocumentText(global), kFruit);
  EXPECT_EQ(global.CurrentPage, 4);
  EXPECT_EQ(global.PageClipboard, "X");
  EXPECT_EQ(global.FindText, "other");
}

}  // namespace
}  // namespace tavrel::test
