#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/document/markup.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

std::string WithTagSet(std::string text, std::string_view value, std::string_view tag, int occurrence) {
  SetTag(text, value, tag, occurrence);
  return text;
}

std::vector<std::string> Walked(std::string_view text, std::string_view tag) {
  std::vector<std::string> contents;
  TagWalker walker(text, tag);
  while (walker.Next()) contents.emplace_back(walker.Content());
  return contents;
}

TEST(GetTag, ReadsOneElement) {
  EXPECT_EQ(GetTag("<title>A</title>", "<title>", 1), "A");
  EXPECT_EQ(GetTag("<title>A</title>", "<title>", 2), "");
}

TEST(GetTag, GivesNothingForAnEmptyElement) {
  EXPECT_EQ(GetTag("<title></title>", "<title>", 1), "");
}

TEST(GetTag, GivesNothingForAMissingElement) {
  EXPECT_EQ(GetTag("<note>n</note>", "<title>", 1), "");
  EXPECT_EQ(GetTag("", "<title>", 1), "");
}

TEST(GetTag, GivesNothingWithoutTheClosingTag) {
  EXPECT_EQ(GetTag("<title>A", "<title>", 1), "");
  EXPECT_EQ(GetTag("<title>", "<title>", 1), "");
  EXPECT_EQ(GetTag("</title><title>A", "<title>", 1), "");
}

TEST(GetTag, CountsOccurrences) {
  const std::string text = "<music>Play</music><music>M2</music>";
  EXPECT_EQ(GetTag(text, "<music>", 1), "Play");
  EXPECT_EQ(GetTag(text, "<music>", 2), "M2");
  EXPECT_EQ(GetTag(text, "<music>", 3), "");
}

TEST(GetTag, TakesOccurrencesBelowOneForTheFirst) {
  EXPECT_EQ(GetTag("<title>A</title><title>B</title>", "<title>", 0), "A");
  EXPECT_EQ(GetTag("<title>A</title><title>B</title>", "<title>", -3), "A");
}

TEST(GetTag, MatchesTagsLiterally) {
  EXPECT_EQ(GetTag("<Title>A</Title>", "<title>", 1), "");
  EXPECT_EQ(GetTag("<notes>x</notes>", "<note>", 1), "");
  EXPECT_EQ(GetTag("<linktext>x</linktext>", "<text>", 1), "");
  EXPECT_EQ(GetTag("<title>A</Title>", "<title>", 1), "");
}

TEST(GetTag, CountsAnOpeningTagInsideAContent) {
  const std::string text = "<title>a<title>b</title>";
  EXPECT_EQ(GetTag(text, "<title>", 1), "a<title>b");
  EXPECT_EQ(GetTag(text, "<title>", 2), "b");
  EXPECT_EQ(GetTag(text, "<title>", 3), "");
}

TEST(GetTag, LetsOccurrencesOverlapByAllButOneCharacter) {
  EXPECT_EQ(GetTag("aaaxa/a", "aa", 1), "ax");
  EXPECT_EQ(GetTag("aaaxa/a", "aa", 2), "x");
}

TEST(GetTag, TakesTheFirstMatchWhereverItStands) {
  EXPECT_EQ(GetTag("<text>a<note>b</note></text><note>n</note>", "<note>", 1), "b");
}

TEST(GetTag, KeepsEveryByteOfAContent) {
  const std::string content = "a\0b\r\n\t\xA0\xE9,\""s;
  EXPECT_EQ(GetTag("<text>" + content + "</text>", "<text>", 1), content);
}

TEST(SetTag, FillsAnEmptyElement) {
  EXPECT_EQ(WithTagSet("<title></title>", "B", "<title>", 1), "<title>B</title>");
}

TEST(SetTag, ReplacesAContentOfAnotherLength) {
  EXPECT_EQ(WithTagSet("x<linkto>1000</linkto>y", "999", "<linkto>", 1), "x<linkto>999</linkto>y");
  EXPECT_EQ(WithTagSet("x<linkto>999</linkto>y", "1000", "<linkto>", 1), "x<linkto>1000</linkto>y");
  EXPECT_EQ(WithTagSet("x<linkto>999</linkto>y", "", "<linkto>", 1), "x<linkto></linkto>y");
}

TEST(SetTag, ReplacesOnlyTheOccurrenceAskedFor) {
  const std::string text = "<linkto>001</linkto><linkto>002</linkto>";
  EXPECT_EQ(WithTagSet(text, "007", "<linkto>", 1), "<linkto>007</linkto><linkto>002</linkto>");
  EXPECT_EQ(WithTagSet(text, "007", "<linkto>", 2), "<linkto>001</linkto><linkto>007</linkto>");
  EXPECT_EQ(WithTagSet(text, "007", "<linkto>", 0), "<linkto>007</linkto><linkto>002</linkto>");
  EXPECT_EQ(WithTagSet(text, "007", "<linkto>", 3), text);
}

TEST(SetTag, LeavesATextWithoutTheElementAlone) {
  EXPECT_EQ(WithTagSet("<note>n</note>", "Z", "<title>", 1), "<note>n</note>");
  EXPECT_EQ(WithTagSet("<title>A", "Z", "<title>", 1), "<title>A");
  EXPECT_EQ(WithTagSet("", "Z", "<title>", 1), "");
}

TEST(SetTag, SwallowsAnOpeningTagInsideTheContent) {
  EXPECT_EQ(WithTagSet("<title>a<title>b</title>", "V", "<title>", 1), "<title>V</title>");
  EXPECT_EQ(WithTagSet("<title>a<title>b</title>", "V", "<title>", 2), "<title>a<title>V</title>");
}

TEST(SetTag, LooksForTheClosingTagFromTheLastCharacterOfTheOpeningTag) {
  EXPECT_EQ(WithTagSet("aba/ba", "V", "aba", 1), "abaVa/ba");
}

TEST(TagWalker, GivesTheElementsInOrder) {
  EXPECT_EQ(Walked("<music>Play</music>x<music>M2</music>", "<music>"),
            (std::vector<std::string>{"Play", "M2"}));
}

TEST(TagWalker, GoesOnPastAnEmptyElement) {
  EXPECT_EQ(Walked("<a>1</a><a></a><a>3</a>", "<a>"), (std::vector<std::string>{"1", "", "3"}));
}

TEST(TagWalker, ReachesElementsWithoutAClosingTag) {
  EXPECT_EQ(Walked("<a>1</a><a>2", "<a>"), (std::vector<std::string>{"1", ""}));
}

TEST(TagWalker, HasNothingAfterTheEnd) {
  const std::string text = "<a>1</a>";
  TagWalker walker(text, "<a>");
  EXPECT_EQ(walker.NextContent(), "1");
  EXPECT_EQ(walker.NextContent(), "");
  EXPECT_FALSE(walker.Next());
  EXPECT_EQ(walker.Content(), "");
}

TEST(AppendTag, AddsAWholeElement) {
  std::string text = "x";
  AppendTag(text, "<title>", "A");
  AppendTag(text, "<note>", "");
  EXPECT_EQ(text, "x<title>A</title><note></note>");
}

TEST(ClosingTag, HasASlashAfterTheFirstCharacter) {
  EXPECT_EQ(ClosingTag("<linkto>"), "</linkto>");
}

}  // namespace
}  // namespace tavrel::test
