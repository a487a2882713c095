#include <gtest/gtest.h>
#include <string>

#include "core/editing/document_of.h"
#include "core/editing/page_commands.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

TEST(MovePage, DownSwapsPagesAndTheLinksToThem) {
  Global global;
  global.CurrentPage = 3;
  global.Page(1) = LinkingTo({"003", "004", "002", "005"});
  global.Page(3) = Titled("moved");
  global.Page(4) = Titled("other");
  MovePageDown(global);
  EXPECT_EQ(global.Page(1), LinkingTo({"004", "003", "002", "005"}));
  EXPECT_EQ(global.Page(3), Titled("other"));
  EXPECT_EQ(global.Page(4), Titled("moved"));
  EXPECT_EQ(global.CurrentPage, 4);
  EXPECT_EQ(global.PageClipboard, Titled("moved"));
}

TEST(MovePage, UpSwapsPagesAndTheLinksToThem) {
  Global global;
  global.CurrentPage = 4;
  global.Page(1) = LinkingTo({"003", "004", "002", "005"});
  global.Page(3) = Titled("other");
  global.Page(4) = Titled("moved");
  MovePageUp(global);
  EXPECT_EQ(global.Page(1), LinkingTo({"004", "003", "002", "005"}));
  EXPECT_EQ(global.Page(3), Titled("moved"));
  EXPECT_EQ(global.Page(4), Titled("other"));
  EXPECT_EQ(global.CurrentPage, 3);
  EXPECT_EQ(global.PageClipboard, Titled("moved"));
}

TEST(MovePage, KeepsThePageInTheClipboardAsItWasBeforeRenumbering) {
  Global global;
  global.CurrentPage = 3;
  global.Page(3) = LinkingTo({"003", "004"});
  MovePageDown(global);
  EXPECT_EQ(global.PageClipboard, LinkingTo({"003", "004"}));
  EXPECT_EQ(global.Page(4), LinkingTo({"004", "003"}));
}

TEST(MovePage, MovesAnEmptyPageToo) {
  Global global = DocumentOf(kTrio, 4);
  global.PageClipboard = "X";
  MovePageUp(global);
  EXPECT_EQ(global.Page(3), "");
  EXPECT_EQ(global.Page(4), "<title>C</title><text>three</text>");
  EXPECT_EQ(global.PageClipboard, "");
}

TEST(MovePage, ReachesBothEnds) {
  Global global;
  global.Page(500) = LinkingTo({"001", "002", "998", "999"});
  global.CurrentPage = 2;
  MovePageUp(global);
  EXPECT_EQ(global.CurrentPage, 1);
  global.CurrentPage = 998;
  MovePageDown(global);
  EXPECT_EQ(global.CurrentPage, 999);
  EXPECT_EQ(global.Page(500), LinkingTo({"002", "001", "999", "998"}));
}

TEST(MovePage, RenumbersLinksOfPages1To999Only) {
  Global global;
  global.CurrentPage = 500;
  for (const int page : {0, 1, 999, 1000}) global.Page(page) = LinkingTo({"501"});
  MovePageDown(global);
  EXPECT_EQ(global.Page(0), LinkingTo({"501"}));
  EXPECT_EQ(global.Page(1), LinkingTo({"500"}));
  EXPECT_EQ(global.Page(999), LinkingTo({"500"}));
  EXPECT_EQ(global.Page(1000), LinkingTo({"501"}));
}

TEST(MovePage, PadsOnlyTheNumbersThatItChanges) {
  Global global;
  global.CurrentPage = 7;
  global.Page(1) = LinkingTo({"7", "9", "8x"});
  MovePageDown(global);
  EXPECT_EQ(global.Page(1), LinkingTo({"008", "9", "007"}));
}

}  // namespace
}  // namespace tavrel::test
