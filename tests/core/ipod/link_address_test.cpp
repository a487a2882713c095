#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

std::string Links(std::initializer_list<const char*> targets) {
  std::string links;
  for (const char* target : targets) {
    links += "<linktext>any text</linktext><linkto>" + std::string(target) + "</linkto>";
  }
  return "<link>" + links + "</link>";
}

/// GetText of page 2, which has links to these targets.
std::string Text(const std::string& text, std::initializer_list<const char*> targets) {
  Global global;
  global.Page(2) = Links(targets);
  global.MusicLink(0) = "<song>Zero</song>";
  global.MusicLink(1) = "<song>Blue</song><artist>Kim Low</artist>";
  return GetText(global, text, 2);
}

TEST(GetText, TurnsBracketsIntoAnchors) {
  EXPECT_EQ(Text("See <Part two> now", {"002"}), "See <a href=\"z002.txt\">Part two</a> now");
}

TEST(GetText, LeavesATextWithoutACompletePairAlone) {
  for (const char* text : {"", "plain", "a < b", "a > b", "a > b <c>", "><", "a\r\nb"}) {
    EXPECT_EQ(Text(text, {"003"}), text);
  }
}

TEST(GetText, GivesTheKthBracketTheKthLink) {
  EXPECT_EQ(Text("<a><b>\r\n<c>", {"005", "999", "007"}),
            "<a href=\"z005.txt\">a</a><a href=\"z999.txt\">b</a>\r\n<a href=\"z007.txt\">c</a>");
}

TEST(GetText, LeadsToTheNotesMenuWithoutAKthLink) {
  EXPECT_EQ(Text("<a> <b>", {"005"}), "<a href=\"z005.txt\">a</a> <a href=\"\\\">b</a>");
  EXPECT_EQ(Text("<a>", {}), "<a href=\"\\\">a</a>");
}

TEST(GetText, LeadsToTheNotesMenuForAnEmptyTargetAndGoesOn) {
  EXPECT_EQ(Text("<a> <b>", {"", "005"}), "<a href=\"\\\">a</a> <a href=\"z005.txt\">b</a>");
}

TEST(GetText, LeadsToMusic) {
  EXPECT_EQ(Text("<Play>", {"M1"}), "<a href=\"ipod:music?song=Blue&artist=Kim Low\">Play</a>");
}

TEST(GetText, TakesOnlyNumbersAboveZeroForPages) {
  EXPECT_EQ(Text("<x>", {"1000"}), "<a href=\"z1000.txt\">x</a>");
  EXPECT_EQ(Text("<x>", {"12x"}), "<a href=\"z12x.txt\">x</a>");
  EXPECT_EQ(Text("<x>", {"7"}), "<a href=\"z7.txt\">x</a>");
  EXPECT_EQ(Text("<x>", {"000"}), "<a href=\"ipod:music?song=Zero\">x</a>");
  EXPECT_EQ(Text("<x>", {"-1"}), "<a href=\"ipod:music?song=Blue&artist=Kim Low\">x</a>");
  EXPECT_EQ(Text("<x>", {"Mary"}), "<a href=\"ipod:music?song=Zero\">x</a>");
}

TEST(GetText, TakesANumberTooSmallToHoldForNoPage) {
  EXPECT_EQ(Text("<x>", {"1e-400"}), "<a href=\"ipod:music?song=Zero\">x</a>");
}

TEST(GetText, ChangesEveryBracketOnceOnePairIsThere) {
  EXPECT_EQ(Text("<a <b>> c>", {"001", "002"}),
            "<a href=\"z001.txt\">a <a href=\"z002.txt\">b</a></a> c</a>");
  EXPECT_EQ(Text("<a> <b", {"001", "002"}), "<a href=\"z001.txt\">a</a> <a href=\"z002.txt\">b");
  EXPECT_EQ(Text("<>", {"001"}), "<a href=\"z001.txt\"></a>");
}

TEST(GetText, CopiesEverythingElseUnchanged) {
  const std::string odd = "&amp; \"quoted\" \xE9\xA0\0\t"s;
  EXPECT_EQ(Text(odd + "<x>" + odd, {"001"}), odd + "<a href=\"z001.txt\">x</a>" + odd);
}

