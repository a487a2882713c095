#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

using DefaultPagesTest = DocumentTest;

constexpr const char* kTitle =
    "<title>Title</title><text>This is the first page of the document.</text><note>First page of "
    "Tavrel</note>";
constexpr const char* kContents =
    "<title>Contents</title><text>Contents page with links to other pages</text><note>Links to "
    "documents</note>";
constexpr const char* kAbout =
    "<title>About</title><text>Enter your name, copyright information etc.<p><p>Created with Tavrel Writer<p>"
    "</text><note>Creator + copyright</note>";
constexpr const char* kLinkToTitle = "<link><linktext>Title page</linktext><linkto>001</linkto></link>";

TEST_F(DefaultPagesTest, WithoutABoxTheFileIsASingleEmptyLine) {
  CreateDocument("N");
  EXPECT_EQ(Folder.Read("N.dat"), "\r\n");
  Reopen();
  ExpectDocument("N");
  EXPECT_TRUE(IsMemoryEmpty());
}

TEST_F(DefaultPagesTest, ATitlePageAloneHasAnEmptyLinkBlock) {
  CreateDocument("N", {"Check1"});
  EXPECT_EQ(Folder.Read("N.dat"), std::string("\r\n 1 ,") + kTitle + "<link></link>\r\n");
}

TEST_F(DefaultPagesTest, AContentsPageAloneHasAnEmptyLinkBlock) {
  CreateDocument("N", {"Check2"});
  EXPECT_EQ(Folder.Read("N.dat"), std::string("\r\n 1 ,") + kContents + "<link></link>\r\n");
}

TEST_F(DefaultPagesTest, AnAboutPageAloneIsPage1AndHasAnEmptyLinkBlock) {
  CreateDocument("N", {"Check3"});
  EXPECT_EQ(Folder.Read("N.dat"), std::string("\r\n 1 ,") + kAbout + "<link></link>\r\n");
}

TEST_F(DefaultPagesTest, TitleAndAboutLinkToEachOther) {
  CreateDocument("N", {"Check1", "Check3"});
  EXPECT_EQ(Folder.Read("N.dat"), std::string("\r\n 1 ,") + kTitle +
                                      "<link><linktext>About</linktext><linkto>002</linkto></link>\r\n 2 ," +
                                      kAbout + kLinkToTitle + "\r\n");
}

TEST_F(DefaultPagesTest, ContentsAndAboutWithoutTitleLinkToNothing) {
  CreateDocument("N", {"Check2", "Check3"});
  EXPECT_EQ(Folder.Read("N.dat"),
            std::string("\r\n 1 ,") + kContents + "<link></link>\r\n 2 ," + kAbout + "<link></link>\r\n");
}

TEST_F(DefaultPagesTest, AllThreeLinkToAndFromTheTitlePage) {
  CreateDocument("N", {"Check1", "Check2", "Check3"});
  EXPECT_EQ(Folder.Read("N.dat"),
            std::string("\r\n 1 ,") + kTitle +
                "<link><linktext>Contents</linktext><linkto>002</linkto><linktext>About</linktext>"
                "<linkto>003</linkto></link>\r\n 2 ," +
                kContents + kLinkToTitle + "\r\n 3 ," + kAbout + kLinkToTitle + "\r\n");
}

TEST_F(DefaultPagesTest, TheAboutPageShowsItsLineBreaksAtOnce) {
  CreateDocument("N", {"Check3"});
  EXPECT_EQ(Body().Bytes(),
            "Enter your name, copyright information etc.\r\n\r\nCreated with Tavrel Writer\r\n");
}

}  // namespace
}  // namespace tavrel::test
