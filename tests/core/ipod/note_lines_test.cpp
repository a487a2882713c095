#include <gtest/gtest.h>
#include <string>

#include "core/ipod/literal_notes.h"
#include "core/ipod/note_reader.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

TEST(NoteLines, EndsEveryLineWithCrLf) {
  EXPECT_EQ(NoteLines("a\r\nb\r\n"), "a\r\nb\r\n");
  EXPECT_EQ(NoteLines("a\nb\n"), "a\r\nb\r\n");
  EXPECT_EQ(NoteLines("a\rb\r"), "a\r\nb\r\n");
  EXPECT_EQ(NoteLines("a\rb\nc\r\nd\n"), "a\r\nb\r\nc\r\nd\r\n");
}

TEST(NoteLines, EndsTheLastLineToo) {
  EXPECT_EQ(NoteLines("a"), "a\r\n");
  EXPECT_EQ(NoteLines("a\nb"), "a\r\nb\r\n");
  EXPECT_EQ(NoteLines(" "), " \r\n");
}

TEST(NoteLines, MakesNoLineOutOfNothing) {
  EXPECT_EQ(NoteLines(""), "");
}

TEST(NoteLines, KeepsEmptyLines) {
  EXPECT_EQ(NoteLines("\n"), "\r\n");
  EXPECT_EQ(NoteLines("\n\n"), "\r\n\r\n");
  EXPECT_EQ(NoteLines("\r\r\n\n"), "\r\n\r\n\r\n");
  EXPECT_EQ(NoteLines("a\n\rb"), "a\r\n\r\nb\r\n");
  EXPECT_EQ(NoteLines("\r\n\r\n"), "\r\n\r\n");
}

TEST(NoteLines, KeepsAllOtherBytes) {
  EXPECT_EQ(NoteLines("a\0b\x1A\t\x0B\x0C\x85\xFF"s), "a\0b\x1A\t\x0B\x0C\x85\xFF\r\n"s);
}

TEST(NoteLines, KeepsLargeTexts) {
  EXPECT_EQ(NoteLines(std::string(10'000'000, 'x')), std::string(10'000'000, 'x') + "\r\n");
  const std::string breaks = NoteLines(std::string(1'000'000, '\n'));
  EXPECT_EQ(breaks.size(), 2'000'000U);
  EXPECT_EQ(breaks.find("\n\n"), std::string::npos);
}

TEST(NoteLines, FollowsTheRulesForAllShortTexts) {
  const char bytes[] = {'a', '\r', '\n', '\0'};
  for (int i = 0; i < 4 * 4 * 4 * 4 * 4; ++i) {
    std::string text;
    for (int left = i; left > 0; left /= 4) text += bytes[left % 4];
    EXPECT_EQ(NoteLines(text), LiteralLines(text)) << i;
  }
}

}  // namespace
}  // namespace tavrel::test
