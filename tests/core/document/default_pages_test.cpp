#include "core/document/default_pages.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/document/document_file.h"

namespace tavrel::test {
namespace {

const std::string kTitlePage =
    "<title>Title</title><text>This is the first page of the document.</text><note>First page of "
    "Tavrel</note>";
const std::string kContentsPage =
    "<title>Contents</title><text>Contents page with links to other pages</text><note>Links to "
    "documents</note>";
const std::string kAboutPage =
    "<title>About</title><text>Enter your name, copyright information etc.<p><p>Created with Tavrel Writer<p>"
    "</text><note>Creator + copyright</note>";
const std::string kNoLinks = "<link></link>";
const std::string kLinkToTitle = "<link><linktext>Title page</linktext><linkto>001</linkto></link>";

void ExpectPages(const DefaultPages& chosen, const std::vector<std::string>& expected) {
  Global global;
  MakeDefaultPages(global, chosen);
  decltype(Global::Pages) pages;
  std::copy(expected.begin(), expected.end(), pages.begin() + 1);
  EXPECT_EQ(global.Pages, pages);
  for (const std::string& link : global.MusicLinks) EXPECT_EQ(link, "");
}

TEST(MakeDefaultPages, MakesNoPageWithoutAChoice) {
  ExpectPages({}, {});
}

TEST(MakeDefaultPages, MakesATitlePageWithAnEmptyLinkBlock) {
  ExpectPages({.Title = true}, {kTitlePage + kNoLinks});
}

TEST(MakeDefaultPages, MakesAContentsPageWithAnEmptyLinkBlock) {
  ExpectPages({.Contents = true}, {kContentsPage + kNoLinks});
}

TEST(MakeDefaultPages, MakesAnAboutPageWithAnEmptyLinkBlock) {
  ExpectPages({.About = true}, {kAboutPage + kNoLinks});
}

TEST(MakeDefaultPages, LinksTitleAndContents) {
  ExpectPages({.Title = true, .Contents = true},
              {kTitlePage + "<link><linktext>Contents</linktext><linkto>002</linkto></link>",
               kContentsPage + kLinkToTitle});
}

TEST(MakeDefaultPages, MakesAboutTheSecondPageWithoutContents) {
  ExpectPages({.Title = true, .About = true},
              {kTitlePage + "<link><linktext>About</linktext><linkto>002</linkto></link>",
               kAboutPage + kLinkToTitle});
}

TEST(MakeDefaultPages, NeverLinksContentsAndAbout) {
  ExpectPages({.Contents = true, .About = true}, {kContentsPage + kNoLinks, kAboutPage + kNoLinks});
}

TEST(MakeDefaultPages, LinksAllThree) {
  ExpectPages({.Title = true, .Contents = true, .About = true},
              {kTitlePage + "<link><linktext>Contents</linktext><linkto>002</linkto>"
                            "<linktext>About</linktext><linkto>003</linkto></link>",
               kContentsPage + kLinkToTitle, kAboutPage + kLinkToTitle});
}

TEST(MakeDefaultPages, ShowsTheLineBreaksOfAboutOnceSavedAndLoaded) {
  Global made;
  MakeDefaultPages(made, {.About = true});
  Global loaded;
  ReadDocumentText(DocumentText(made), loaded);
  EXPECT_EQ(loaded.Page(1),
            "<title>About</title><text>Enter your name, copyright information etc.\r\n\r\n"
            "Created with Tavrel Writer\r\n</text><note>Creator + copyright</note><link></link>");
}

TEST(MakeDefaultPages, GivesTheFileOfANewDocument) {
  Global global;
  MakeDefaultPages(global, {.Title = true, .Contents = true, .About = true});
  EXPECT_EQ(
      DocumentText(global),
      "\r\n"
      " 1 ,<title>Title</title><text>This is the first page of the document.</text>"
      "<note>First page of Tavrel</note><link><linktext>Contents</linktext><linkto>002</linkto>"
      "<linktext>About</linktext><linkto>003</linkto></link>\r\n"
      " 2 ,<title>Contents</title><text>Contents page with links to other pages</text>"
      "<note>Links to documents</note><link><linktext>Title page</linktext><linkto>001</linkto></link>\r\n"
      " 3 ,<title>About</title><text>Enter your name, copyright information etc.<p><p>"
      "Created with Tavrel Writer<p></text><note>Creator + copyright</note>"
      "<link><linktext>Title page</linktext><linkto>001</linkto></link>\r\n");
}

}  // namespace
}  // namespace tavrel::test
