#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/check/project_check_fixture.h"

// Characters, tags and brackets in the fields of a page that an iPod or the project's file takes otherwise.

namespace tavrel::test {
namespace {

TEST_F(ProjectCheckTest, CharactersOutsideLatin1) {
  SetText("caf\xE9 \xA3");
  ExpectNothing();
  SetText("a \x93quote\x94");
  ExpectOne(Field::Text, 0, 2, 1, "An iPod may not show 2 of the characters.");
  SetText("1 \x80");
  ExpectOne(Field::Text, 0, 2, 1, "An iPod may not show one of the characters.");
}

TEST_F(ProjectCheckTest, CharactersOfANoteToOneselfDoNotCount) {
  SetPage(1, "<note>\x93</note>");
  ExpectNothing();
}

TEST_F(ProjectCheckTest, ATagTypedIntoATitle) {
  global_->Page(1) = "<title>a<note>b</title>";
  ExpectOne(Field::Title, 0, 1, 6, "<note> cannot stand in a page.");
}

TEST_F(ProjectCheckTest, WordsInBracketsThatLookLikeATagOfAnotherPlace) {
  SetText("see <link> and <text> here", Link("link", "001") + Link("text", "001"));
  ExpectNothing();
}

TEST_F(ProjectCheckTest, ATagTypedIntoAText) {
  global_->Page(1) = "<title>T</title><text>a</link>b</text>";
  const std::vector<std::string> sentences = Sentences();
  EXPECT_EQ(std::count(sentences.begin(), sentences.end(), "</link> cannot stand in a page."), 1);
}

TEST_F(ProjectCheckTest, BracketsInTheWordsOfALinkOrOfMusic) {
  global_->MusicLink(5) = "<song>S</song>";
  SetText("", Link("a > b", "001"));
  ExpectNothing();
  SetText("", Link("a <b> c", "001"));
  ExpectOne(Field::LinkText, 1, 2, 1, "An iPod takes the < for the beginning of a tag.");
  SetPage(1, "<music>b < c</music><music>M5</music>");
  ExpectOne(Field::MusicText, 0, 2, 1, "An iPod takes the < for the beginning of a tag.");
}

TEST_F(ProjectCheckTest, ABracketOrAnotherLetterIsFoundWhereverItStands) {
  for (std::size_t size = 1; size <= 20; ++size) {
    // The neighbours of "<" and of the first letter beyond ASCII.
    std::string words;
    while (words.size() < size) words += words.size() % 3 == 0 ? '=' : words.size() % 3 == 1 ? ';' : '\x7F';
    SetText("", Link(words, "001"));
    ExpectNothing();
    for (std::size_t place = 0; place < size; ++place) {
      SCOPED_TRACE(std::to_string(place) + " of " + std::to_string(size));
      words[place] = '<';
      SetText("", Link(words, "001"));
      ExpectOne(Field::LinkText, 1, place, 1, "An iPod takes the < for the beginning of a tag.");
      words[place] = '\x80';
      SetText("", Link(words, "001"));
      ExpectOne(Field::LinkText, 1, place, 1, "An iPod may not show one of the characters.");
      words[place] = '=';
    }
  }
}

TEST_F(ProjectCheckTest, LinksThatOpenWithinOneAnotherAreLookedAtOnceEach) {
  SetText("", "<linktext>a\x80<linktext>\x80\x80</linktext><linkto>001</linkto>");
  std::vector<std::string> found;
  for (const Finding& finding : Findings()) {
    if (finding.Where == Field::LinkText)
      found.push_back(std::to_string(finding.Link) + "," + std::to_string(finding.Position) + " " +
                      finding.Sentence);
  }
  EXPECT_EQ(found, (std::vector<std::string>{"1,1 An iPod may not show one of the characters.",
                                             "1,2 <linktext> cannot stand in a page.",
                                             "1,2 An iPod takes the < for the beginning of a tag.",
                                             "2,0 An iPod may not show 2 of the characters."}));
}

TEST_F(ProjectCheckTest, AQuotationMarkInMusic) {
  global_->MusicLink(5) = "<song>S</song><notes>\"remember\"</notes>";
  SetText("", Link("x", "M5"));
  ExpectNothing();
  global_->MusicLink(5) = "<song>The \"Best\"</song>";
  ExpectOne(Field::LinkTarget, 1, 0, 2,
            "A name in music link M5 holds a quotation mark, at which an iPod ends the link.");
}

TEST_F(ProjectCheckTest, ABracketInMusic) {
  global_->MusicLink(5) = "<song>A < B</song><notes>></notes>";
  SetText("", Link("x", "M5"));
  ExpectNothing();
  global_->MusicLink(5) = "<song>Kiss > Hug</song>";
  ExpectOne(Field::LinkTarget, 1, 0, 2,
            "A name in music link M5 holds a >, at which an iPod may end the link.");
}

TEST_F(ProjectCheckTest, NothingBetweenBrackets) {
  SetText("a < b> c", Link("b", "001"));
  ExpectNothing();
  for (const std::string empty : {"<>", "<  >"}) {
    SetText("a " + empty + " b", Link("x", "001"));
    ExpectOne(Field::Text, 0, 2, empty.size(),
              "Nothing stands between < and >, which take link 1, so nobody sees it.");
  }
}

TEST_F(ProjectCheckTest, WhatIsPublishedAsALinkToTheNotesMenuLeadsNowhere) {
  const auto dead = [&] {
    const std::vector<Finding> findings = Findings();
    return std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.LeadsNowhere; });
  };
  SetText("", Link("x", "000") + Link("y", "M7") + Link("z", "007") + Link("ok", "001"));
  EXPECT_EQ(dead(), 3);
  SetText("<here> and <there>", Link("here", "001"));
  EXPECT_EQ(dead(), 1) << "there is no second link";
  SetPage(1, "<music>Song</music>");
  EXPECT_EQ(dead(), 1);
  SetPage(1, "<music>Song</music><music>M7</music>");
  EXPECT_EQ(dead(), 1);
  SetText("", Link("", "000") + Link("x", "M7"));
  EXPECT_EQ(dead(), 0) << "neither is published";
}

