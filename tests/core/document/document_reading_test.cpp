#include <gtest/gtest.h>
#include <string>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

Global Read(std::string_view text) {
  Global global;
  ReadDocumentText(text, global);
  return global;
}

TEST(ReadDocumentText, ReadsMusicAndPages) {
  const Global global = Read(kSongs);
  EXPECT_EQ(global.MusicLink(1), "<song>Blue</song><artist>Kim Low</artist>");
  EXPECT_EQ(global.MusicLink(2), "");
  EXPECT_EQ(global.MusicLink(3), "<playlist>Road</playlist>");
  EXPECT_EQ(global.Page(2), "<title>Next</title><text>End</text>");
  EXPECT_EQ(global.Page(3), "");
}

TEST(ReadDocumentText, ReadsAnEmptyDocument) {
  const Global global = Read("\r\n");
  EXPECT_EQ(global.Pages, Global().Pages);
  EXPECT_EQ(global.MusicLinks, Global().MusicLinks);
}

TEST(ReadDocumentText, TurnsEveryMarkOfAPageIntoALineBreak) {
  EXPECT_EQ(Read("\r\n 1 ,<title>t<p>u</title><text>x<p><p>y</text>\r\n").Page(1),
            "<title>t\r\nu</title><text>x\r\n\r\ny</text>");
}

TEST(ReadDocumentText, LeavesTheMarkInMusicLinks) {
  EXPECT_EQ(Read(" 1 ,<notes>a<p>b</notes>\r\n\r\n").MusicLink(1), "<notes>a<p>b</notes>");
}

TEST(ReadDocumentText, SplitsAtTheFirstCommaOnly) {
  const Global global = Read(" 4 ,<song>a, \"b\", c</song>\r\n\r\n 5 ,  \"x\", ,y  \r\n");
  EXPECT_EQ(global.MusicLink(4), "<song>a, \"b\", c</song>");
  EXPECT_EQ(global.Page(5), "  \"x\", ,y  ");
}

TEST(ReadDocumentText, TakesIndicesWithOrWithoutBlanks) {
  const Global global = Read("7,seven\r\n   8   ,eight\r\n\r\n003,three\r\n");
  EXPECT_EQ(global.MusicLink(7), "seven");
  EXPECT_EQ(global.MusicLink(8), "eight");
  EXPECT_EQ(global.Page(3), "three");
}

TEST(ReadDocumentText, AcceptsTheOutermostIndices) {
  const Global global = Read(" 0 ,m0\r\n 100 ,m100\r\n\r\n 0 ,p0\r\n 1000 ,p1000\r\n");
  EXPECT_EQ(global.MusicLink(0), "m0");
  EXPECT_EQ(global.MusicLink(100), "m100");
  EXPECT_EQ(global.Page(0), "p0");
  EXPECT_EQ(global.Page(1000), "p1000");
}

TEST(ReadDocumentText, LetsTheLastOfTwoEntriesWin) {
  EXPECT_EQ(Read("\r\n 1 ,a\r\n 1 ,b\r\n").Page(1), "b");
}

TEST(ReadDocumentText, ReadsLineFeedsAlone) {
  const Global global = Read(" 1 ,m\n\n 1 ,p\n 2 ,q\n");
  EXPECT_EQ(global.MusicLink(1), "m");
  EXPECT_EQ(global.Page(1), "p");
  EXPECT_EQ(global.Page(2), "q");
}

TEST(ReadDocumentText, TakesALoneCarriageReturnForContent) {
  const Global global = Read(" 1 ,a\rb\r\n\r\n 1 ,x\ry\r\r\n");
  EXPECT_EQ(global.MusicLink(1), "a\rb");
  EXPECT_EQ(global.Page(1), "x\ry\r");
}

TEST(ReadDocumentText, ReadsALastLineWithoutItsEnd) {
  EXPECT_EQ(Read("\r\n 1 ,last").Page(1), "last");
}

TEST(ReadDocumentText, EndsTheMusicAtALineOfBlanks) {
  EXPECT_EQ(Read("  \r\n 1 ,p\r\n").Page(1), "p");
}

TEST(ReadDocumentText, TakesAnIndexWithoutANumberForZero) {
  const Global global = Read("abc,m\r\n\r\n 1 ,one\r\n\r\nx,zero\r\n");
  EXPECT_EQ(global.MusicLink(0), "m");
  EXPECT_EQ(global.Page(0), "zero");
  EXPECT_EQ(global.Page(1), "one");
}

TEST(ReadDocumentText, KeepsEveryByte) {
  std::string record;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\n') record += static_cast<char>(byte);
  }
  const Global global = Read(" 1 ," + record + "\r\n\r\n 2 ," + record + "\r\n");
  EXPECT_EQ(global.MusicLink(1), record);
  EXPECT_EQ(global.Page(2), record);
}

TEST(ReadDocumentText, ReadsALineOfAMillionCharacters) {
  std::string stored;
  std::string expected;
  while (stored.size() < 1'000'000) {
    stored += "word, <p>";
    expected += "word, \r\n";
  }
  EXPECT_EQ(Read("\r\n 1 ," + stored + "\r\n").Page(1), expected);
}

TEST(ReadDocumentText, KeepsTheEntriesThatTheFileDoesNotName) {
  Global global;
  global.Pages.fill("old page");
  global.MusicLinks.fill("old link");
  ReadDocumentText(" 1 ,new\r\n\r\n 2 ,new\r\n", global);
  EXPECT_EQ(global.MusicLink(1), "new");
  EXPECT_EQ(global.Page(2), "new");
  for (const int link : {0, 2, 99, 100}) EXPECT_EQ(global.MusicLink(link), "old link") << link;
  for (const int page : {0, 1, 3, 999, 1000}) EXPECT_EQ(global.Page(page), "old page") << page;
}

class DamagedDocument : public testing::TestWithParam<std::string> {};

TEST_P(DamagedDocument, IsRefusedWithNothingChanged) {
  Global global;
  global.Pages.fill("old page");
  global.MusicLinks.fill("old link");
  const Global before = global;
  EXPECT_THROW(ReadDocumentText(GetParam(), global), RunTimeError);
  EXPECT_EQ(global.Pages, before.Pages);
  EXPECT_EQ(global.MusicLinks, before.MusicLinks);
}

INSTANTIATE_TEST_SUITE_P(MusicIndex, DamagedDocument,
                         testing::Values(" 101 ,<song>x</song>\r\n\r\n", "-1 ,x\r\n\r\n", "-100,x\r\n\r\n",
                                         " 1 ,x\r\n 101 ,x\r\n\r\n 1 ,p\r\n",
                                         " 99999999999999999999 ,x\r\n\r\n"));
INSTANTIATE_TEST_SUITE_P(PageIndex, DamagedDocument,
                         testing::Values("\r\n 1001 ,<title>x</title>\r\n", "\r\n-1 ,x\r\n", "\r\n -1 ,x\r\n",
                                         " 1 ,m\r\n\r\n 1 ,p\r\n 65537 ,x\r\n", "\r\n 4294967297 ,x\r\n",
                                         "\r\n 1e300 ,x\r\n"));
INSTANTIATE_TEST_SUITE_P(MissingEmptyLine, DamagedDocument,
                         testing::Values("", " 1 ,<song>x</song>\r\n", " 1 ,<song>x</song>",
                                         " 1 ,a\r\n 2 ,b\r\n"));

}  // namespace
}  // namespace tavrel::test
