#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/document/document_file.h"
#include "core/ipod/meta_lines.h"
#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

const std::string kMenu = "<a href=\"\\\">Notes menu</a>\r\n";
constexpr PublishOptions kBoth = {.NotesMenuLink = true, .BackgroundMusic = true};

/// The note of one page whose record is given, with no option chosen.
std::string Published(const std::string& record, int page = 2, const PublishOptions& options = {}) {
  Global global;
  global.Page(page) = record;
  return NoteText(global, page, options);
}

std::string LinkPair(const std::string& text, const std::string& target) {
  return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
}

TEST(NoteText, HasEveryLineInItsOrder) {
  Global global;
  ReadDocumentText(kSongs, global);
  EXPECT_EQ(NoteText(global, 1, kBoth), "<title>-Start</title>\r\n" + kMeta + kNow +
                                            "<a href=\"ipod:music?song=Blue&artist=Kim Low\">Play</a>\r\n"
                                            "See <a href=\"z002.txt\">Part two</a>\r\n"
                                            "<a href=\"z002.txt\">Part two</a>\r\n" +
                                            kMenu);
  EXPECT_EQ(NoteText(global, 2, kBoth), "<title>Next</title>\r\n" + kMeta + kNow + "End\r\n" + kMenu);
}

TEST(NoteText, HasSixLinesForAPageWithOneLink) {
  EXPECT_EQ(Published("<title>Start</title><text>See <Part two></text><link>" + LinkPair("Part two", "002") +
                          "</link>",
                      1, kBoth),
            "<title>-Start</title>\r\n" + kMeta + kNow +
                "See <a href=\"z002.txt\">Part two</a>\r\n"
                "<a href=\"z002.txt\">Part two</a>\r\n" +
                kMenu);
}

TEST(NoteText, HasNoOptionalLineUnlessChosen) {
  const std::string record = "<title>T</title><text>B</text>";
  EXPECT_EQ(Published(record), "<title>T</title>\r\n" + kMeta + "B\r\n");
  EXPECT_EQ(Published(record, 2, {.NotesMenuLink = true}), "<title>T</title>\r\n" + kMeta + "B\r\n" + kMenu);
  EXPECT_EQ(Published(record, 2, {.BackgroundMusic = true}), "<title>T</title>\r\n" + kMeta + kNow + "B\r\n");
}

TEST(NoteText, PutsAHyphenBeforeTheFirstPagesTitleWhateverItIs) {
  EXPECT_EQ(Published("<text>B</text>", 1), "<title>-</title>\r\n" + kMeta + "B\r\n");
  EXPECT_EQ(Published("<title>-Start</title>", 1), "<title>--Start</title>\r\n" + kMeta + "\r\n");
  EXPECT_EQ(Published("<text>B</text>", 10), "<title></title>\r\n" + kMeta + "B\r\n");
}

/// A note of so many bytes, of which some are of each of its parts.
std::unique_ptr<Global> DocumentWithNoteOf(std::size_t bytes) {
  auto document = std::make_unique<Global>();
  document->MusicLink(1) = "<song>S</song>";
  const auto page = [](std::size_t words) {
    return "<title>T</title><text><a> " + std::string(words, 'x') + "</text><link>" + LinkPair("b", "M1") +
           LinkPair(std::string(words, 'y'), "002") + "</link>";
  };
  document->Page(2) = page(1);
  const std::size_t least = NoteText(*document, 2, kBoth).size();
  document->Page(2) = page(1 + (bytes - least) / 2);
  return document;
}

TEST(NoteBeginning, IsWhatADeviceReadsAndOneByteMore) {
  for (const unsigned words : {1000U, 4094U, 4095U, 4096U, 4097U, 4098U, 9000U, 100000U}) {
    const auto document = DocumentWithNoteOf(words);
    for (const PublishOptions& options : {PublishOptions(), kBoth})
      EXPECT_EQ(NoteBeginning(*document, 2, options), NoteText(*document, 2, options).substr(0, 4097));
  }
}

TEST(NoteBeginning, OfWhatCannotBePublishedThereIsNone) {
  Global document;
  document.Page(2) = "<text>" + std::string(5000, 'x') + "</text><link>" + LinkPair("b", "M101") + "</link>";
  EXPECT_THROW(NoteBeginning(document, 2, {}), RunTimeError);
}

TEST(NoteBeginning, TakesLittleMemoryHoweverLongTheNoteIs) {
  // The note would have 8,000 times the name of the song: 8 GB.
  Global document;
  document.MusicLink(1) = "<song>" + std::string(1'000'000, 's') + "</song>";
  std::string links;
  for (int link = 0; link < 8000; ++link) links += LinkPair("b", "M1");
  document.Page(2) = "<link>" + links + "</link>";
  EXPECT_EQ(NoteBeginning(document, 2, {}).size(), 4097U);
}

