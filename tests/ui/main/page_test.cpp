#include <QSignalSpy>
#include <QTimer>

#include "support/window_test.h"
#include "ui/controls/length_bar.h"

namespace tavrel::test {
namespace {

class PageTest : public WindowTest {
 protected:
  int BarAfterOneTick() {
    QSignalSpy ticks(&Find<QTimer>(Window(), "Timer1"), &QTimer::timeout);
    EXPECT_TRUE(ticks.wait());
    return Find<LengthBar>(Window(), "LengthBar").Width();
  }
};

TEST_F(PageTest, FieldsAreStoredInTheOrderTitleNoteTextLinksMusic) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 4);
  TypeInto(MusicText(), "C");
  TypeInto(MusicLink(), "M1");
  TypeInto(LinkText(), "L");
  TypeInto(LinkTarget(), "2");
  TypeInto(Body(), "B");
  TypeInto(Note(), "N");
  TypeInto(Title(), "T");
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(
      State.Pages[4],
      "<title>T</title><note>N</note><text>B</text><link><linktext>L</linktext><linkto>002</linkto></link>"
      "<music>C</music><music>M1</music>");
}

TEST_F(PageTest, TheMusicLinkIsStoredInCapitals) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(MusicText(), "cap");
  TypeInto(MusicLink(), "m3");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>one</text><music>cap</music><music>M3</music>");
}

TEST_F(PageTest, MusicWithoutItsTextIsNotStoredButTextWithoutMusicIs) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(MusicLink(), "M3");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>one</text>");
  TypeInto(MusicText(), "cap");
  ClickRow(PagesGrid(), 3);
  EXPECT_EQ(State.Pages[2], "<title>B</title><text>two</text><music>cap</music><music></music>");
}

TEST_F(PageTest, OnlyBlanksAreTrimmed) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "  \nx\n ");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>\r\nx\r\n</text>");
}

TEST_F(PageTest, ABodyOfBlanksGoesAndOneOfLineBreaksStays) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "   ");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>A</title>");
  TypeInto(Body(), "\n\n");
  ClickRow(PagesGrid(), 3);
  EXPECT_EQ(State.Pages[2], "<title>B</title><text>\r\n\r\n</text>");
}

TEST_F(PageTest, TheLengthBarFollowsTheTextUpToItsFullWidth) {
  OpenDocument("Trio.dat", "\r\n 1 ,<text>" + std::string(5000, 'x') + "</text>\r\n 2 ,<text>" +
                               std::string(120, 'x') + "</text>\r\n");
  EXPECT_EQ(BarAfterOneTick(), 4000);
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(BarAfterOneTick(), 120);
}

TEST_F(PageTest, TheLengthBarCountsALineBreakAsTwoCharacters) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "ab\ncd");
  EXPECT_EQ(BarAfterOneTick(), 6);
}

TEST_F(PageTest, TargetListsOfferPagesThenMusicLinks) {
  OpenDocument("Songs.dat", kSongs);
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M1", "M3"}));
  EXPECT_EQ(MusicLink().Items(), (QStringList{"M1", "M3"}));
  EXPECT_EQ(LinkTarget().Bytes(), "002");
  EXPECT_EQ(MusicLink().Bytes(), "M1");
}

TEST_F(PageTest, AHundredthMusicLinkIsOfferedWithoutLeadingZeros) {
  OpenDocument("Trio.dat", " 7 ,<song>a</song>\r\n 100 ,<song>b</song>\r\n\r\n 1 ,<text>x</text>\r\n");
  EXPECT_EQ(MusicLink().Items(), (QStringList{"M7", "M100"}));
}

TEST_F(PageTest, APageMadeByLeavingItIsOfferedFromTheNextPageOn) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 9);
  TypeInto(Body(), "nine");
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "003"}));
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "003", "009"}));
}

TEST_F(PageTest, RefillingTheListsLeavesEmptyFieldsEmpty) {
  OpenDocument("Trio.dat", " 1 ,<song>a</song>\r\n\r\n 1 ,<text>x</text>\r\n");
  EXPECT_EQ(LinkTarget().Bytes(), "");
  EXPECT_EQ(MusicLink().Bytes(), "");
}

TEST_F(PageTest, TypingInATargetListNeitherCompletesNorAddsAnEntry) {
  OpenDocument("Songs.dat", kSongs);
  TypeInto(LinkTarget(), "m3\n");
  EXPECT_EQ(LinkTarget().Bytes(), "m3");
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M1", "M3"}));
}

TEST_F(PageTest, FieldsHaveTheirTips) {
  EXPECT_EQ(Title().toolTip(), "iPod displays page titles instead of filenames");
  EXPECT_EQ(Note().toolTip(), "Notes are not published");
  EXPECT_EQ(LinkText().toolTip(), "The text that is linked");
  EXPECT_EQ(MusicText().toolTip(), "The text that is linked");
  EXPECT_EQ(LinkTarget().toolTip(), "Page or music");
  EXPECT_EQ(MusicLink().toolTip(), "Music link");
}

TEST_F(PageTest, StoringAVisitedTemplatePageDropsItsEmptyLinkBlock) {
  OpenDocument("Trio.dat", "\r\n 1 ,<title>T</title><text>x</text><note>n</note><link></link>\r\n");
  EXPECT_EQ(Save(), "\r\n 1 ,<title>T</title><note>n</note><text>x</text>\r\n");
}

}  // namespace
}  // namespace tavrel::test
