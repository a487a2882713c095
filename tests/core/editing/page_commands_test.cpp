#include "core/editing/page_commands.h"

#include <gtest/gtest.h>
#include <string>

#include "core/editing/document_of.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

const std::string kFirstGuidePage =
    "\r\n 1 ,<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>";

TEST(InsertPage, MovesPagesUpAndRenumbersAllLinks) {
  Global global = DocumentOf(kGuide, 2);
  InsertPage(global);
  EXPECT_EQ(
      DocumentText(global),
      kFirstGuidePage +
          "<linkto>003</linkto><linktext>Five</linktext><linkto>006</linkto></link>\r\n"
          " 3 "
          ",<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>001</linkto></link>\r\n"
          " 6 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>1000</linkto>"
          "</link>\r\n");
  EXPECT_EQ(global.CurrentPage, 2);
}

TEST(InsertPage, LeavesTheClipboardAlone) {
  Global global = DocumentOf(kGuide, 2);
  global.PageClipboard = "X";
  InsertPage(global);
  EXPECT_EQ(global.PageClipboard, "X");
}

TEST(InsertPage, LosesPage999) {
  Global global;
  global.CurrentPage = 998;
  global.Page(998) = Titled("P");
  global.Page(999) = Titled("Q");
  global.Page(1000) = Titled("beyond");
  InsertPage(global);
  EXPECT_EQ(global.Page(998), "");
  EXPECT_EQ(global.Page(999), Titled("P"));
  EXPECT_EQ(global.Page(1000), Titled("beyond"));
}

TEST(InsertPage, RenumbersLinksFromTheCurrentPageOn) {
  Global global;
  global.CurrentPage = 5;
  global.Page(9) = LinkingTo({"004", "005", "999", "1000"});
  InsertPage(global);
  EXPECT_EQ(global.Page(9), "");
  EXPECT_EQ(global.Page(10), LinkingTo({"004", "006", "1000", "1001"}));
}

TEST(InsertPage, RenumbersLinksOfPages1To999Only) {
  Global global;
  global.CurrentPage = 500;
  for (const int page : {0, 1, 998, 1000}) global.Page(page) = LinkingTo({"600"});
  InsertPage(global);
  EXPECT_EQ(global.Page(0), LinkingTo({"600"}));
  EXPECT_EQ(global.Page(1), LinkingTo({"601"}));
  EXPECT_EQ(global.Page(999), LinkingTo({"601"}));
  EXPECT_EQ(global.Page(1000), LinkingTo({"600"}));
}

TEST(InsertPage, OnlyEmptiesPage999ThereAndRenumbersNothing) {
  Global global = DocumentOf(kGuide, 999);
  Global expected = global;
  expected.Page(999).clear();
  global.PageClipboard = "X";
  InsertPage(global);
  EXPECT_EQ(global.Pages, expected.Pages);
  EXPECT_EQ(global.PageClipboard, "X");
  EXPECT_EQ(global.CurrentPage, 999);
}

TEST(CutPage, MovesPagesDownAndRenumbersAllLinks) {
  Global global = DocumentOf(kGuide, 2);
  const std::string cut = global.Page(2);
  CutPage(global);
  EXPECT_EQ(DocumentText(global),
            kFirstGuidePage +
                "<linkto>001</linkto><linktext>Five</linktext><linkto>004</linkto></link>\r\n"
                " 4 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext>"
                "<linkto>998</linkto></link>\r\n"
                " 998 ,<title>Last</title><text>Omega</text>\r\n");
  EXPECT_EQ(global.PageClipboard, cut);
  EXPECT_EQ(global.CurrentPage, 2);
}

TEST(CutPage, PointsLinksToPage1AtNoPage) {
  Global global = DocumentOf(kGuide, 1);
  CutPage(global);
  EXPECT_EQ(
      DocumentText(global),
      "\r\n"
      " 1 ,<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>000</linkto></link>\r\n"
      " 4 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>998</linkto>"
      "</link>\r\n"
      " 998 ,<title>Last</title><text>Omega</text>\r\n");
}

