#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <random>
#include <string>

#include "core/document/document_file.h"
#include "core/document/page_record.h"
#include "support/fixtures.h"
#include "support/full_size_document.h"

namespace tavrel::test {
namespace {

std::string Built(const PageFields& fields) {
  return BuildPage(fields, CodePage::Windows1252());
}

PageFields WithLinks(std::initializer_list<Link> links) {
  PageFields fields;
  std::copy(links.begin(), links.end(), fields.Links.begin());
  return fields;
}

PageFields WithMusic(const char* text, const char* link) {
  PageFields fields;
  fields.MusicText = text;
  fields.MusicLink = link;
  return fields;
}

std::string BuiltBody(const char* body) {
  PageFields fields;
  fields.Body = body;
  return Built(fields);
}

TEST(BuildPage, WritesTheElementsInTheEditorsOrder) {
  PageFields fields = WithLinks({{"L", "2"}});
  fields.Title = "T";
  fields.Note = "N";
  fields.Body = "B";
  fields.MusicText = "C";
  fields.MusicLink = "M1";
  EXPECT_EQ(
      Built(fields),
      "<title>T</title><note>N</note><text>B</text><link><linktext>L</linktext><linkto>002</linkto></link>"
      "<music>C</music><music>M1</music>");
}

TEST(BuildPage, GivesNoPageForEmptyFields) {
  EXPECT_EQ(Built({}), "");
}

TEST(BuildPage, GivesNoPageForFieldsOfBlanks) {
  PageFields fields = WithLinks({{"  ", "  "}});
  fields.Title = " ";
  fields.Note = "  ";
  fields.Body = "   ";
  fields.MusicText = " ";
  fields.MusicLink = " ";
  EXPECT_EQ(Built(fields), "");
}

TEST(BuildPage, TrimsBlanksOnly) {
  PageFields fields;
  fields.Title = "  X  ";
  fields.Note = " a b ";
  fields.Body = "  \tx\xA0  ";
  EXPECT_EQ(Built(fields), "<title>X</title><note>a b</note><text>\tx\xA0</text>");
}

TEST(BuildPage, NeverTrimsLineBreaks) {
  EXPECT_EQ(BuiltBody("\r\n"), "<text>\r\n</text>");
  EXPECT_EQ(BuiltBody(" \r\n "), "<text>\r\n</text>");
  EXPECT_EQ(BuiltBody("a\r\n\r\n"), "<text>a\r\n\r\n</text>");
}

TEST(BuildPage, NormalisesPageTargetsOnly) {
  EXPECT_EQ(
      Built(WithLinks({{"a", "5"}, {"b", "m3"}})),
      "<link><linktext>a</linktext><linkto>005</linkto><linktext>b</linktext><linkto>m3</linkto></link>");
}

TEST(BuildPage, KeepsALinkWithoutATextAndDropsOneWithoutATarget) {
  EXPECT_EQ(Built(WithLinks({{"", "3"}, {"txt", ""}})),
            "<link><linktext></linktext><linkto>003</linkto></link>");
  EXPECT_EQ(Built(WithLinks({{"txt", "  "}})), "");
}

TEST(BuildPage, TrimsLinkTextsAndTargets) {
  EXPECT_EQ(
      Built(WithLinks({{" a b ", " 5 "}, {" c ", "  M3 "}})),
      "<link><linktext>a b</linktext><linkto>005</linkto><linktext>c</linktext><linkto>M3</linkto></link>");
}

TEST(BuildPage, ClosesTheGapsBetweenLinks) {
  PageFields fields;
  fields.Links[3] = {"d", "4"};
  fields.Links[48] = {"last", "49"};
  EXPECT_EQ(
      Built(fields),
      "<link><linktext>d</linktext><linkto>004</linkto><linktext>last</linktext><linkto>049</linkto></link>");
}

TEST(BuildPage, WritesTheMusicLinkInCapitals) {
  EXPECT_EQ(Built(WithMusic("cap", "m3")), "<music>cap</music><music>M3</music>");
  EXPECT_EQ(Built(WithMusic(" cap ", "  m\xE9 ")), "<music>cap</music><music>M\xC9</music>");
}

TEST(BuildPage, WritesAnEmptyMusicLinkAfterItsText) {
  EXPECT_EQ(Built(WithMusic("cap", "")), "<music>cap</music><music></music>");
  EXPECT_EQ(Built(WithMusic("cap", "  ")), "<music>cap</music><music></music>");
}

TEST(BuildPage, DropsAMusicLinkWithoutAText) {
  EXPECT_EQ(Built(WithMusic("  ", "M1")), "");
}

void ExpectRebuiltUnchanged(const Global& global) {
  for (int page = 1; page <= kLastPage; ++page) {
    const std::string& record = global.Page(page);
    EXPECT_EQ(Built(ReadPage(record)), record) << "page " << page;
  }
}

TEST(BuildPage, GivesBackThePagesThatTheEditorWrote) {
  for (const std::string_view document : {kGuide, kSongs, kTrio, kFruit}) {
    Global global;
    ReadDocumentText(document, global);
    ExpectRebuiltUnchanged(global);
  }
}

TEST(BuildPage, GivesBackEveryPageOfAFullSizeDocument) {
  Global global;
  MakeFullSizeDocument(global);
  ExpectRebuiltUnchanged(global);
}

TEST(BuildPage, LosesNothingOfRandomFields) {
  std::mt19937 random(7);
  // A first and last character that is no blank, and no "<", which could make up a tag.
  const auto word = [&random] {
    std::string text = "x";
    for (int left = static_cast<int>(random() % 20); left > 0; --left) {
      const char any = static_cast<char>(random() % 256);
      text += any == '<' ? ' ' : any;
    }
    return text + "\n";
  };
  for (int round = 0; round < 200; ++round) {
    PageFields fields;
    fields.Title = word();
    fields.Note = word();
    fields.Body = word();
    const std::size_t links = random() % 50;
    for (std::size_t link = 0; link < links; ++link) fields.Links[link] = {word(), "M" + word()};
    fields.MusicText = word();
    fields.MusicLink = "M" + std::to_string(random() % 101);

    const PageFields read = ReadPage(Built(fields));
    EXPECT_EQ(read.Title, fields.Title);
    EXPECT_EQ(read.Note, fields.Note);
    EXPECT_EQ(read.Body, fields.Body);
    EXPECT_EQ(read.MusicText, fields.MusicText);
    EXPECT_EQ(read.MusicLink, fields.MusicLink);
    for (std::size_t link = 0; link < 49; ++link) {
      EXPECT_EQ(read.Links[link].Text, fields.Links[link].Text);
      EXPECT_EQ(read.Links[link].Target, fields.Links[link].Target);
    }
  }
}

}  // namespace
}  // namespace tavrel::test
