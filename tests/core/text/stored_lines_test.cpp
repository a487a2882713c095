#include "core/text/stored_lines.h"

#include <gtest/gtest.h>
#include <string>

namespace tavrel::test {
namespace {

using namespace std::string_literals;

TEST(OnOneLine, WritesEachLineBreakAsAMark) {
  EXPECT_EQ(OnOneLine("Hi\r\nthere"), "Hi<p>there");
  EXPECT_EQ(OnOneLine("\r\n\r\na\r\n"), "<p><p>a<p>");
  EXPECT_EQ(OnOneLine("\r\n"), "<p>");
}

TEST(OnOneLine, LeavesEverythingElse) {
  for (const std::string& text : {""s, " a "s, "<p>"s, "a,\"b\""s, "\0\x1A\xFF\t"s})
    EXPECT_EQ(OnOneLine(text), text);
}

TEST(OnOneLine, LeavesALoneCarriageReturn) {
  EXPECT_EQ(OnOneLine("a\rb"), "a\rb");
  EXPECT_EQ(OnOneLine("\r"), "\r");
  EXPECT_EQ(OnOneLine("a\r\r\nb\r"), "a\r<p>b\r");
}

TEST(OnOneLine, NeverLetsALineFeedBreakTheLine) {
  EXPECT_EQ(OnOneLine("a\nb"), "a<p>b");
  EXPECT_EQ(OnOneLine("\n\n"), "<p><p>");
  EXPECT_EQ(OnOneLine("a\r\n\nb"), "a<p><p>b");
}

TEST(WithLineBreaks, TurnsEachMarkIntoALineBreak) {
  EXPECT_EQ(WithLineBreaks("Hi<p>there"), "Hi\r\nthere");
  EXPECT_EQ(WithLineBreaks("<p><p>a<p>"), "\r\n\r\na\r\n");
  EXPECT_EQ(WithLineBreaks("<p>"), "\r\n");
}

TEST(WithLineBreaks, LeavesEverythingElse) {
  for (const std::string& text : {""s, " a "s, "<P>"s, "</p>"s, "<p"s, "p>"s, "a\rb"s, "\0\x1A\xFF"s})
    EXPECT_EQ(WithLineBreaks(text), text);
}

TEST(WithLineBreaks, LooksForMarksInTheLineOnly) {
  EXPECT_EQ(WithLineBreaks("<<p>p>"), "<\r\np>");
  EXPECT_EQ(WithLineBreaks("<p<p>>"), "<p\r\n>");
}

TEST(StoredLines, ComeBackAsTheyWere) {
  for (const std::string& text : {"a\r\nb"s, "\r\n\r\n"s, "a\r\r\nb"s, "\ra"s, "a\r"s, "<\r\np>"s})
    EXPECT_EQ(WithLineBreaks(OnOneLine(text)), text);
}

}  // namespace
}  // namespace tavrel::test
