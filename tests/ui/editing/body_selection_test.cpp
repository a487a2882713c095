#include <gtest/gtest.h>
#include <random>
#include <string>

#include "ui/controls/body_field.h"

namespace tavrel::test {
namespace {

class BodySelectionTest : public testing::Test {
 protected:
  /// What is selected after `length` bytes from `position` on were.
  QString Selected(std::string_view bytes, std::size_t position, std::size_t length) {
    field_.SetBytes(bytes);
    field_.Select(position, length);
    return field_.SelectedText();
  }

 private:
  BodyField field_;
};

TEST_F(BodySelectionTest, CountsALineBreakAsTwoCharacters) {
  EXPECT_EQ(Selected("ab\r\ncat", 4, 3), "cat");
  EXPECT_EQ(Selected("ab\r\ncat", 0, 2), "ab");
  EXPECT_EQ(Selected("a\r\nb\r\nc\r\nd", 9, 1), "d");
  EXPECT_EQ(Selected("a\r\nb\r\nc\r\nd", 3, 4), "b\nc");
}

TEST_F(BodySelectionTest, GoesOverLineBreaks) {
  EXPECT_EQ(Selected("ab\r\ncat", 1, 4), "b\nc");
  EXPECT_EQ(Selected("ab\r\ncat", 2, 2), "\n");
  EXPECT_EQ(Selected("ab\r\ncat", 0, 7), "ab\ncat");
}

TEST_F(BodySelectionTest, EmptyLinesCountToo) {
  EXPECT_EQ(Selected("\r\n\r\nx", 4, 1), "x");
  EXPECT_EQ(Selected("\r\n\r\nx\r\n\r\n", 2, 3), "\nx");
  EXPECT_EQ(Selected("\r\n\r\n", 0, 4), "\n\n");
  EXPECT_EQ(Selected("", 0, 0), "");
}

TEST_F(BodySelectionTest, LoneReturnsAndLineFeedsAreOneCharacterEach) {
  EXPECT_EQ(Selected("a\rb", 2, 1), "b");
  EXPECT_EQ(Selected("a\rb", 1, 1), "\r");
  EXPECT_EQ(Selected("a\nb", 2, 1), "b");
  EXPECT_EQ(Selected("a\nb", 1, 1), "\n");
  EXPECT_EQ(Selected("\r\r\n\nx", 4, 1), "x");
  EXPECT_EQ(Selected("\n\r\n\rx", 4, 1), "x");
}

TEST_F(BodySelectionTest, EndsWhereTheTextEnds) {
  EXPECT_EQ(Selected("ab\r\nc", 4, 100), "c");
  EXPECT_EQ(Selected("ab\r\nc", 5, 1), "");
  EXPECT_EQ(Selected("ab\r\nc", 6, 1), "");
  EXPECT_EQ(Selected("ab\r\nc", 1000000, 3), "");
  EXPECT_EQ(Selected("ab\r\n", 0, 1000000), "ab\n");
  EXPECT_EQ(Selected("ab\r\n", 0, 4294967295U), "ab\n");
  EXPECT_EQ(Selected("", 3, 3), "");
}

/// The selected text that `bytes` should give, with every line break whole.
QString Expected(std::string bytes) {
  QString text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes.compare(i, 2, "\r\n") == 0) continue;
    text += QChar(static_cast<char16_t>(bytes[i]));
  }
  return text;
}

TEST_F(BodySelectionTest, SelectsWhatStandsThereInAnyText) {
  std::mt19937 random(5);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes;
    for (auto i = random() % 30; i > 0; --i) bytes += "\r\n\r\nab"[random() % 6];
    const std::size_t start = random() % (bytes.size() + 1);
    const std::size_t length = random() % (bytes.size() - start + 1);
    const auto splits = [&](std::size_t at) { return at > 0 && bytes.compare(at - 1, 2, "\r\n") == 0; };
    if (splits(start) || splits(start + length)) continue;
    ASSERT_EQ(Selected(bytes, start, length), Expected(bytes.substr(start, length)))
        << round << ": " << testing::PrintToString(bytes) << " from " << start << " for " << length;
  }
}

TEST_F(BodySelectionTest, AManyLineTextIsSelectedAtItsEnd) {
  std::string bytes;
  for (int line = 0; line < 5000; ++line) bytes += "line\r\n";
  EXPECT_EQ(Selected(bytes + "cat", bytes.size(), 3), "cat");
}

}  // namespace
}  // namespace tavrel::test
