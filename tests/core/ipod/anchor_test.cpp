#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "core/ipod/anchor_cutter.h"
#include "core/ipod/imported_note.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

const std::string kToB = "<a href=\"b.txt\">";
const std::string kToC = "<a href=\"c.txt\">";
const std::string kLinksToBAndC = LinkTo("002") + LinkTo("003");

TEST(AnchorCutter, GivesTheTargetsAndThenTheText) {
  const std::string note = "a" + kToB + "x</a>b<a href=\"\">y</a>c";
  AnchorCutter anchors(note);
  EXPECT_EQ(anchors.CutNext(), "b.txt");
  EXPECT_EQ(anchors.CutNext(), "");
  EXPECT_EQ(anchors.CutNext(), std::nullopt);
  EXPECT_EQ(anchors.Text(), "axbyc");
}

TEST(AnchorCutter, GivesATextWithoutAnchorsAsItIs) {
  for (const char* text : {"", "x", "<a hre", "</a>", "a=b=c</a>", "<a href"}) {
    AnchorCutter anchors(text);
    EXPECT_EQ(anchors.CutNext(), std::nullopt);
    EXPECT_EQ(anchors.Text(), text);
  }
}

TEST(Anchors, LeaveTheirTextAndBecomeLinksWithoutText) {
  EXPECT_EQ(RecordOf("See " + kToB + "x</a> now"), TextAndLinks("See x now", LinkTo("002")));
  EXPECT_EQ(RecordOf(kToC + "x</a>" + kToB + "y</a><a href=\"\\\">Notes menu</a>"),
            TextAndLinks("xyNotes menu", LinkTo("003") + LinkTo("002") + LinkTo("001")));
  EXPECT_EQ(RecordOf(kToB + "</a>"), TextAndLinks("", LinkTo("002")));
}

TEST(Anchors, MayBeNested) {
  EXPECT_EQ(RecordOf(kToB + "x" + kToC + "y</a>z</a>"), TextAndLinks("xyz", kLinksToBAndC));
  EXPECT_EQ(RecordOf(kToB + kToC + "</a></a>"), TextAndLinks("", kLinksToBAndC));
}

TEST(Anchors, TakeNoClosingTagInFrontOfThem) {
  EXPECT_EQ(RecordOf("</a>" + kToB + "x</a>"), TextAndLinks("</a>x", LinkTo("002")));
  EXPECT_EQ(RecordOf(kToB + "x</a></a>"), TextAndLinks("x</a>", LinkTo("002")));
  EXPECT_THROW(RecordOf("</a>" + kToB + "x"), RunTimeError);
}

TEST(Anchors, MayAppearByCutting) {
  EXPECT_EQ(RecordOf("<a hr" + kToB + "ef=\"c.txt\">y</a></a>"), TextAndLinks("y", kLinksToBAndC));
  EXPECT_EQ(RecordOf(kToB + "x<a hr</a>ef=\"c.txt\">y</a>"), TextAndLinks("xy", kLinksToBAndC));
  EXPECT_EQ(RecordOf("<" + kToB + "a href=\"c.txt\">y</a></a>"), TextAndLinks("y", kLinksToBAndC));
  EXPECT_EQ(RecordOf("<a href" + kToB + "</a>=\"c.txt\">y</a>"), TextAndLinks("y", kLinksToBAndC));
}

TEST(Anchors, MayAppearFromMoreThanTwoPieces) {
  EXPECT_EQ(RecordOf("<a" + kToB + " hr" + kToC + "</a>ef</a>=\"c.txt\">y</a>"),
            TextAndLinks("y", kLinksToBAndC + LinkTo("003")));
}

TEST(Anchors, TakeAClosingTagThatAppearsByCutting) {
  EXPECT_EQ(RecordOf(kToB + kToC + "x</</a>a>"), TextAndLinks("x", kLinksToBAndC));
}

TEST(Anchors, TakeNoClosingTagThatBeginsInFrontOfThem) {
  // Cutting the second opening makes "</a>" out of "</" and "a>", but it begins before the anchor.
  EXPECT_EQ(RecordOf(kToB + "x</" + kToC + "a>y</a></a>"), TextAndLinks("x</a>y", kLinksToBAndC));
  EXPECT_THROW(RecordOf(kToB + "x</" + kToC + "a>y</a>"), RunTimeError);
  // The first cut makes "</a>" too, whose "<" then goes as the end of the second opening.
  EXPECT_EQ(RecordOf(kToB + "<a href=\"c.txt\"<</a>/a>z</a>"), TextAndLinks("/a>z", kLinksToBAndC));
}

