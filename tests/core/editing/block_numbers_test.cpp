#include <gtest/gtest.h>
#include <string>

#include "core/editing/blocks.h"
#include "core/editing/document_of.h"
#include "core/editing/page_commands.h"

// The blocks that give links new numbers.

namespace tavrel::test {
namespace {

void Delete(Global& global, int first, int last) {
  DeletePages(global, {first, last}, CodePage::Windows1252());
}

TEST(DeletePages, PointsLinksIntoTheRangeAtThePageBefore) {
  Global global;
  global.CurrentPage = 3;
  global.Page(1) = LinkingTo({"001", "002", "003", "004", "005", "006", "007"});
  global.Page(2) = Titled("before");
  for (const int page : {3, 4, 5}) global.Page(page) = Titled("gone");
  global.Page(7) = LinkingTo({"007", "999"});
  Delete(global, 3, 5);
  EXPECT_EQ(global.Page(1), LinkingTo({"001", "002", "002", "002", "002", "003", "004"}));
  EXPECT_EQ(global.Page(2), Titled("before"));
  EXPECT_EQ(global.Page(3), "");
  EXPECT_EQ(global.Page(4), LinkingTo({"004", "996"}));
  EXPECT_EQ(global.Page(7), "");
  EXPECT_EQ(global.CurrentPage, 3);
}

TEST(DeletePages, PointsLinksAtNoPageFromPage1On) {
  Global global;
  global.Page(4) = LinkingTo({"001", "002", "003", "004", "000", "M2"});
  Delete(global, 1, 2);
  EXPECT_EQ(global.Page(2), LinkingTo({"000", "000", "001", "002", "000", "M2"}));
}

TEST(DeletePages, TakesPage999) {
  Global global;
  global.Page(998) = Titled("P");
  global.Page(999) = Titled("Q");
  global.Page(1000) = Titled("beyond");
  global.Page(1) = LinkingTo({"997", "998", "999", "1000"});
  Delete(global, 998, 999);
  EXPECT_EQ(global.Page(998), "");
  EXPECT_EQ(global.Page(999), "");
  EXPECT_EQ(global.Page(1000), Titled("beyond"));
  EXPECT_EQ(global.Page(1), LinkingTo({"997", "997", "997", "998"}));
  EXPECT_EQ(global.PageClipboard, Titled("Q"));
}

TEST(DeletePages, TakesAllPages) {
  Global global;
  for (int page = 0; page <= 1000; ++page) global.Page(page) = Titled(std::to_string(page));
  Delete(global, 1, 999);
  EXPECT_EQ(global.Page(0), Titled("0"));
  for (int page = 1; page <= 999; ++page) EXPECT_EQ(global.Page(page), "");
  EXPECT_EQ(global.Page(1000), Titled("1000"));
  EXPECT_EQ(global.PageClipboard, Titled("999"));
}

TEST(DeletePages, LeavesTheLastPageInTheClipboardAsItsTurnFindsIt) {
  Global global;
  global.Page(3) = Titled("gone");
  global.Page(4) = Titled("gone");
  global.Page(5) = LinkingTo({"002", "003", "004", "005", "006", "007"});
  // Two cuts have renumbered it when its own comes, which changes it no more.
  Delete(global, 3, 5);
  EXPECT_EQ(global.PageClipboard, LinkingTo({"002", "002", "002", "003", "004", "005"}));
}

TEST(DeletePages, StoresTheLastPageAsTheEditorDoesBeforeItIsCut) {
  Global global;
  global.Page(3) = Titled("gone");
  global.Page(4) = "<text> b </text><title>T</title><link><linktext>x</linktext><linkto>7</linkto></link>";
  Delete(global, 3, 4);
  EXPECT_EQ(global.PageClipboard, "<title>T</title><text>b</text>" + LinkingTo({"006"}));
}

TEST(DeletePages, LeavesASinglePageInTheClipboardAsItStands) {
  Global global;
  // Reading it once more would take the text in the title for the page's own.
  const std::string stored = Titled("a<text>b</text>") + LinkingTo({"002", "003", "004"});
  global.Page(3) = stored;
  Delete(global, 3, 3);
  EXPECT_EQ(global.PageClipboard, stored);
  EXPECT_EQ(global.Page(3), "");
}

TEST(DeletePages, EmptiesTheClipboardIfTheLastPageIsEmpty) {
  Global global;
  global.PageClipboard = "X";
  global.Page(3) = Titled("gone");
  Delete(global, 3, 4);
  EXPECT_EQ(global.PageClipboard, "");
}

TEST(InsertPages, MovesPagesAndLinksUp) {
  Global global;
  global.CurrentPage = 10;
  global.PageClipboard = "X";
  global.Page(9) = Titled("stays");
  global.Page(10) = Titled("moves");
  global.Page(12) = LinkingTo({"012"});
  global.Page(1) = LinkingTo({"009", "010", "000", "M10"});
  InsertPages(global, 10, 3);
  EXPECT_EQ(global.Page(9), Titled("stays"));
  for (const int page : {10, 11, 12}) EXPECT_EQ(global.Page(page), "");
  EXPECT_EQ(global.Page(13), Titled("moves"));
  EXPECT_EQ(global.Page(15), LinkingTo({"015"}));
  EXPECT_EQ(global.Page(1), LinkingTo({"009", "013", "000", "M10"}));
  EXPECT_EQ(global.CurrentPage, 10);
  EXPECT_EQ(global.PageClipboard, "X");
}

TEST(InsertPages, LetsLinksGrowBeyond999) {
  Global global;
  global.Page(1) = LinkingTo({"997", "998", "999", "1000"});
  InsertPages(global, 10, 3);
  EXPECT_EQ(global.Page(1), LinkingTo({"1000", "1001", "1002", "1003"}));
}

TEST(InsertPages, LosesThePagesPushedBeyond999) {
  Global global;
  for (int page = 990; page <= 1000; ++page) global.Page(page) = Titled(std::to_string(page));
  InsertPages(global, 992, 3);
  EXPECT_EQ(global.Page(991), Titled("991"));
  for (const int page : {992, 993, 994}) EXPECT_EQ(global.Page(page), "");
  EXPECT_EQ(global.Page(995), Titled("992"));
  EXPECT_EQ(global.Page(999), Titled("996"));
  EXPECT_EQ(global.Page(1000), Titled("1000"));
}

TEST(InsertPages, CanEmptyAllPagesToTheEnd) {
  for (const int count : {2, 3, 50, 999}) {
    Global global;
    for (int page = 996; page <= 1000; ++page) global.Page(page) = Titled(std::to_string(page));
    global.Page(1) = LinkingTo({"998"});
    InsertPages(global, 998, count);
    EXPECT_EQ(global.Page(997), Titled("997"));
    EXPECT_EQ(global.Page(998), "");
    EXPECT_EQ(global.Page(999), "");
    EXPECT_EQ(global.Page(1000), Titled("1000"));
    EXPECT_EQ(global.Page(1), LinkingTo({std::to_string(998 + count)}));
  }
}

TEST(InsertPages, StopsNumbersThatOutgrowSixteenBits) {
  Global global;
  global.Page(1) = LinkingTo({"32764", "32765", "32766", "32767", "32768", "70000"});
  InsertPages(global, 10, 3);
  // A repeated insert reads 32768 as a number below 1, which it leaves alone.
  EXPECT_EQ(global.Page(1), LinkingTo({"32767", "32768", "32768", "32768", "32768", "4467"}));
}

TEST(RemovePages, MovesPagesDownAndLeavesTheClipboardAlone) {
  Global global;
  global.PageClipboard = "X";
  for (int page = 0; page <= 1000; ++page) global.Page(page) = Titled(std::to_string(page));
  RemovePages(global, 990, 4);
  EXPECT_EQ(global.Page(989), Titled("989"));
  EXPECT_EQ(global.Page(990), Titled("994"));
  EXPECT_EQ(global.Page(995), Titled("999"));
  for (const int page : {996, 997, 998, 999}) EXPECT_EQ(global.Page(page), "");
  EXPECT_EQ(global.Page(1000), Titled("1000"));
  EXPECT_EQ(global.PageClipboard, "X");
}

}  // namespace
}  // namespace tavrel::test
