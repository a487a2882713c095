#include "ui/editing/page_commands_test.h"

namespace tavrel::test {
namespace {

TEST_F(PageCommandsTest, InsertPutsABlankPageInFrontAndRenumbersLinks) {
  OpenDocument("Guide.dat", kGuide);
  Show(2);
  Choose("EditInsert");
  ExpectShown(2, "", "");
  ExpectBlankFields();
  ExpectWhiteRow(2);
  ExpectYellowRow(3, "Two");
  ExpectWhiteRow(5);
  ExpectYellowRow(6, "Five");
  ExpectWhiteRow(999);
  EXPECT_EQ(State.PageClipboard, "");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
            "<linkto>003</linkto><linktext>Five</linktext><linkto>006</linkto></link>\r\n"
            " 3 ,<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>001</linkto></link>"
            "\r\n"
            " 6 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>1000</linkto>"
            "</link>\r\n");
}

TEST_F(PageCommandsTest, CutTakesThePageOutToTheClipboard) {
  OpenDocument("Guide.dat", kGuide);
  Show(2);
  Choose("EditDelete");
  EXPECT_EQ(State.PageClipboard, kGuidePage2);
  ExpectShown(2, "", "");
  ExpectWhiteRow(2);
  ExpectYellowRow(4, "Five");
  ExpectYellowRow(998, "Last");
  ExpectWhiteRow(999);
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
            "<linkto>001</linkto><linktext>Five</linktext><linkto>004</linkto></link>\r\n"
            " 4 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>998</linkto>"
            "</link>\r\n"
            " 998 ,<title>Last</title><text>Omega</text>\r\n");
}

TEST_F(PageCommandsTest, DeletingPageOneLeavesItsLinksAtZero) {
  OpenDocument("Guide.dat", kGuide);
  Choose("EditPageDeleteIt");
  EXPECT_EQ(State.PageClipboard, kGuidePage1);
  ExpectShown(1, "Two", "Beta");
  EXPECT_EQ(LinkTarget().Bytes(), "000");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>000</linkto></link>"
            "\r\n"
            " 4 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>998</linkto>"
            "</link>\r\n"
            " 998 ,<title>Last</title><text>Omega</text>\r\n");
  Choose("EditInsert");
  EXPECT_EQ(State.Pages[2],
            "<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>000</linkto></link>");
}

TEST_F(PageCommandsTest, DeletingPage999ChangesNoLink) {
  OpenDocument("Guide.dat", kGuide);
  Show(999);
  Choose("EditPageDeleteIt");
  EXPECT_EQ(State.PageClipboard, kGuidePage999);
  EXPECT_EQ(State.Pages[999], "");
  ExpectShown(999, "", "");
  ExpectWhiteRow(999);
  EXPECT_EQ(State.Pages[1], kGuidePage1);
  EXPECT_EQ(State.Pages[2], kGuidePage2);
  EXPECT_EQ(State.Pages[5], kGuidePage5);
}

TEST_F(PageCommandsTest, InsertingAt999BlanksThatPageWhileItsRowStays) {
  OpenDocument("Guide.dat", kGuide);
  Choose("EditCopyPage");
  Show(999);
  Choose("EditInsert");
  ExpectYellowRow(999, "Last");
  EXPECT_EQ(State.Pages[999], "");
  ExpectShown(999, "", "");
  ExpectBlankFields();
  EXPECT_EQ(State.PageClipboard, kGuidePage1);
  EXPECT_EQ(State.Pages[1], kGuidePage1);
  EXPECT_EQ(State.Pages[5], kGuidePage5);
  Show(1);
  ExpectWhiteRow(999);
}

TEST_F(PageCommandsTest, InsertingAt998LosesTheLastPage) {
  OpenDocument("End.dat", "\r\n 998 ,<title>P</title>\r\n 999 ,<title>Q</title>\r\n");
  Show(998);
  Choose("EditInsert");
  EXPECT_EQ(State.Pages[998], "");
  ExpectWhiteRow(998);
  ExpectYellowRow(999, "P");
  EXPECT_EQ(Save(), "\r\n 999 ,<title>P</title>\r\n");
}

TEST_F(PageCommandsTest, InsertAddsOneToLinksFromThePageOn) {
  const std::string record = "<title>N</title><link>";
  OpenDocument("Links.dat", "\r\n 5 ,<title>F</title>\r\n 9 ," + record + LinkTo("004") + LinkTo("005") +
                                LinkTo("999") + "</link>\r\n");
  Show(5);
  Choose("EditInsert");
  EXPECT_EQ(State.Pages[9], "");
  EXPECT_EQ(State.Pages[10], record + LinkTo("004") + LinkTo("006") + LinkTo("1000") + "</link>");
  Choose("EditInsert");
  EXPECT_EQ(State.Pages[11], record + LinkTo("004") + LinkTo("007") + LinkTo("1001") + "</link>");
  Choose("EditDelete");
  Choose("EditDelete");
  EXPECT_EQ(State.Pages[9], record + LinkTo("004") + LinkTo("005") + LinkTo("999") + "</link>");
}

