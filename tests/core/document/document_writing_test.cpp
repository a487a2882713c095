#include <gtest/gtest.h>
#include <string>

#include "core/document/document_file.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

TEST(DocumentText, IsOneEmptyLineForAnEmptyDocument) {
  EXPECT_EQ(DocumentText(Global()), "\r\n");
}

TEST(DocumentText, BeginsWithTheEmptyLineWithoutMusic) {
  Global global;
  global.Page(3) = "<title>C</title>";
  EXPECT_EQ(DocumentText(global), "\r\n 3 ,<title>C</title>\r\n");
}

TEST(DocumentText, EndsWithTheEmptyLineWithoutPages) {
  Global global;
  global.MusicLink(1) = "<song>Blue</song>";
  EXPECT_EQ(DocumentText(global), " 1 ,<song>Blue</song>\r\n\r\n");
}

TEST(DocumentText, WritesMusicThenPagesInIncreasingOrder) {
  Global global;
  global.Page(999) = "last";
  global.Page(1) = "first";
  global.Page(42) = "middle";
  global.MusicLink(12) = "later";
  global.MusicLink(3) = "sooner";
  EXPECT_EQ(DocumentText(global),
            " 3 ,sooner\r\n 12 ,later\r\n"
            "\r\n"
            " 1 ,first\r\n 42 ,middle\r\n 999 ,last\r\n");
}

TEST(DocumentText, WritesMusicLinks0To99AndNever100) {
  Global global;
  for (int link = 0; link <= 100; ++link)
    global.MusicLink(link) = "<song>S" + std::to_string(link) + "</song>";
  std::string expected;
  for (int link = 0; link <= 99; ++link) {
    const std::string number = std::to_string(link);
    expected += " " + number + " ,<song>S" + number + "</song>\r\n";
  }
  EXPECT_EQ(DocumentText(global), expected + "\r\n");
}

TEST(DocumentText, WritesPages0To999AndNever1000) {
  Global global;
  for (int page = 0; page <= 1000; ++page) global.Page(page) = "p" + std::to_string(page);
  std::string expected = "\r\n";
  for (int page = 0; page <= 999; ++page) {
    const std::string number = std::to_string(page);
    expected += " " + number + " ,p" + number + "\r\n";
  }
  EXPECT_EQ(DocumentText(global), expected);
}

TEST(DocumentText, WritesLineBreaksOfPagesAsAMark) {
  Global global;
  global.Page(1) = "<text>a\r\nb\r\n\r\nc\r\n</text>";
  EXPECT_EQ(DocumentText(global), "\r\n 1 ,<text>a<p>b<p><p>c<p></text>\r\n");
}

TEST(DocumentText, LeavesALoneCarriageReturnAlone) {
  Global global;
  global.Page(1) = "a\rb\r\r\nc";
  EXPECT_EQ(DocumentText(global), "\r\n 1 ,a\rb\r<p>c\r\n");
}

TEST(DocumentText, WritesRecordsAsTheyStand) {
  Global global;
  const std::string bytes = "x, \"y\", z \0\t\xA0\x80\xFF"s;
  global.MusicLink(2) = "<p>" + bytes;
  global.Page(2) = bytes;
  EXPECT_EQ(DocumentText(global), " 2 ,<p>" + bytes + "\r\n\r\n 2 ," + bytes + "\r\n");
}

TEST(DocumentText, WritesOneByteACharacter) {
  Global global;
  global.Page(1) = "<title>Caf\xE9</title>";
  EXPECT_EQ(DocumentText(global), "\r\n 1 ,<title>Caf\xE9</title>\r\n");
}

TEST(DocumentText, NeverLetsALineFeedBreakALine) {
  Global global;
  global.Page(1) = "<text>a\nb\r\nc\n</text>";
  EXPECT_EQ(DocumentText(global), "\r\n 1 ,<text>a<p>b<p>c<p></text>\r\n");
}

}  // namespace
}  // namespace tavrel::test
