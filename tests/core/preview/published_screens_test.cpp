#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/ipod/note_writer.h"
#include "core/preview/note_screen.h"
#include "core/preview/screen_text.h"

// What the device shows of pages as they are published, odd ones too, on a screen of five lines that are
// sixteen letters wide.

namespace tavrel::test {
namespace {

constexpr int kWide = 16;
constexpr int kHigh = 5;

std::string LinkRow(const std::string& words, const std::string& target) {
  return "<linktext>" + words + "</linktext><linkto>" + target + "</linkto>";
}

struct PublishedExample {
  const char* Name;
  std::string Text;
  std::string Links;
  std::string Screen;
  std::string Addresses;  ///< of all links, a blank behind each
  int Turns = 0;          ///< of the wheel
};

const std::string kIt = LinkRow("it", "002");
const std::string kTwo = LinkRow("x", "002") + LinkRow("y", "003");

NoteScreen PublishedScreen(const std::string& record, const PublishOptions& options = {}) {
  const auto document = std::make_unique<Global>();
  document->MusicLink(1) = "<song>Blue</song>";
  document->MusicLink(2) = "<song>a\"b</song>";
  document->Page(7) = record;
  return {ReadNote(NoteText(*document, 7, options)), kWide, kHigh, LetterWidth};
}

std::string AddressesOf(const NoteScreen& screen) {
  std::string addresses;
  for (const NoteLink& link : screen.Shown().Links) addresses += link.Address + " ";
  return addresses;
}

class PublishedPage : public testing::TestWithParam<PublishedExample> {};

TEST_P(PublishedPage, IsShown) {
  const PublishedExample& page = GetParam();
  NoteScreen screen =
      PublishedScreen("<title>T</title><text>" + page.Text + "</text><link>" + page.Links + "</link>");
  for (int turn = 0; turn < page.Turns; ++turn) screen.TurnForward();
  EXPECT_EQ(ScreenText(screen, kHigh), page.Screen);
  EXPECT_EQ(AddressesOf(screen), page.Addresses);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, PublishedPage,
    testing::Values(
        PublishedExample{"LongLine", "one two three four", "", "T|one two three |four", ""},
        PublishedExample{"LongWord", "abcdefghijklmnopqrstuvwxyz", "", "T|abcdefghijklmnop|qrstuvwxyz", ""},
        PublishedExample{"LineThatJustFits", "abcdefghijklmnop", "", "T|abcdefghijklmnop", ""},
        PublishedExample{"BlankThatDoesNotFitAtTheEnd", "abcdefghijklmnop \r\nx", "", "T|abcdefghijklmnop |x",
                         ""},
        PublishedExample{"NoText", "", kIt, "T||[it]", "z002.txt "},
        PublishedExample{"LineEndAtTheEnd", "a\r\n", kIt, "T|a||[it]", "z002.txt "},
        PublishedExample{"LinkOnTwoLines", "see <the very long words> x", kIt,
                         "T|see [the very |long words] x|{it}", "z002.txt z002.txt "},
        PublishedExample{"LinkOverALineEnd", "<a\r\nb> c", kIt, "T|[a|b] c|{it}", "z002.txt z002.txt "},
        PublishedExample{"NotYetAtTheLink", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n<g>", kIt, "T|b|c|d|e|f",
                         "z002.txt z002.txt ", 1},
        PublishedExample{"AtTheLink", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n<g>", kIt, "T|c|d|e|f|[g]",
                         "z002.txt z002.txt ", 2},
        PublishedExample{"ScrolledOn", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n<g>", kIt, "T|d|e|f|[g]|{it}",
                         "z002.txt z002.txt ", 3},
        PublishedExample{"AtTheLastLink", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n<g>", kIt, "T|d|e|f|{g}|[it]",
                         "z002.txt z002.txt ", 4},
        PublishedExample{"BeyondTheLastLink", "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\n<g>", kIt, "T|d|e|f|{g}|[it]",
                         "z002.txt z002.txt ", 9}),
    [](const auto& page) { return page.param.Name; });

INSTANTIATE_TEST_SUITE_P(
    Brackets, PublishedPage,
    testing::Values(
        PublishedExample{"Link", "See <it> now", kIt, "T|See [it] now|{it}", "z002.txt z002.txt "},
        PublishedExample{"Neighbours", "<a><b>", kTwo, "T|[a]{b}|{x}|{y}",
                         "z002.txt z003.txt z002.txt z003.txt "},
        PublishedExample{"Nested", "<a <b> c> d", kTwo, "T|[a ]{b} c d|{x}|{y}",
                         "z002.txt z003.txt z002.txt z003.txt "},
        PublishedExample{"Unclosed", "<a> and <b", kTwo, "T|[a] and {b}|{x}|{y}",
                         "z002.txt z003.txt z002.txt z003.txt "},
        PublishedExample{"OpenedTwice", "<<a>> b", kTwo, "T|[a] b|{x}|{y}", "z003.txt z002.txt z003.txt "},
        PublishedExample{"ClosedTwice", "<a>> b", kIt, "T|[a] b|{it}", "z002.txt z002.txt "},
        PublishedExample{"NoWords", "a <> b", kIt, "T|a  b|[it]", "z002.txt "},
        PublishedExample{"MoreThanLinks", "<a> <b>", kIt, "T|[a] {b}|{it}", "z002.txt \\ z002.txt "},
        PublishedExample{"TagThatBecomesALink", "a <br> b", kIt, "T|a [br] b|{it}", "z002.txt z002.txt "},
        PublishedExample{"Music", "<a>", LinkRow("p", "M1"), "T|[a]|{p}",
                         "ipod:music?song=Blue ipod:music?song=Blue "},
        PublishedExample{"MusicWithAQuote", "a", LinkRow("p", "M2"), "T|a|[p]", "ipod:music?song=a "}),
    [](const auto& page) { return page.param.Name; });

// Without both brackets in that order a text is published as it stands. A "<" then begins a tag that ends at
// the next ">", which may be that of a link in the list.
INSTANTIATE_TEST_SUITE_P(
    AsTheyStand, PublishedPage,
    testing::Values(PublishedExample{"LoneOpening", "5 < 6", "", "T|5 < 6", ""},
                    PublishedExample{"LoneClosing", "6 > 5", kIt, "T|6 > 5|[it]", "z002.txt "},
                    PublishedExample{"OpeningSwallowsTheNextLink", "5 < 6", kIt, "T|5 it", ""},
                    PublishedExample{"OpeningSwallowsOneLinkOnly", "5 < 6", kTwo, "T|5 x|[y]", "z003.txt "},
                    PublishedExample{"OpeningThatReadsAsALink", "see <a", kIt, "T|see [it]", "z002.txt "},
                    PublishedExample{"OpeningThatReadsAsATitle", "see <title", kIt, "T|see ", ""},
                    PublishedExample{"ClosingFirst", "a > b <c> d", kIt, "T|a > b  d|[it]", "z002.txt "},
                    PublishedExample{"ClosingFirstThenAnOpening", "a > b < c", kIt, "T|a > b it", ""},
                    PublishedExample{"Tags", "> a<br>b <B>c</B>", kIt, "T|> a|b c|[it]", "z002.txt "},
                    PublishedExample{"ALinkOfOnesOwn", "> <A HREF=z009.txt>own</A>", kIt, "T|> [own]|{it}",
                                     "z009.txt z002.txt "},
                    PublishedExample{"AnchorWithoutAnEnd", "> <a href=\"z009.txt\">own", kIt,
                                     "T|> [own]|{it}", "z009.txt z002.txt "},
                    PublishedExample{"EndWithoutAnAnchor", "> a</a> b", kIt, "T|> a b|[it]", "z002.txt "},
                    PublishedExample{"BracketsInWords", "a",
                                     LinkRow("b <i> c", "002") + LinkRow("d > e", "003"),
                                     "T|a|[b  c]|{d > e}", "z002.txt z003.txt "},
                    PublishedExample{"OpeningInWordsSwallowsTheirEnd", "a",
                                     LinkRow("b < c", "002") + LinkRow("d", "003"), "T|a|[b ]|{d}",
                                     "z002.txt z003.txt "}),
    [](const auto& page) { return page.param.Name; });

TEST(PublishedScreen, ATitleMayHoldBrackets) {
  EXPECT_EQ(ScreenText(PublishedScreen("<title>a <b> < c</title><text>x</text>"), kHigh), "a <b> < c|x");
}

TEST(PublishedScreen, APageWithoutATitleHasNone) {
  EXPECT_EQ(ScreenText(PublishedScreen("<text>x</text>"), kHigh), "|x");
}

TEST(PublishedScreen, MusicStandsAboveTheText) {
  const std::string record = "<title>T</title><text>x</text><music>Listen</music><music>M1</music>";
  const NoteScreen screen = PublishedScreen(record);
  EXPECT_EQ(ScreenText(screen, kHigh), "T|[Listen]|x");
  EXPECT_EQ(AddressesOf(screen), "ipod:music?song=Blue ");
}

TEST(PublishedScreen, OptionsAreNotSeenButForTheLink) {
  const std::string record = "<title>T</title><text>x</text>";
  EXPECT_EQ(ScreenText(PublishedScreen(record, {.BackgroundMusic = true}), kHigh), "T|x");
  const NoteScreen screen = PublishedScreen(record, {.NotesMenuLink = true});
  EXPECT_EQ(ScreenText(screen, kHigh), "T|x|[Notes menu]");
  EXPECT_EQ(AddressesOf(screen), "\\ ");
}

}  // namespace
}  // namespace tavrel::test