TEST_F(PageCommandsTest, DeleteLeadsLinksToThePageBefore) {
  const std::string record = "<title>N</title><link>";
  OpenDocument("Links.dat", "\r\n 5 ,<title>F</title>\r\n 9 ," + record + LinkTo("004") + LinkTo("005") +
                                LinkTo("006") + "</link>\r\n");
  Show(5);
  Choose("EditPageDeleteIt");
  EXPECT_EQ(State.Pages[8], record + LinkTo("004") + LinkTo("004") + LinkTo("005") + "</link>");
  EXPECT_EQ(State.Pages[9], "");
}

TEST_F(PageCommandsTest, LinksBehindAnEmptyOneAndMusicLinksKeepTheirNumbers) {
  const std::string behind = "<link>" + LinkTo("") + LinkTo("005") + "</link>";
  OpenDocument("Gap.dat", "\r\n 2 ,<text>t</text>\r\n 7 ," + behind + "\r\n 20 ,<link>" + LinkTo("M7") +
                              LinkTo("7") + LinkTo("1") + LinkTo("") + "</link>\r\n");
  Show(2);
  Choose("EditInsert");
  EXPECT_EQ(State.Pages[8], behind);
  EXPECT_EQ(State.Pages[21], "<link>" + LinkTo("M7") + LinkTo("008") + LinkTo("1") + LinkTo("") + "</link>");
}

TEST_F(PageCommandsTest, MovingDownSwapsPagesAndTheNumbersOfTheirLinks) {
  const std::string third = "<title>T</title><link>" + LinkTo("003") + "</link>";
  OpenDocument("Move.dat", "\r\n 1 ,<title>I</title><link>" + LinkTo("003") + LinkTo("004") +
                               "</link>\r\n 3 ," + third + "\r\n 4 ,<title>U</title>\r\n");
  Show(3);
  Choose("EditPageDown");
  ExpectShown(4, "T", "");
  EXPECT_EQ(LinkTarget().Bytes(), "004");
  ExpectYellowRow(3, "U");
  ExpectYellowRow(4, "T");
  EXPECT_EQ(State.PageClipboard, third);
  EXPECT_EQ(Save(), "\r\n 1 ,<title>I</title><link>" + LinkTo("004") + LinkTo("003") +
                        "</link>\r\n 3 ,<title>U</title>\r\n 4 ,<title>T</title><link>" + LinkTo("004") +
                        "</link>\r\n");
}

TEST_F(PageCommandsTest, MovingUpAndDownAgainRestoresTheDocument) {
  OpenDocument("Guide.dat", kGuide);
  Show(2);
  Choose("EditPageUp");
  ExpectShown(1, "Two", "Beta");
  EXPECT_EQ(State.PageClipboard, kGuidePage2);
  EXPECT_EQ(State.Pages[1],
            "<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>002</linkto></link>");
  EXPECT_EQ(State.Pages[2],
            "<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
            "<linkto>001</linkto><linktext>Five</linktext><linkto>005</linkto></link>");
  Choose("EditPageDown");
  ExpectShown(2, "Two", "Beta");
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(PageCommandsTest, APageMovesToTheEndsAndNoFurther) {
  OpenDocument("End.dat", "\r\n 998 ,<title>P</title>\r\n 999 ,<title>Q</title>\r\n");
  Show(998);
  Choose("EditPageDown");
  ExpectShown(999, "P", "");
  ExpectYellowRow(998, "Q");
  Choose("EditPageDown");
  ExpectShown(999, "P", "");
  Choose("EditPageUp");
  ExpectShown(998, "P", "");
  EXPECT_EQ(State.Pages[999], "<title>Q</title>");
}

TEST_F(PageCommandsTest, UpOnPageOneNeitherStoresNorTouchesTheClipboard) {
  OpenDocument("Guide.dat", kGuide);
  Show(2);
  Choose("EditCopyPage");
  Show(1);
  TypeInto(Title(), "edited");
  Choose("EditPageUp");
  ExpectShown(1, "edited", "Alpha");
  EXPECT_EQ(State.Pages[1], kGuidePage1);
  EXPECT_EQ(State.Pages[2], kGuidePage2);
  EXPECT_EQ(State.PageClipboard, kGuidePage2);
  EXPECT_TRUE(Title().hasFocus());
}

TEST_F(PageCommandsTest, DownOnPage999NeitherStoresNorTouchesTheClipboard) {
  OpenDocument("Guide.dat", kGuide);
  Choose("EditCopyPage");
  Show(999);
  TypeInto(Title(), "edited");
  Choose("EditPageDown");
  ExpectShown(999, "edited", "Omega");
  EXPECT_EQ(State.Pages[999], kGuidePage999);
  EXPECT_EQ(State.PageClipboard, kGuidePage1);
  EXPECT_TRUE(Title().hasFocus());
}

}  // namespace
}  // namespace tavrel::test
