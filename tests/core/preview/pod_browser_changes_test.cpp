#include <gtest/gtest.h>
#include <string>
#include <variant>

#include "core/preview/pod_browser_test.h"

// The document changes, or the screen, while somebody is on the way.

namespace tavrel::test {
namespace {

TEST_F(PodBrowserTest, ANoteThatGrowsStaysWhereItWasScrolledTo) {
  GoToTheEndOfPageTwo();
  SetPage(2, "Two!", "a\r\nb\r\nc\r\nd\r\ne\r\nf", Link("home", "001"));
  Update();
  ExpectShown("Two!|c|d|e|f", 2);
  Turn(1);
  ExpectShown("Two!|d|e|f|[home]", 2);
}

TEST_F(PodBrowserTest, ANoteThatShrinksShowsItsEnd) {
  GoToTheEndOfPageTwo();
  SetPage(2, "Two", "a\r\nb\r\nc\r\nd", Link("home", "001"));
  Update();
  ExpectShown("Two|b|c|d|[home]", 2);
  SetPage(2, "Two", "a", Link("home", "001"));
  Update();
  ExpectShown("Two|a|[home]", 2);
}

TEST_F(PodBrowserTest, TheCurrentLinkStaysWhileThereIsOne) {
  browser_.Start(1);
  Turn(1);
  SetPage(1, "Home", "Hi <two>!", Link("two", "002") + Link("three", "003"));
  Update();
  ExpectShown("-Home|Hi {two}!|[two]|{three}", 1);
  SetPage(1, "Home", "Hi", Link("two", "002"));
  Update();
  ExpectShown("-Home|Hi|[two]", 1);
  SetPage(1, "Home", "Hi", "");
  Update();
  ExpectShown("-Home|Hi", 1);
}

TEST_F(PodBrowserTest, AnEmptiedNoteComesBackAtItsPlace) {
  GoToTheEndOfPageTwo();
  const Record two = document_->Page(2);
  document_->Page(2).clear();
  Update();
  ExpectShown(std::string("z002.txt") + kEmptyPage, 2);
  ExpectPress(0);
  document_->Page(2) = two;
  Update();
  ExpectShown("Two|c|d|e|[home]", 2);
}

TEST_F(PodBrowserTest, ANoteThatCannotBePublishedSaysWhy) {
  GoToTheEndOfPageTwo();
  const Record two = document_->Page(2);
  SetPage(2, "Two", "a", Link("song", "M101"));
  Update();
  ASSERT_TRUE(std::holds_alternative<ScreenMessage>(browser_.Shown()));
  const ScreenMessage message = std::get<ScreenMessage>(browser_.Shown());
  EXPECT_EQ(message.Title, "z002.txt");
  EXPECT_NE(message.Sentence.find("\"M101\""), std::string::npos) << message.Sentence;
  Turn(1);
  ExpectPress(0);
  EXPECT_EQ(browser_.Page(), 2);
  document_->Page(2) = two;
  Update();
  ExpectShown("Two|c|d|e|[home]", 2);
}

TEST_F(PodBrowserTest, MenuLeadsAwayFromANoteThatCannotBePublished) {
  GoToTheEndOfPageTwo();
  SetPage(2, "Two", "<a>", Link("", "M-1"));
  Update();
  EXPECT_TRUE(std::holds_alternative<ScreenMessage>(browser_.Shown()));
  browser_.Menu();
  ExpectShown("-Home|Hello|[two]|{three}", 1);
}

TEST_F(PodBrowserTest, MenuLeadsToAPageThatWasEmptiedMeanwhile) {
  GoToTheEndOfPageTwo();
  document_->Page(1).clear();
  Update();
  ExpectShown("Two|c|d|e|[home]", 2);
  ExpectPress(0);
  browser_.Menu();
  ExpectShown(std::string("z001.txt") + kEmptyPage, 1);
  browser_.Menu();
  ExpectShown(">Three|Two", 0);
}

TEST_F(PodBrowserTest, OtherOptionsChangeTheNoteThatIsShown) {
  browser_.Start(1);
  Turn(1);
  Update({.NotesMenuLink = true});
  ExpectShown("-Home|Hello|{two}|[three]|{Notes menu}", 1);
  Update();
  ExpectShown("-Home|Hello|{two}|[three]", 1);
}

TEST_F(PodBrowserTest, MusicThatPlaysGoesOnWhenTheDocumentChanges) {
  StartAtLinkTo("M1");
  ExpectPress(0, "song Blue, artist Kim");
  document_->MusicLink(1).clear();
  Update();
  ExpectShown("Now Playing|song Blue, artist Kim", 0);
  browser_.Menu();
  ExpectPress(0);
  ExpectShown("-Home|>Nine|Three|Two", 0);
}

TEST_F(PodBrowserTest, TheNotesMenuKeepsToItsNoteWhenOthersComeBeforeIt) {
  Turn(1);
  SetPage(4, "Able", "x", "");
  Update();
  ExpectShown("-Home|Able|>Three|Two", 0);
  document_->Page(3).clear();
  Update();
  ExpectShown(">-Home|Able|Two", 0);
}

TEST_F(PodBrowserTest, AScrolledNotesMenuStaysAsItIs) {
  for (int page = 4; page <= 9; ++page) SetPage(page, "Note " + std::to_string(page), "x", "");
  Update();
  Turn(5);
  Turn(-1);
  ExpectShown("Note 5|Note 6|>Note 7|Note 8", 0);
  Update();
  ExpectShown("Note 5|Note 6|>Note 7|Note 8", 0);
}

TEST_F(PodBrowserTest, ANarrowerScreenBreaksTheLinesAnew) {
  browser_.Start(1);
  Turn(1);
  browser_.SetLayout(LayoutOf(3, kRows));
  ExpectShown("-Home|Hel|lo|{two}|[thr", 1);
}

TEST_F(PodBrowserTest, AHigherScreenShowsAsMuchAsItCan) {
  GoToTheEndOfPageTwo();
  browser_.SetLayout(LayoutOf(12, 5));
  EXPECT_EQ(ScreenText(browser_, 5), "Two|b|c|d|e|[home]");
  browser_.SetLayout(LayoutOf(12, 20));
  EXPECT_EQ(ScreenText(browser_, 20), "Two|a|b|c|d|e|[home]");
}

TEST_F(PodBrowserTest, TheNotesMenuKeepsToItsNoteOnAnotherScreen) {
  Turn(2);
  browser_.SetLayout(LayoutOf(12, 1));
  EXPECT_EQ(ScreenText(browser_, 1), ">Two");
  browser_.SetLayout(LayoutOf(12, kRows));
  EXPECT_EQ(browser_.Page(), 0);
  ExpectPress(2);
}

TEST_F(PodBrowserTest, PlacesKeepOnAnotherScreenToo) {
  GoToTheEndOfPageTwo();
  ExpectPress(1);
  browser_.SetLayout(LayoutOf(20, kRows));
  browser_.Menu();
  ExpectShown("Two|c|d|e|[home]", 2);
}

}  // namespace
}  // namespace tavrel::test
