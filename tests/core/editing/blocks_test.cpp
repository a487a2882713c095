#include "core/editing/blocks.h"

#include <gtest/gtest.h>
#include <string>

#include "core/editing/document_of.h"
#include "core/text/numbers.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

/// Pages of a range with the titles "a", "b" and so on.
Global LetteredPages(int first, int last) {
  Global global;
  for (int page = first; page <= last; ++page)
    global.Page(page) = Titled(std::string(1, static_cast<char>('a' + page - first)));
  return global;
}

TEST(RangeBetween, BeginsAtTheSmallerNumber) {
  for (const PageRange& range : {RangeBetween(3, 5), RangeBetween(5, 3)}) {
    EXPECT_EQ(range.First, 3);
    EXPECT_EQ(range.Last, 5);
    EXPECT_EQ(range.Count(), 3);
  }
  EXPECT_EQ(RangeBetween(4, 4).Count(), 1);
}

TEST(PageRange, ContainsItsEnds) {
  const PageRange range = {3, 5};
  EXPECT_FALSE(range.Contains(2));
  for (const int page : {3, 4, 5}) EXPECT_TRUE(range.Contains(page));
  EXPECT_FALSE(range.Contains(6));
}

TEST(BlockNumbers, ArePagesFrom1To999) {
  for (const int number : {1, 2, 998, 999}) EXPECT_TRUE(IsPage(number)) << number;
  for (const int number : {-1, 0, 1000, 2147483647}) EXPECT_FALSE(IsPage(number)) << number;
}

TEST(BlockNumbers, AreMovablePagesFrom1To998) {
  for (const int number : {1, 2, 998}) EXPECT_TRUE(IsMovablePage(number)) << number;
  for (const int number : {-1, 0, 999, 1000}) EXPECT_FALSE(IsMovablePage(number)) << number;
}

TEST(CanCopyPages, NeedsThreePages) {
  EXPECT_TRUE(CanCopyPages(1, 998, 999));
  EXPECT_TRUE(CanCopyPages(999, 2, 1));
  for (const int number : {-1, 0, 1000, DecimalNumber("x")}) {
    EXPECT_FALSE(CanCopyPages(number, 5, 7)) << number;
    EXPECT_FALSE(CanCopyPages(5, number, 7)) << number;
    EXPECT_FALSE(CanCopyPages(5, 6, number)) << number;
  }
}

TEST(CanCopyPages, RefusesATargetInTheRange) {
  for (const int to : {5, 7, 9}) {
    EXPECT_FALSE(CanCopyPages(5, 9, to)) << to;
    EXPECT_FALSE(CanCopyPages(9, 5, to)) << to;
  }
  for (const int to : {4, 10}) {
    EXPECT_TRUE(CanCopyPages(5, 9, to)) << to;
    EXPECT_TRUE(CanCopyPages(9, 5, to)) << to;
  }
}

TEST(CanClearPages, NeedsTwoPages) {
  EXPECT_TRUE(CanClearPages(1, 999));
  EXPECT_TRUE(CanClearPages(999, 1));
  EXPECT_TRUE(CanClearPages(7, 7));
  for (const int number : {-1, 0, 1000, DecimalNumber("x")}) {
    EXPECT_FALSE(CanClearPages(number, 5)) << number;
    EXPECT_FALSE(CanClearPages(5, number)) << number;
  }
}

TEST(CanDeletePages, RefusesPage999AsTheStartOnly) {
  EXPECT_TRUE(CanDeletePages(1, 999));
  EXPECT_TRUE(CanDeletePages(5, 999));
  EXPECT_TRUE(CanDeletePages(998, 3));
  EXPECT_FALSE(CanDeletePages(999, 5));
  EXPECT_FALSE(CanDeletePages(999, 999));
  for (const int number : {-1, 0, 1000, DecimalNumber("x")}) {
    EXPECT_FALSE(CanDeletePages(number, 5)) << number;
    EXPECT_FALSE(CanDeletePages(5, number)) << number;
  }
}

