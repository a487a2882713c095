#include "core/preview/note_screen.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

// Lines and the wheel, with letters that are one wide.

namespace tavrel::test {
namespace {

int OnePerLetter(std::string_view text) {
  return static_cast<int>(text.size());
}

std::vector<std::string> Wrapped(const std::string& text, int width) {
  std::vector<std::string> lines;
  for (const ScreenLine& line : WrapText(text, width, OnePerLetter))
    lines.push_back(text.substr(line.Start, line.Length));
  return lines;
}

using LineList = std::vector<std::string>;

TEST(WrapText, AShortLineStays) {
  EXPECT_EQ(Wrapped("one two", 7), LineList{"one two"});
}

TEST(WrapText, ALineBreaksBehindTheLastBlankThatFits) {
  EXPECT_EQ(Wrapped("one two three", 8), (LineList{"one two ", "three"}));
}

TEST(WrapText, ABlankThatDoesNotFitAnyMoreEndsItsLine) {
  EXPECT_EQ(Wrapped("one two three", 7), (LineList{"one two ", "three"}));
}

TEST(WrapText, AWordThatIsTooLongBreaksAnywhere) {
  EXPECT_EQ(Wrapped("abcdefgh", 3), (LineList{"abc", "def", "gh"}));
}

TEST(WrapText, ALetterWiderThanTheScreenStandsAlone) {
  EXPECT_EQ(Wrapped("ab", 0), (LineList{"a", "b"}));
}

TEST(WrapText, LinesEndWhereTheTextSaysSo) {
  EXPECT_EQ(Wrapped("a\n\nb\n", 5), (LineList{"a", "", "b"}));
}

TEST(WrapText, NothingHasNoLines) {
  EXPECT_EQ(Wrapped("", 5), LineList{});
}

/// A screen of three lines, ten letters wide.
NoteScreen ScreenOf(const std::string& bytes) {
  return NoteScreen(ReadNote(bytes), 10, 3, OnePerLetter);
}

std::string Link(const std::string& words) {
  return "<a href=\"" + words + "\">" + words + "</a>";
}

TEST(NoteScreenTest, BeginsAtTheTopWithTheFirstLinkThere) {
  const NoteScreen screen = ScreenOf("a\n" + Link("b") + "\n" + Link("c"));
  EXPECT_EQ(screen.Top(), 0U);
  EXPECT_EQ(screen.CurrentLink(), 0U);
}

TEST(NoteScreenTest, ALinkFurtherDownIsNotCurrentYet) {
  const NoteScreen screen = ScreenOf("1\n2\n3\n" + Link("b"));
  EXPECT_EQ(screen.CurrentLink(), std::nullopt);
}

TEST(NoteScreenTest, TheWheelGoesFromLinkToLinkWhileTheyAreOnTheScreen) {
  NoteScreen screen = ScreenOf(Link("a") + " " + Link("b") + "\n" + Link("c"));
  screen.TurnForward();
  EXPECT_EQ(screen.CurrentLink(), 1U);
  screen.TurnForward();
  EXPECT_EQ(screen.CurrentLink(), 2U);
  screen.TurnForward();
  EXPECT_EQ(screen.CurrentLink(), 2U);
  screen.TurnBack();
  EXPECT_EQ(screen.CurrentLink(), 1U);
  EXPECT_EQ(screen.Top(), 0U);
}

TEST(NoteScreenTest, TheWheelScrollsWhenTheNextLinkIsFurtherDown) {
  NoteScreen screen = ScreenOf(Link("a") + "\n2\n3\n4\n" + Link("b"));
  screen.TurnForward();
  EXPECT_EQ(screen.Top(), 1U);
  EXPECT_EQ(screen.CurrentLink(), std::nullopt);
  screen.TurnForward();
  EXPECT_EQ(screen.Top(), 2U);
  EXPECT_EQ(screen.CurrentLink(), 1U);
  screen.TurnForward();
  EXPECT_EQ(screen.Top(), 2U);
}

TEST(NoteScreenTest, TheWheelScrollsBackToTheTop) {
  NoteScreen screen = ScreenOf(Link("a") + "\n2\n3\n4\n" + Link("b"));
  screen.TurnForward();
  screen.TurnForward();
  screen.TurnBack();
  EXPECT_EQ(screen.Top(), 1U);
  screen.TurnBack();
  EXPECT_EQ(screen.Top(), 0U);
  EXPECT_EQ(screen.CurrentLink(), 0U);
  screen.TurnBack();
  EXPECT_EQ(screen.Top(), 0U);
}

TEST(NoteScreenTest, ANoteWithoutLinksOnlyScrolls) {
  NoteScreen screen = ScreenOf("1\n2\n3\n4\n5");
  for (int turn = 0; turn < 5; ++turn) screen.TurnForward();
  EXPECT_EQ(screen.Top(), 2U);
  EXPECT_EQ(screen.CurrentLink(), std::nullopt);
}

TEST(NoteScreenTest, AnEmptyNoteStandsStill) {
  NoteScreen screen = ScreenOf("");
  screen.TurnForward();
  screen.TurnBack();
  EXPECT_EQ(screen.Top(), 0U);
  EXPECT_TRUE(screen.Lines().empty());
}

}  // namespace
}  // namespace tavrel::test