TEST_F(ProjectCheckTest, ATagTypedIntoATarget) {
  global_->MusicLink(1) = "<song>S</song>";
  SetText("", Link("a", "M1</link>"));
  ExpectOne(Field::LinkTarget, 1, 2, 7, "</link> cannot stand in a page.");
  SetText("", Link("a", "M1<linktext>"));
  ExpectOne(Field::LinkTarget, 1, 2, 10, "<linktext> cannot stand in a page.");
  SetText("", Link("a", "M1<linkto>"));
  ExpectOne(Field::LinkTarget, 1, 2, 8, "<linkto> cannot stand in a page.");
}

TEST_F(ProjectCheckTest, WhatStandsBehindALinksTagInTheMusicsWords) {
  global_->MusicLink(5) = "<song>S</song>";
  for (const std::string tag : {"", "<linktext>"}) {
    SetPage(1, "<music>" + tag + "2 \x80<title></music><music>M5</music>");
    const std::vector<std::string> sentences = Sentences();
    const std::vector<std::string> expected = {"An iPod may not show one of the characters.",
                                               "<title> cannot stand in a page.",
                                               "An iPod takes the < for the beginning of a tag."};
    EXPECT_EQ(sentences, expected) << tag;
  }
}

TEST_F(ProjectCheckTest, WordsThatNobodySees) {
  global_->MusicLink(5) = "<song>S</song>";
  for (const std::string blanks : {" ", "  ", "\r\n", " \r\n "}) {
    SetText("a <" + blanks + "> b", Link("b", "001"));
    ExpectOne(Field::Text, 0, 2, 2 + blanks.size(),
              "Nothing stands between < and >, which take link 1, so nobody sees it.");
    SetText("", Link("a", "001") + Link(blanks, "001"));
    ExpectOne(Field::LinkText, 2, 0, blanks.size(), "The words are blanks, so nobody sees the link.");
    SetPage(1, "<music>" + blanks + "</music><music>M5</music>");
    ExpectOne(Field::MusicText, 0, 0, blanks.size(), "The words are blanks, so nobody sees the link.");
  }
  SetText("", Link("", "001") + Link("  ", "001"));
  ExpectOne(Field::LinkText, 1, 0, 0,
            "The link has no words, so it and the link behind it are not in the list below the text.");
}

TEST_F(ProjectCheckTest, ATagTypedIntoANote) {
  global_->Page(1) = "<title>T</title><note>a<text>b</note><text>x</text>";
  const std::vector<std::string> sentences = Sentences();
  EXPECT_NE(std::find(sentences.begin(), sentences.end(), "<text> cannot stand in a page."), sentences.end());
}

}  // namespace
}  // namespace tavrel::test
