#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/ipod/literal_notes.h"
#include "core/ipod/note_reader.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

const std::string kPieces[] = {"<a href=\"",
                               "<a href=",
                               "\">",
                               "</a>",
                               "\"",
                               "<a hr",
                               "ef=",
                               "<",
                               ">",
                               "</",
                               "a>",
                               "/a>",
                               "<a",
                               " href=",
                               "=",
                               "</p>",
                               "<p>",
                               "<br>",
                               "<body>",
                               "</body>",
                               "<b",
                               "ody>",
                               "r>",
                               "p>",
                               "/p>",
                               "<title>",
                               "</title>",
                               "<tit",
                               "le>",
                               "<meta ",
                               "<me",
                               "ta ",
                               "b.txt",
                               "a.txt",
                               "B.TXT",
                               "\\",
                               "ipod:",
                               "song=",
                               "artist=",
                               "&",
                               "Blue",
                               "BLUE",
                               "\xE9",
                               "\xC9",
                               "album=",
                               "\r\n",
                               "\r",
                               "\n",
                               "\0"s,
                               " ",
                               "x",
                               "text",
                               "<A HREF=\"b.txt\">",
                               "ipod:music?",
                               "playlist=",
                               "<link>",
                               "</text>",
                               "</link>",
                               "<a href",
                               "/title>",
                               "ing",
                               "<music>",
                               "<a href=\"b.txt\">",
                               "<a href=\"c.txt\">",
                               "<a href=\"song=Blue\">",
                               "<a href=\"ipod:music?genre=x\">"};

/// More anchors and closing tags than chance would bring, so that most notes have an end.
std::string RandomNote(std::mt19937& random) {
  std::string note;
  for (int left = static_cast<int>(random() % 24); left > 0; --left) {
    switch (random() % 8) {
      case 0:
        note += "<a href=\"" + kPieces[random() % std::size(kPieces)] + "\">";
        break;
      case 1:
      case 2:
        note += "</a>";
        break;
      default:
        note += kPieces[random() % std::size(kPieces)];
    }
  }
  for (int left = static_cast<int>(random() % 4); left > 0; --left) note += "\"</a>";
  return note;
}

/// Reads notes in both ways; what they have in common goes on from note to note.
class TwoReaders {
 public:
  /// False if the note is an error. Both readers must agree.
  bool Read(const std::string& note, int page) {
    const bool is_read = Succeeds<RunTimeError>([&] { reader_.ProcessInput(note, page); });
    EXPECT_EQ(Succeeds<std::runtime_error>([&] { literal_.ProcessInput(note, page); }), is_read) << note;
    if (is_read) {
      EXPECT_EQ(global_.Page(page), literal_.Document.Pages[page]) << note;
    }
    return is_read;
  }

  void ExpectTheSameMusic() const { EXPECT_EQ(ContentsOf(global_).MusicLinks, literal_.Document.MusicLinks); }

 private:
  template <typename Error, typename Action>
  static bool Succeeds(Action action) {
    try {
      action();
    } catch (const Error&) {
      return false;
    }
    return true;
  }

  Global global_;
  const std::vector<std::string> names_ = {"a.txt", "b.txt", "c.txt", "b.txt", "\xE9.txt"};
  NoteReader reader_{global_, names_, CodePage::Windows1252()};
  LiteralReader literal_{names_};
};

TEST(RandomNotes, BecomePagesByTheRules) {
  std::mt19937 random(4);
  int notes = 0;
  int read = 0;
  while (notes < 24'000 && !testing::Test::HasFailure()) {
    TwoReaders readers;
    bool goes_on = true;
    for (int page = 1; goes_on && page <= 40; ++page, ++notes) {
      goes_on = readers.Read(RandomNote(random), page);
      read += goes_on ? 1 : 0;
    }
    readers.ExpectTheSameMusic();
  }
  EXPECT_GT(read, notes / 3);
}

/// Only pieces of anchors, so that cutting makes new ones.
TEST(RandomNotes, LoseTheSameAnchorsByTheRules) {
  const std::string pieces[] = {"<a href=\"b\">", "<a hr", "ef=", "<a href=\"", "\">",
                                "</a>",           "</",    "a>",  "<",          "x"};
  std::mt19937 random(5);
  int read = 0;
  TwoReaders readers;
  for (int round = 0; round < 20'000 && !testing::Test::HasFailure(); ++round) {
    std::string note;
    for (int left = static_cast<int>(random() % 14); left > 0; --left)
      note += pieces[random() % std::size(pieces)];
    for (int left = static_cast<int>(random() % 5); left > 0; --left) note += "</a>";
    read += readers.Read(note, 1) ? 1 : 0;
  }
  EXPECT_GT(read, 5'000);
}

}  // namespace
}  // namespace tavrel::test