TEST(GetText, GoesBeyondTheFortyNinthLink) {
  Global global;
  std::string text;
  std::string expected;
  for (int link = 101; link <= 160; ++link) {
    const std::string number = std::to_string(link);
    global.Page(1) += "<linkto>" + number + "</linkto>";
    text += "<x>";
    expected += "<a href=\"z" + number + ".txt\">x</a>";
  }
  EXPECT_EQ(GetText(global, text, 1), expected);
}

std::string Music(const std::string& record, std::string_view reference = "M1") {
  Global global;
  global.MusicLink(1) = record;
  return GetMusic(global, reference);
}

TEST(GetMusic, AsksForTheFieldsThatAreFilled) {
  EXPECT_EQ(Music("<song>Blue</song><artist>Kim Low</artist>"), "ipod:music?song=Blue&artist=Kim Low");
  EXPECT_EQ(Music("<playlist>Road</playlist>"), "ipod:music?playlist=Road");
}

TEST(GetMusic, HasAFixedOrderOfFields) {
  EXPECT_EQ(Music("<notes>n</notes><playlist>P</playlist><genre>G</genre><artist>Ar</artist>"
                  "<composer>C</composer><album>Al</album><song>S</song>"),
            "ipod:music?song=S&album=Al&composer=C&artist=Ar&genre=G&playlist=P");
}

TEST(GetMusic, NeverAsksForTheNotes) {
  EXPECT_EQ(Music("<notes>mine</notes>"), "\\");
}

TEST(GetMusic, LeadsToTheNotesMenuForAnEmptyRecord) {
  EXPECT_EQ(Music(""), "\\");
  EXPECT_EQ(Music("<song></song>"), "\\");
  EXPECT_EQ(Music("x", "M100"), "\\");
}

TEST(GetMusic, LeadsToTheNotesMenuForAReferenceOfOneCharacter) {
  Global global;
  global.MusicLinks.fill("<song>S</song>");
  for (const char* reference : {"", "M", "1"}) EXPECT_EQ(GetMusic(global, reference), "\\") << reference;
}

TEST(GetMusic, WritesValuesUnchanged) {
  EXPECT_EQ(Music("<song>a&b=c?d e\"<f>\\\xE9</song>"), "ipod:music?song=a&b=c?d e\"<f>\\\xE9");
}

TEST(GetMusic, UsesTheFirstElementOfAField) {
  EXPECT_EQ(Music("<song>A</song><song>B</song>"), "ipod:music?song=A");
}

TEST(GetMusic, ReadsTheNumberAfterTheFirstCharacter) {
  for (const char* reference : {"M1", "m1", "M001", "M 1", "M1x", "M1.2", "x1", "01"}) {
    EXPECT_EQ(Music("<song>S</song>", reference), "ipod:music?song=S") << reference;
  }
  for (const char* reference : {"M2", "M10", "M0", "Mary", "MM1", "000", "M."}) {
    EXPECT_EQ(Music("<song>S</song>", reference), "\\") << reference;
  }
}

TEST(GetMusic, TakesRecords0To100) {
  Global global;
  global.MusicLink(0) = "<song>first</song>";
  global.MusicLink(100) = "<song>last</song>";
  EXPECT_EQ(GetMusic(global, "M0"), "ipod:music?song=first");
  EXPECT_EQ(GetMusic(global, "000"), "ipod:music?song=first");
  EXPECT_EQ(GetMusic(global, "Mary"), "ipod:music?song=first");
  EXPECT_EQ(GetMusic(global, "M100"), "ipod:music?song=last");
}

TEST(GetMusic, RefusesNumbersOutside0To100) {
  for (const char* reference : {"M101", "M-1", "M99999999999", "M1e9", "--5"}) {
    EXPECT_THAT([&] { Music("", reference); },
                testing::ThrowsMessage<RunTimeError>(testing::HasSubstr(reference)));
  }
}

}  // namespace
}  // namespace tavrel::test