TEST(Anchors, HaveATargetUpToTheNextQuoteWhateverItHolds) {
  EXPECT_EQ(RecordOf("<a href=\"<a href=\">x</a>"), TextAndLinks("x", LinkTo("001")));
  EXPECT_EQ(RecordOf("<a href=\"</a>\">x</a>"), TextAndLinks("x", LinkTo("001")));
  EXPECT_EQ(RecordOf("<a href=\"b.txt\r\n\">x</a>"), TextAndLinks("x", LinkTo("001")));
  EXPECT_EQ(RecordOf("<a href=\"b.txt\0\">x</a>"s), TextAndLinks("x", LinkTo("001")));
  EXPECT_EQ(RecordOf("<a href=\"b.</p>txt\">x</a>"), TextAndLinks("x", LinkTo("002")));
}

TEST(Anchors, MayHaveATargetThatGoesAcrossACut) {
  // The first anchor takes the "</a>" in the middle of the second one's target.
  EXPECT_EQ(RecordOf(kToB + "<a href=\"c.</a>txt\">x</a>"), TextAndLinks("x", kLinksToBAndC));
}

TEST(Anchors, EndTheirOpeningOneCharacterBehindTheClosingQuote) {
  EXPECT_EQ(RecordOf("<a href=\"b.txt\" class=\"c\">x</a>"), TextAndLinks("class=\"c\">x", LinkTo("002")));
  EXPECT_EQ(RecordOf("<a href=\"\"\">x</a>"), TextAndLinks(">x", LinkTo("001")));
}

TEST(Anchors, HaveTheirTargetBehindAnyCharacter) {
  EXPECT_EQ(RecordOf("<a href='b.txt\">x</a>"), TextAndLinks("x", LinkTo("002")));
  EXPECT_EQ(RecordOf("<a href=b.txt\">x</a>"), TextAndLinks("x", LinkTo("001")));
}

TEST(Anchors, NeedAClosingQuote) {
  for (const char* cut : {"<a href=", "<a href=\"", "<a href=\"b.txt", "<a href=b.txt>x</a>",
                          "<a href=\">x</a>", "<a href=\"b.txt>x</a>"}) {
    EXPECT_THROW(RecordOf(cut), RunTimeError) << cut;
  }
}

TEST(Anchors, NeedAClosingTag) {
  for (const char* cut : {"<a href=\"b.txt\"", "<a href=\"b.txt\">", "<a href=\"b.txt\">x",
                          "<a href=\"b.txt\">x</a", "<a href=\"b.txt\">x</A>", "<a href=\"b.txt\">x</ a>",
                          "<a href=\"</a>\">x", "<a href=\"b.txt\"></a><a href=\"c.txt\">"}) {
    EXPECT_THROW(RecordOf(cut), RunTimeError) << cut;
  }
}

TEST(Anchors, TellMusicFromNotes) {
  EXPECT_EQ(RecordOf("<a href=\"song=x\">y</a>"), TextAndLinks("y", LinkTo("M1")));
  EXPECT_EQ(RecordOf("<a href=\"ipod:music?genre=x\">y</a>"), TextAndLinks("y", LinkTo("M1")));
  EXPECT_EQ(RecordOf("<a href=\"ipod:\">y</a>"), TextAndLinks("y", LinkTo("M1")));
  for (const char* target :
       {"Song=x", "IPOD:music?song=x", " song=x", "ipod", "song", "music?song=x", "album=x"}) {
    EXPECT_EQ(RecordOf("<a href=\"" + std::string(target) + "\">y</a>"), TextAndLinks("y", LinkTo("001")));
  }
}

TEST(Anchors, MayBeManySideBySideOrNested) {
  std::string side_by_side;
  std::string openings;
  std::string closings;
  std::string links;
  for (int i = 0; i < 10'000; ++i) {
    side_by_side += kToB + "x</a>";
    openings += kToB + "x";
    closings += "</a>";
    links += LinkTo("002");
  }
  const std::string expected = TextAndLinks(std::string(10'000, 'x'), links);
  EXPECT_EQ(RecordOf(side_by_side), expected);
  EXPECT_EQ(RecordOf(openings + closings), expected);
}

}  // namespace
}  // namespace tavrel::test