TEST(CanInsertPages, AllowsFiftyPagesBeforePage999) {
  EXPECT_TRUE(CanInsertPages(1, 1));
  EXPECT_TRUE(CanInsertPages(998, 50));
  EXPECT_FALSE(CanInsertPages(999, 1));
  EXPECT_FALSE(CanInsertPages(1, 51));
  for (const int number : {-1, 0, 1000, DecimalNumber("x")}) {
    EXPECT_FALSE(CanInsertPages(number, 5)) << number;
    EXPECT_FALSE(CanInsertPages(5, number)) << number;
  }
}

TEST(CopyPages, CopiesARangeAndRenumbersNothing) {
  Global global = LetteredPages(10, 12);
  global.Page(11) = LinkingTo({"012"});
  global.Page(1) = LinkingTo({"010", "020"});
  global.PageClipboard = "X";
  global.CurrentPage = 4;
  Global expected = global;
  expected.Page(20) = Titled("a");
  expected.Page(21) = LinkingTo({"012"});
  expected.Page(22) = Titled("c");
  CopyPages(global, {10, 12}, 20);
  EXPECT_EQ(global.Pages, expected.Pages);
  EXPECT_EQ(global.PageClipboard, "X");
  EXPECT_EQ(global.CurrentPage, 4);
}

TEST(CopyPages, LetsTheLastCopyWinOnPage999) {
  Global global = LetteredPages(1, 5);
  global.Page(1000) = Titled("beyond");
  CopyPages(global, {1, 5}, 997);
  EXPECT_EQ(global.Page(997), Titled("a"));
  EXPECT_EQ(global.Page(998), Titled("b"));
  EXPECT_EQ(global.Page(999), Titled("e"));
  EXPECT_EQ(global.Page(1000), Titled("beyond"));
}

TEST(CopyPages, EmptiesPage999IfTheLastPageIsEmpty) {
  Global global = LetteredPages(1, 2);
  CopyPages(global, {1, 3}, 998);
  EXPECT_EQ(global.Page(998), Titled("a"));
  EXPECT_EQ(global.Page(999), "");
}

TEST(CopyPages, TakesATurnedRange) {
  Global global = LetteredPages(1, 3);
  CopyPages(global, RangeBetween(3, 1), 999);
  EXPECT_EQ(global.Page(999), Titled("c"));
}

TEST(CopyPages, CopiesEmptyPagesToo) {
  Global global = LetteredPages(1, 3);
  CopyPages(global, {10, 11}, 2);
  EXPECT_EQ(global.Page(1), Titled("a"));
  EXPECT_EQ(global.Page(2), "");
  EXPECT_EQ(global.Page(3), "");
}

TEST(CopyPages, GoesFrontToBackSoThatAnEarlierTargetMayOverlap) {
  Global global = LetteredPages(5, 9);
  CopyPages(global, {5, 9}, 3);
  for (int page = 3; page <= 7; ++page)
    EXPECT_EQ(global.Page(page), Titled(std::string(1, static_cast<char>('a' + page - 3))));
  EXPECT_EQ(global.Page(8), Titled("d"));
  EXPECT_EQ(global.Page(9), Titled("e"));
}

TEST(ClearPages, EmptiesARangeAndNothingElse) {
  Global global = LetteredPages(9, 13);
  global.Page(1) = LinkingTo({"010", "012", "013"});
  global.PageClipboard = "X";
  Global expected = global;
  for (const int page : {10, 11, 12}) expected.Page(page).clear();
  ClearPages(global, RangeBetween(12, 10));
  EXPECT_EQ(global.Pages, expected.Pages);
  EXPECT_EQ(global.PageClipboard, "X");
}

TEST(ClearPages, ReachesBothEnds) {
  Global global = DocumentOf(kGuide);
  global.Page(0) = global.Page(1000) = Titled("beyond");
  ClearPages(global, {1, 999});
  EXPECT_EQ(DocumentText(global), "\r\n 0 ,<title>beyond</title>\r\n");
  EXPECT_EQ(global.Page(1000), Titled("beyond"));
}

}  // namespace
}  // namespace tavrel::test
