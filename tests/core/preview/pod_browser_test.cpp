#include "core/preview/pod_browser_test.h"

#include <gtest/gtest.h>
#include <string>

// Walks through a document.

namespace tavrel::test {
namespace {

TEST_F(PodBrowserTest, BeginsAtAnEmptyNotesMenu) {
  browser_ = PodBrowser(LayoutOf(12, kRows));
  ExpectShown("", 0);
  Turn(1);
  Turn(-2);
  ExpectPress(0);
  browser_.Menu();
  ExpectShown("", 0);
}

TEST_F(PodBrowserTest, TheNotesMenuListsTheDocument) {
  ExpectShown(">-Home|Three|Two", 0);
  Turn(1);
  ExpectShown("-Home|>Three|Two", 0);
  Turn(2);
  Turn(-1);
  ExpectShown("-Home|>Three|Two", 0);
}

TEST_F(PodBrowserTest, TheNotesMenuLeadsToAPageAndBack) {
  Turn(2);
  ExpectPress(2);
  ExpectShown("Two|a|b|c|d", 2);
  browser_.Menu();
  ExpectShown("-Home|Three|>Two", 0);
  browser_.Menu();
  ExpectShown("-Home|Three|>Two", 0);
}

TEST_F(PodBrowserTest, StartsAtAPageWithTheNotesMenuBeforeIt) {
  browser_.Start(3);
  ExpectShown("Three|see [it]|{it}", 3);
  browser_.Menu();
  ExpectShown("-Home|>Three|Two", 0);
}

TEST_F(PodBrowserTest, StartingForgetsTheWayHere) {
  GoToTheEndOfPageTwo();
  browser_.Start(2);
  ExpectShown("Two|a|b|c|d", 2);
  browser_.Menu();
  ExpectShown("-Home|Three|>Two", 0);
}

TEST_F(PodBrowserTest, StartingAtAnEmptyPageSaysSo) {
  browser_.Start(500);
  ExpectShown(std::string("z500.txt") + kEmptyPage, 500);
  Turn(1);
  Turn(-1);
  ExpectPress(0);
  browser_.Menu();
  ExpectShown(">-Home|Three|Two", 0);
}

TEST_F(PodBrowserTest, TheWheelGoesThroughTheLinks) {
  browser_.Start(1);
  ExpectShown("-Home|Hello|[two]|{three}", 1);
  Turn(1);
  ExpectShown("-Home|Hello|{two}|[three]", 1);
  Turn(1);
  ExpectShown("-Home|Hello|{two}|[three]", 1);
  Turn(-3);
  ExpectShown("-Home|Hello|[two]|{three}", 1);
}

TEST_F(PodBrowserTest, PressingFollowsTheCurrentLink) {
  browser_.Start(1);
  Turn(1);
  ExpectPress(3);
  ExpectShown("Three|see [it]|{it}", 3);
}

TEST_F(PodBrowserTest, PressingFollowsALinkInTheText) {
  browser_.Start(3);
  ExpectPress(2);
  ExpectShown("Two|a|b|c|d", 2);
}

TEST_F(PodBrowserTest, PressingWithoutALinkOnTheScreenDoesNothing) {
  browser_.Start(2);
  ExpectPress(0);
  ExpectShown("Two|a|b|c|d", 2);
  browser_.Menu();
  ExpectShown("-Home|Three|>Two", 0);
}

TEST_F(PodBrowserTest, ALinkToAPageWithoutANoteLeadsNowhere) {
  for (const char* target : {"005", "1000", "2", "0002", "002x", "1001", "99999999999"}) {
    SCOPED_TRACE(target);
    StartAtLinkTo(target);
    ExpectPress(0);
    ExpectShown("Nine|x|[go]", 9);
  }
}

TEST_F(PodBrowserTest, ALinkToItsOwnPageIsAStepLikeAnyOther) {
  StartAtLinkTo("009");
  ExpectPress(9);
  browser_.Menu();
  ExpectShown("Nine|x|[go]", 9);
  browser_.Menu();
  ExpectShown("-Home|>Nine|Three|Two", 0);
}

TEST_F(PodBrowserTest, AddressesThatNoPageHasLeadNowhere) {
  for (const char* address : {"", "z", "z002", "x002.txt", "z2.txt", "z002.txt.txt", "z000.txt", "z-02.txt",
                              "ipod:music", "ipod:music?", "\\\\"}) {
    SCOPED_TRACE(address);
    SetPage(9, "Nine", std::string("> <a href=\"") + address + "\">own</a>", "");
    Update();
    browser_.Start(9);
    ExpectPress(0);
    ExpectShown("Nine|> [own]", 9);
    browser_.Menu();
    ExpectShown("-Home|>Nine|Three|Two", 0);
  }
}

TEST_F(PodBrowserTest, ALinkWithoutATargetLeadsToTheNotesMenuAndEndsTheWay) {
  // Page 000 is a music link, and so is whatever does not begin with a number; these name no music.
  for (const char* target : {"000", "M2", "M", "Mary"}) {
    SCOPED_TRACE(target);
    StartAtLinkTo(target);
    ExpectPress(0);
    ExpectShown("-Home|>Nine|Three|Two", 0);
    browser_.Menu();
    ExpectShown("-Home|>Nine|Three|Two", 0);
  }
}

TEST_F(PodBrowserTest, TheLinkToTheNotesMenuIsALinkLikeThat) {
  Update({.NotesMenuLink = true});
  browser_.Start(1);
  ExpectShown("-Home|Hello|[two]|{three}|{Notes menu}", 1);
  Turn(2);
  ExpectPress(0);
  ExpectShown(">-Home|Three|Two", 0);
}

TEST_F(PodBrowserTest, MusicTakesTheScreenUntilMenu) {
  StartAtLinkTo("M1");
  ExpectPress(0, "song Blue, artist Kim");
  ExpectShown("Now Playing|song Blue, artist Kim", 0);
  Turn(1);
  Turn(-1);
  ExpectPress(0);
  ExpectShown("Now Playing|song Blue, artist Kim", 0);
  browser_.Menu();
  ExpectShown("Nine|x|[go]", 9);
}

TEST_F(PodBrowserTest, MusicInTheBackgroundLeavesTheNoteOnTheScreen) {
  StartAtLinkTo("M1", {.BackgroundMusic = true});
  ExpectPress(0, "song Blue, artist Kim");
  ExpectShown("Nine|x|[go]", 9);
  browser_.Menu();
  ExpectShown("-Home|>Nine|Three|Two", 0);
}

TEST_F(PodBrowserTest, ThePagesOwnMusicPlaysToo) {
  document_->MusicLink(7) = "<playlist>a=b</playlist>";
  SetPage(9, "Nine", "x", "");
  document_->Page(9) += "<music>Listen</music><music>M7</music>";
  Update();
  browser_.Start(9);
  ExpectShown("Nine|[Listen]|x", 9);
  ExpectPress(0, "playlist a=b");
}

TEST_F(PodBrowserTest, MenuGoesBackStepByStepToWhereEachNoteWasLeft) {
  GoToTheEndOfPageTwo();
  ExpectPress(1);
  Turn(1);
  ExpectPress(3);
  browser_.Menu();
  ExpectShown("-Home|Hello|{two}|[three]", 1);
  browser_.Menu();
  ExpectShown("Two|c|d|e|[home]", 2);
  browser_.Menu();
  ExpectShown("-Home|Hello|[two]|{three}", 1);
  browser_.Menu();
  ExpectShown(">-Home|Three|Two", 0);
}

TEST_F(PodBrowserTest, ANoteThatIsComeToAgainBeginsAtItsTop) {
  GoToTheEndOfPageTwo();
  ExpectPress(1);
  ExpectPress(2);
  ExpectShown("Two|a|b|c|d", 2);
}

}  // namespace
}  // namespace tavrel::test
