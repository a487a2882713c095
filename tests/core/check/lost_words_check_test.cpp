#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/check/lost_words.h"
#include "core/check/project_check_fixture.h"

// Words of a record that stand in none of its fields.

namespace tavrel::test {
namespace {

using LostWordsCheckTest = ProjectCheckTest;

TEST_F(LostWordsCheckTest, WordsBehindAFieldsOwnClosingTag) {
  global_->MusicLink(5) = "<song>S</song>";
  global_->Page(1) = "<title>ab</title>c</title>";
  ExpectOne(Field::Title, 0, 2, 0, "What stands behind </title> is lost.");
  SetPage(1, "<note>abc</note>d</note>");
  ExpectOne(Field::Note, 0, 3, 0, "What stands behind </note> is lost.");
  SetPage(1, "<text>a</text>b</text>");
  ExpectOne(Field::Text, 0, 1, 0, "What stands behind </text> is lost.");
  SetText("", Link("a", "001") + Link("b</linktext>c", "001"));
  ExpectOne(Field::LinkText, 2, 1, 0, "What stands behind </linktext> is lost.");
  SetText("", Link("a", "001</linkto>x"));
  ExpectOne(Field::LinkTarget, 1, 3, 0, "What stands behind </linkto> is lost.");
  SetPage(1, "<music>So</music>ng</music><music>M5</music>");
  ExpectOne(Field::MusicText, 0, 2, 0, "What stands behind </music> is lost.");
  SetPage(1, "<music>Song</music><music>M5</music>x</music>");
  ExpectOne(Field::MusicLink, 0, 2, 0, "What stands behind </music> is lost.");
}

TEST_F(LostWordsCheckTest, WordsInFrontOfAllFieldsOrInAFieldThatComesTwiceOrDoesNotEnd) {
  global_->Page(1) = "words<title>T</title>";
  ExpectOne(Field::Page, 0, 0, 0, "Words that stand in no field are lost.");
  SetPage(1, "<title>U</title>");
  ExpectOne(Field::Title, 0, 1, 0, "What stands behind </title> is lost.");
  SetPage(1, "<text>never ended");
  ExpectOne(Field::Title, 0, 1, 0, "What stands behind </title> is lost.");
}

TEST_F(LostWordsCheckTest, WordsBehindALinkThatTheEditorDoesNotShowLeadToThePage) {
  SetPage(1, Link("a", "001") + "junk<link>" + Link("b", "001") + "</link>");
  ExpectOne(Field::Page, 0, 0, 0, "What stands behind </linkto> is lost.");
  SetPage(1, Link("a", "001") + "<link>" + Link("b", "001") + "junk</link>");
  ExpectOne(Field::LinkTarget, 1, 3, 0, "What stands behind </linkto> is lost.");
  SetPage(1, "<link>" + Link("a<linktext>b", "001") + "</link>");
  const std::size_t without = Findings().size();
  SetPage(1, "<link>" + Link("a<linktext>b", "001") + Link("c", "001") + "junk</link>");
  const std::vector<Finding> findings = Findings();
  ASSERT_GT(findings.size(), without);
  const auto lost = std::find_if(findings.begin(), findings.end(), [](const Finding& finding) {
    return finding.Sentence == "What stands behind </linkto> is lost.";
  });
  ASSERT_NE(lost, findings.end());
  EXPECT_EQ(lost->Link, 2) << "the row in which that target stands";
}

TEST_F(LostWordsCheckTest, BlanksBetweenTheFieldsAreNoWords) {
  global_->Page(1) = " <title>T</title> \r\n <text>a</text>\r\n";
  ExpectNothing();
}

/// Pieces in any order: a lost piece may be just as long as a tag that is missing.
std::string AnyPieces(std::mt19937& random) {
  static const std::vector<std::string> pieces = {
      "<title>",  "</title>",  "<note>",  "</note>",        "<text>",
      "</text>",  "<link>",    "</link>", "<linktext>",     "</linktext>",
      "<linkto>", "</linkto>", "<music>", "</music>",       "a",
      "bcd",      "001",       "M5",      "<text>x</text>", "<linktext>l</linktext><linkto>001</linkto>"};
  std::string record;
  for (std::size_t left = 1 + random() % 8; left > 0; --left) record += pieces[random() % pieces.size()];
  return record;
}

TEST_F(LostWordsCheckTest, AreToldOfEveryRecordThatHasSome) {
  const auto is_told = [](const std::string& sentence) { return sentence.ends_with("lost."); };
  std::mt19937 random(12);
  int told = 0;
  for (int i = 0; i < 20'000; ++i) {
    global_->Page(1) = AnyPieces(random);
    const std::vector<std::string> sentences = Sentences();
    const auto lost = FindLostWords(global_->Page(1)).size();
    ASSERT_EQ(static_cast<std::size_t>(std::count_if(sentences.begin(), sentences.end(), is_told)), lost)
        << global_->Page(1);
    told += lost > 0 ? 1 : 0;
  }
  EXPECT_GT(told, 10'000);
}

}  // namespace
}  // namespace tavrel::test
