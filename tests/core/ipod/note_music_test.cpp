#include <gtest/gtest.h>
#include <string>

#include "core/ipod/imported_note.h"
#include "core/ipod/note_reader.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

class NoteMusicTest : public testing::Test {
 protected:
  /// Adds so many music links that differ.
  void Add(int count) {
    for (int i = 1; i <= count; ++i) Reader.ProcessMusic("song=S" + std::to_string(i));
  }

  /// The only record that an address makes.
  std::string RecordFor(const std::string& address) {
    EXPECT_EQ(Reader.ProcessMusic(address), "M1");
    EXPECT_EQ(State.MusicLink(2), "");
    return State.MusicLink(1);
  }

  Global State;
  NoteReader Reader{State, {"a.txt"}, CodePage::Windows1252()};
};

TEST_F(NoteMusicTest, WritesTheFieldsInTheirOrder) {
  EXPECT_EQ(RecordFor("ipod:music?artist=Kim&song=Blue&genre=Pop"),
            "<song>Blue</song><artist>Kim</artist><genre>Pop</genre>");
}

TEST_F(NoteMusicTest, ReadsEveryField) {
  EXPECT_EQ(RecordFor("ipod:music?playlist=f&genre=e&artist=d&composer=c&album=b&song=a"),
            "<song>a</song><album>b</album><composer>c</composer><artist>d</artist><genre>e</genre>"
            "<playlist>f</playlist>");
}

TEST_F(NoteMusicTest, EndsAValueAtTheNextAmpersand) {
  EXPECT_EQ(RecordFor("song=a=b?c%20d+e &artist=&album"), "<song>a=b?c%20d+e </song><artist></artist>");
}

TEST_F(NoteMusicTest, FindsAKeyAnywhere) {
  EXPECT_EQ(RecordFor("ipod:mysong=album=x&yartist=Kim"),
            "<song>album=x</song><album>x</album><artist>Kim</artist>");
}

TEST_F(NoteMusicTest, TakesTheFirstOfTwoEqualKeys) {
  EXPECT_EQ(RecordFor("song=A&song=B"), "<song>A</song>");
}

TEST_F(NoteMusicTest, TakesAnEmptyValue) {
  EXPECT_EQ(RecordFor("song="), "<song></song>");
  EXPECT_EQ(Reader.ProcessMusic("song=x"), "M2");
}

TEST_F(NoteMusicTest, ReadsKeysInSmallLettersOnly) {
  EXPECT_EQ(RecordFor("ipod:music?SONG=a&Artist=b"), "");
}

TEST_F(NoteMusicTest, LeavesTheRecordFreeWithoutAKey) {
  EXPECT_EQ(RecordFor("ipod:music?"), "");
  EXPECT_EQ(Reader.ProcessMusic("song=a"), "M1");
  EXPECT_EQ(Reader.ProcessMusic("ipod:"), "M2");
  EXPECT_EQ(Reader.ProcessMusic("song=b"), "M2");
  EXPECT_EQ(State.MusicLink(1), "<song>a</song>");
  EXPECT_EQ(State.MusicLink(2), "<song>b</song>");
}

TEST_F(NoteMusicTest, TurnsALineBreakOfAValueIntoABlank) {
  EXPECT_EQ(RecordFor("song=a\r\nb\r\n"), "<song>a b </song>");
  EXPECT_EQ(Reader.ProcessMusic("song=a b "), "M1");
}

TEST_F(NoteMusicTest, KeepsOneRecordForLettersOfEitherCase) {
  EXPECT_EQ(Reader.ProcessMusic("ipod:music?song=Blue&artist=Kim"), "M1");
  EXPECT_EQ(Reader.ProcessMusic("song=Red"), "M2");
  EXPECT_EQ(Reader.ProcessMusic("song=BLUE&artist=kim"), "M1");
  EXPECT_EQ(Reader.ProcessMusic("ipod:artist=KIM&song=blue"), "M1");
  EXPECT_EQ(State.MusicLink(1), "<song>Blue</song><artist>Kim</artist>");
  EXPECT_EQ(State.MusicLink(2), "<song>Red</song>");
  EXPECT_EQ(State.MusicLink(3), "");
}

TEST_F(NoteMusicTest, KnowsTheCaseOfAccentedLetters) {
  EXPECT_EQ(Reader.ProcessMusic("song=caf\xE9"), "M1");
  EXPECT_EQ(Reader.ProcessMusic("song=CAF\xC9"), "M1");
  EXPECT_EQ(Reader.ProcessMusic("song=CAF\xC8"), "M2");
}

TEST_F(NoteMusicTest, KeepsRecordsThatDifferApart) {
  EXPECT_EQ(Reader.ProcessMusic("song=a"), "M1");
  EXPECT_EQ(Reader.ProcessMusic("song=a&artist="), "M2");
  EXPECT_EQ(Reader.ProcessMusic("ipod:album=a"), "M3");
  EXPECT_EQ(Reader.ProcessMusic("song=a "), "M4");
  EXPECT_EQ(Reader.ProcessMusic("song=a&artist="), "M2");
}

TEST_F(NoteMusicTest, HoldsAHundredAndNoMore) {
  Add(99);
  EXPECT_EQ(Reader.ProcessMusic("song=s7"), "M7");
  EXPECT_EQ(Reader.ProcessMusic("ipod:"), "M100");
  EXPECT_EQ(Reader.ProcessMusic("song=last"), "M100");
  EXPECT_EQ(State.MusicLink(100), "<song>last</song>");
  EXPECT_THROW(Reader.ProcessMusic("song=another"), RunTimeError);
  EXPECT_EQ(State.MusicLink(99), "<song>S99</song>");
  EXPECT_EQ(State.MusicLink(100), "<song>last</song>");
}

TEST_F(NoteMusicTest, NeedsAFreeRecordEvenForWhatItHolds) {
  Add(100);
  EXPECT_THROW(Reader.ProcessMusic("song=S7"), RunTimeError);
  EXPECT_THROW(Reader.ProcessMusic("ipod:"), RunTimeError);
}

TEST_F(NoteMusicTest, SharesRecordsAmongNotes) {
  Reader.ProcessInput("<a href=\"ipod:music?song=Blue&artist=Kim\">x</a>\r\n", 1);
  Reader.ProcessInput("<a href=\"song=BLUE&artist=kim\">y</a><a href=\"song=a<br>b\">z</a>\r\n", 2);
  EXPECT_EQ(State.Page(1), TextAndLinks("x\r\n", LinkTo("M1")));
  EXPECT_EQ(State.Page(2), TextAndLinks("yz\r\n", LinkTo("M1") + LinkTo("M2")));
  EXPECT_EQ(State.MusicLink(1), "<song>Blue</song><artist>Kim</artist>");
  EXPECT_EQ(State.MusicLink(2), "<song>a b</song>");
}

}  // namespace
}  // namespace tavrel::test