TEST(NoteText, AlwaysHasALineForTheText) {
  EXPECT_EQ(Published("<note>N</note>"), "<title></title>\r\n" + kMeta + "\r\n");
}

TEST(NoteText, KeepsTheLineBreaksOfTheText) {
  EXPECT_EQ(Published("<title>T</title><text>l1\r\nl2\r\n</text>", 4),
            "<title>T</title>\r\n" + kMeta + "l1\r\nl2\r\n\r\n");
}

TEST(NoteText, LeavesTextsWithoutAPairOfBracketsAlone) {
  EXPECT_EQ(Published("<text>a < b</text>"), "<title></title>\r\n" + kMeta + "a < b\r\n");
  EXPECT_EQ(Published("<text>a > b <c></text><link>" + LinkPair("x", "003") + "</link>"),
            "<title></title>\r\n" + kMeta + "a > b <c>\r\n<a href=\"z003.txt\">x</a>\r\n");
}

TEST(NoteText, HasAMusicLineOnlyWithACaption) {
  EXPECT_EQ(Published("<music>Hear</music><music></music>"),
            "<title></title>\r\n" + kMeta + "<a href=\"\\\">Hear</a>\r\n\r\n");
  EXPECT_EQ(Published("<music></music><music>M1</music>"), "<title></title>\r\n" + kMeta + "\r\n");
}

TEST(NoteText, EndsTheLinksAtTheFirstEmptyTarget) {
  EXPECT_EQ(Published("<link>" + LinkPair("a", "002") + LinkPair("b", "") + LinkPair("c", "003") + "</link>"),
            "<title></title>\r\n" + kMeta + "\r\n<a href=\"z002.txt\">a</a>\r\n");
}

TEST(NoteText, EndsTheLinksAtTheFirstEmptyText) {
  EXPECT_EQ(
      Published("<link>" + LinkPair("a", "002") + LinkPair("", "003") + LinkPair("c", "004") + "</link>"),
      "<title></title>\r\n" + kMeta + "\r\n<a href=\"z002.txt\">a</a>\r\n");
}

TEST(NoteText, WritesLinksToPagesAndMusicInTheirOrder) {
  Global global;
  global.MusicLink(7) = "<genre>Jazz</genre>";
  global.Page(2) =
      "<link>" + LinkPair("far", "1000") + LinkPair("hear", "M007") + LinkPair("none", "000") + "</link>";
  EXPECT_EQ(NoteText(global, 2, {}), "<title></title>\r\n" + kMeta +
                                         "\r\n<a href=\"z1000.txt\">far</a>\r\n"
                                         "<a href=\"ipod:music?genre=Jazz\">hear</a>\r\n"
                                         "<a href=\"\\\">none</a>\r\n");
}

TEST(NoteText, WritesMoreThanFortyNineLinks) {
  std::string links;
  std::string expected = "<title></title>\r\n" + kMeta + "\r\n";
  for (int link = 101; link <= 160; ++link) {
    const std::string number = std::to_string(link);
    links += LinkPair("t" + number, number);
    expected += "<a href=\"z" + number + ".txt\">t" + number + "</a>\r\n";
  }
  EXPECT_EQ(Published("<link>" + links + "</link>"), expected);
}

TEST(NoteText, EscapesNothing) {
  const std::string odd = "&amp; \"q\" = \xE9";
  EXPECT_EQ(Published("<title>" + odd + "</title><text>" + odd + "</text><link>" + LinkPair(odd, "001") +
                      "</link><music>" + odd + "</music><music></music>"),
            "<title>" + odd + "</title>\r\n" + kMeta + "<a href=\"\\\">" + odd + "</a>\r\n" + odd +
                "\r\n<a href=\"z001.txt\">" + odd + "</a>\r\n");
}

TEST(NoteText, NeverPublishesTheNote) {
  EXPECT_EQ(Published("<title>T</title><note>secret</note><text>B</text>"),
            "<title>T</title>\r\n" + kMeta + "B\r\n");
}

TEST(NoteText, UsesTheFirstElementOfEachTag) {
  EXPECT_EQ(Published("<title>A</title><title>B</title><text>1</text><text>2</text>"),
            "<title>A</title>\r\n" + kMeta + "1\r\n");
}

TEST(NoteName, HasThePageNumberInThreeDigits) {
  EXPECT_EQ(NoteName(1), "z001.txt");
  EXPECT_EQ(NoteName(42), "z042.txt");
  EXPECT_EQ(NoteName(999), "z999.txt");
}

}  // namespace
}  // namespace tavrel::test