TEST(CutPage, NeverChangesLinksToNoPageAgain) {
  Global global;
  global.Page(2) = LinkingTo({"001", "002"});
  CutPage(global);
  CutPage(global);
  EXPECT_EQ(global.PageClipboard, LinkingTo({"000", "001"}));
  global.CurrentPage = 1;
  global.Page(3) = LinkingTo({"000", "0", "001"});
  CutPage(global);
  EXPECT_EQ(global.Page(2), LinkingTo({"000", "0", "000"}));
}

TEST(CutPage, RenumbersLinksFromTheCurrentPageOn) {
  Global global;
  global.CurrentPage = 5;
  global.Page(9) = LinkingTo({"004", "005", "006", "1000"});
  CutPage(global);
  EXPECT_EQ(global.Page(8), LinkingTo({"004", "004", "005", "999"}));
  EXPECT_EQ(global.Page(9), "");
}

TEST(CutPage, KeepsThePageInTheClipboardAsItWasBeforeRenumbering) {
  Global global;
  global.CurrentPage = 5;
  global.Page(5) = LinkingTo({"005", "006"});
  CutPage(global);
  EXPECT_EQ(global.PageClipboard, LinkingTo({"005", "006"}));
}

TEST(CutPage, RenumbersNothingOnPage999) {
  Global global = DocumentOf(kGuide, 999);
  Global expected = global;
  expected.Page(999).clear();
  CutPage(global);
  EXPECT_EQ(global.Pages, expected.Pages);
  EXPECT_EQ(global.PageClipboard, "<title>Last</title><text>Omega</text>");
}

TEST(CutPage, WorksOnPage998) {
  Global global;
  global.CurrentPage = 998;
  global.Page(998) = Titled("P");
  global.Page(999) = Titled("Q");
  global.Page(1000) = Titled("beyond");
  global.Page(1) = LinkingTo({"997", "998", "999"});
  CutPage(global);
  EXPECT_EQ(global.Page(998), Titled("Q"));
  EXPECT_EQ(global.Page(999), "");
  EXPECT_EQ(global.Page(1000), Titled("beyond"));
  EXPECT_EQ(global.Page(1), LinkingTo({"997", "997", "998"}));
  EXPECT_EQ(global.PageClipboard, Titled("P"));
}

TEST(CutPage, PutsAnEmptyPageIntoTheClipboardToo) {
  Global global = DocumentOf(kTrio, 4);
  global.PageClipboard = "X";
  CutPage(global);
  EXPECT_EQ(global.PageClipboard, "");
}

TEST(CopyPage, ChangesNothingButTheClipboard) {
  Global global = DocumentOf(kTrio, 2);
  const Global before = global;
  CopyPage(global);
  EXPECT_EQ(global.PageClipboard, "<title>B</title><text>two</text>");
  EXPECT_EQ(global.Pages, before.Pages);
  EXPECT_EQ(global.CurrentPage, 2);
}

TEST(PastePage, CanBeRepeated) {
  Global global = DocumentOf(kTrio, 1);
  CopyPage(global);
  for (const std::int16_t page : {std::int16_t{2}, std::int16_t{3}}) {
    global.CurrentPage = page;
    PastePage(global);
  }
  for (int page = 1; page <= 3; ++page) EXPECT_EQ(global.Page(page), "<title>A</title><text>one</text>");
  EXPECT_EQ(global.PageClipboard, "<title>A</title><text>one</text>");
}

TEST(PastePage, RenumbersNothing) {
  Global global = DocumentOf(kGuide, 2);
  global.PageClipboard = LinkingTo({"002", "005"});
  const Global before = global;
  PastePage(global);
  EXPECT_EQ(global.Page(2), LinkingTo({"002", "005"}));
  EXPECT_EQ(global.Page(1), before.Page(1));
  EXPECT_EQ(global.Page(5), before.Page(5));
}

TEST(PastePage, EmptiesThePageWithAnEmptyClipboard) {
  Global global = DocumentOf(kTrio, 2);
  PastePage(global);
  EXPECT_EQ(global.Page(2), "");
}

TEST(ClearPage, EmptiesThePageAndNothingElse) {
  Global global = DocumentOf(kGuide, 2);
  global.PageClipboard = "X";
  Global expected = global;
  expected.Page(2).clear();
  ClearPage(global);
  EXPECT_EQ(global.Pages, expected.Pages);
  EXPECT_EQ(global.PageClipboard, "X");
  EXPECT_EQ(global.CurrentPage, 2);
}

}  // namespace
}  // namespace tavrel::test
