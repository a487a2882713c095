#include "core/editing/shown_part.h"

#include <gtest/gtest.h>
#include <string>

namespace tavrel::test {
namespace {

/// The part of `content` in brackets as `shown` holds it, in brackets.
std::string Shown(const std::string& content, std::string shown, Field where = Field::Text) {
  const std::size_t start = content.find('[');
  const std::size_t end = content.find(']');
  const std::string plain =
      content.substr(0, start) + content.substr(start + 1, end - start - 1) + content.substr(end + 1);
  const FieldPart part =
      ShownPart({.Where = where, .Position = start, .Length = end - start - 1}, plain, shown);
  return shown.insert(part.Position + part.Length, "]").insert(part.Position, "[");
}

TEST(ShownPart, IsTheSameInTheSameWords) {
  EXPECT_EQ(Shown("one [two] three", "one two three"), "one [two] three");
  EXPECT_EQ(Shown("a [a]", "a a"), "a [a]");
  EXPECT_EQ(Shown("  a [a] ", "  a a "), "  a [a] ");
  EXPECT_EQ(Shown("[  on]e ", "  one "), "[  on]e ");
  EXPECT_EQ(Shown("[ ] one ", "  one "), "[ ] one ");
}

TEST(ShownPart, MovesWithTheBlanksInFront) {
  EXPECT_EQ(Shown("one [two]", "   one two "),
            "   one [two]"
            " ");
  EXPECT_EQ(Shown("  one [two]  ", "one two"), "one [two]");
  EXPECT_EQ(Shown(" one [two]", "  one two"), "  one [two]");
}

TEST(ShownPart, LosesTheBlanksThatAreGone) {
  EXPECT_EQ(Shown("[  on]e", "one"), "[on]e");
  EXPECT_EQ(Shown("[   on]e", " one"), "[ on]e");
  EXPECT_EQ(Shown("on[e  ]", "one"), "on[e]");
  EXPECT_EQ(Shown("[ ]  one", " one"), "[] one");
}

TEST(ShownPart, ThatHasGoneSelectsNothingOfALine) {
  for (const Field line : {Field::Title, Field::LinkText, Field::MusicText})
    EXPECT_EQ(Shown("[ ] one", "one", line), "one[]") << "a line without a length is selected to its end";
}

TEST(ShownPart, OfOtherWordsIsWhereItsWordsStandFirst) {
  EXPECT_EQ(Shown("one and an [apple]", "another apple"), "another [apple]");
}

TEST(ShownPart, IsFoundBehindWhatTheRecordHasInFront) {
  EXPECT_EQ(Shown("</note><text>an apple and an [apple]", "an apple and an apple"),
            "an apple and an [apple]");
  EXPECT_EQ(Shown("</note><text>an [apple] and an apple", " an apple and an apple"),
            " an [apple] and an apple");
  EXPECT_EQ(Shown("00[5]", "5", Field::LinkTarget), "[5]");
  EXPECT_EQ(Shown("0[2]2", "22", Field::LinkTarget), "[2]2");
  EXPECT_EQ(Shown("02[2]", "  22", Field::LinkTarget), "  2[2]");
  EXPECT_EQ(Shown("00[0]", "0", Field::LinkTarget), "[0]");
  EXPECT_EQ(Shown("[0]05", "0005", Field::LinkTarget), "0[0]05");
}

TEST(ShownPart, IsFoundInFrontOfWhatTheRecordLacks) {
  EXPECT_EQ(Shown("a [a]", "a a</text>a a"), "a [a]</text>a a");
  EXPECT_EQ(Shown("[a] a", "  a a</text>a a"), "  [a] a</text>a a");
}

TEST(ShownPart, IsFoundInOtherCapitals) {
  EXPECT_EQ(Shown("[M7]", "  m7", Field::MusicLink), "  [m7]");
  EXPECT_EQ(Shown("M[7]7", "m77", Field::MusicLink), "m[7]7");
}

TEST(ShownPart, OfATargetThatLacksItsWordsIsAll) {
  const FieldPart part = ShownPart({.Where = Field::LinkTarget, .Position = 0, .Length = 2}, "005", "5");
  EXPECT_EQ(part.Position, 0U);
  EXPECT_EQ(part.Length, 0U) << "a line without a length is selected to its end";
}

TEST(ShownPart, WithoutALengthStaysAllOrNothingInOtherWords) {
  const FieldPart all = ShownPart({.Where = Field::Title, .Position = 0, .Length = 0}, "before", "x");
  EXPECT_EQ(all.Position, 0U);
  const FieldPart nothing = ShownPart({.Where = Field::Title, .Position = 6, .Length = 0}, "before", "x");
  EXPECT_EQ(nothing.Position, 1U) << "from the beginning on it would be all";
  EXPECT_EQ(nothing.Length, 0U);
}

TEST(ShownPart, WithoutWordsSelectsNothing) {
  const FieldPart in_text = WithoutWords({.Where = Field::Text, .Position = 3, .Length = 2}, 9);
  EXPECT_EQ(in_text.Position, 3U);
  EXPECT_EQ(in_text.Length, 0U);
  EXPECT_EQ(WithoutWords({.Where = Field::Text, .Position = 30, .Length = 2}, 9).Position, 9U);
  const FieldPart in_line = WithoutWords({.Where = Field::Title, .Position = 3, .Length = 2}, 9);
  EXPECT_EQ(in_line.Position, 9U) << "a line without a length is selected to its end";
  EXPECT_EQ(in_line.Length, 0U);
}

TEST(ShownPart, OfOtherWordsThatLackItSelectsNothing) {
  for (const Field where : {Field::Text, Field::Title}) {
    const FieldPart part = ShownPart({.Where = where, .Position = 7, .Length = 2}, "0123456ab", "x");
    EXPECT_EQ(part.Position, 1U);
    EXPECT_EQ(part.Length, 0U);
  }
}

}  // namespace
}  // namespace tavrel::test
