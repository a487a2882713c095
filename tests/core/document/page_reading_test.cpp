#include <gtest/gtest.h>
#include <string>

#include "core/document/page_record.h"

namespace tavrel::test {
namespace {

std::string Pair(const std::string& text, const std::string& target) {
  return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
}

void ExpectLink(const PageFields& fields, std::size_t row, const char* text, const char* target) {
  EXPECT_EQ(fields.Links.at(row - 1).Text, text) << "row " << row;
  EXPECT_EQ(fields.Links.at(row - 1).Target, target) << "row " << row;
}

TEST(ReadPage, FillsEveryField) {
  const PageFields fields = ReadPage("<title>T</title><note>N</note><text>B\r\nC</text><link>" +
                                     Pair("L", "002") + "</link><music>Play</music><music>M1</music>");
  EXPECT_EQ(fields.Title, "T");
  EXPECT_EQ(fields.Note, "N");
  EXPECT_EQ(fields.Body, "B\r\nC");
  ExpectLink(fields, 1, "L", "002");
  EXPECT_EQ(fields.MusicText, "Play");
  EXPECT_EQ(fields.MusicLink, "M1");
}

TEST(ReadPage, FindsTheElementsInAnyOrder) {
  const PageFields fields = ReadPage("<music>Play</music><link>" + Pair("L", "002") +
                                     "</link><text>B</text><music>M1</music><note>N</note><title>T</title>");
  EXPECT_EQ(fields.Title, "T");
  EXPECT_EQ(fields.Note, "N");
  EXPECT_EQ(fields.Body, "B");
  ExpectLink(fields, 1, "L", "002");
  EXPECT_EQ(fields.MusicText, "Play");
  EXPECT_EQ(fields.MusicLink, "M1");
}

TEST(ReadPage, GivesEmptyFieldsForAnEmptyPage) {
  const PageFields fields = ReadPage("");
  EXPECT_EQ(fields.Title + fields.Note + fields.Body + fields.MusicText + fields.MusicLink, "");
  for (const Link& link : fields.Links) EXPECT_EQ(link.Text + link.Target, "");
}

TEST(ReadPage, LeavesTheRowsAfterTheLastPairEmpty) {
  const PageFields fields =
      ReadPage("<title>T</title><link>" + Pair("a", "001") + Pair("b", "002") + Pair("c", "M3") + "</link>");
  ExpectLink(fields, 1, "a", "001");
  ExpectLink(fields, 2, "b", "002");
  ExpectLink(fields, 3, "c", "M3");
  for (std::size_t row = 4; row <= 49; ++row) ExpectLink(fields, row, "", "");
}

TEST(ReadPage, ReadsNoMoreThanFortyNineLinks) {
  std::string links;
  for (int link = 1; link <= 60; ++link)
    links += Pair("t" + std::to_string(link), std::to_string(100 + link));
  const PageFields fields = ReadPage("<link>" + links + "</link>");
  ASSERT_EQ(fields.Links.size(), 49U);
  ExpectLink(fields, 1, "t1", "101");
  ExpectLink(fields, 49, "t49", "149");
}

TEST(ReadPage, GoesOnPastAnEmptyLinkTextOrTarget) {
  const PageFields fields =
      ReadPage("<link>" + Pair("", "001") + Pair("b", "") + Pair("c", "003") + "</link>");
  ExpectLink(fields, 1, "", "001");
  ExpectLink(fields, 2, "b", "");
  ExpectLink(fields, 3, "c", "003");
}

TEST(ReadPage, PairsTheNthTextWithTheNthTarget) {
  const PageFields fields = ReadPage(
      "<link><linktext>a</linktext><linktext>b</linktext><linkto>001</linkto><linkto>002</linkto></link>");
  ExpectLink(fields, 1, "a", "001");
  ExpectLink(fields, 2, "b", "002");
}

TEST(ReadPage, IgnoresLinkElementsOutsideTheLinkBlock) {
  const PageFields fields = ReadPage("<text>x</text>" + Pair("a", "001"));
  ExpectLink(fields, 1, "", "");
}

TEST(ReadPage, LetsTheFirstMatchWinWhereverItStands) {
  const PageFields fields = ReadPage(
      "<title>T</title><text>see <note>in</note> <music>one</music></text>"
      "<note>N</note><music>Play</music><music>M1</music>");
  EXPECT_EQ(fields.Note, "in");
  EXPECT_EQ(fields.MusicText, "one");
  EXPECT_EQ(fields.MusicLink, "Play");
}

TEST(ReadPage, SeesALinkBlockThatTheBodyOpens) {
  const PageFields fields = ReadPage("<text>a<link>b</text><link>" + Pair("x", "001") + "</link>");
  EXPECT_EQ(fields.Body, "a<link>b");
  ExpectLink(fields, 1, "x", "001");
}

TEST(ReadPage, ChangesNoBlanks) {
  EXPECT_EQ(ReadPage("<title>  X  </title>").Title, "  X  ");
  EXPECT_EQ(ReadPage("<title>a\r\nb</title>").Title, "a\r\nb");
}

}  // namespace
}  // namespace tavrel::test
