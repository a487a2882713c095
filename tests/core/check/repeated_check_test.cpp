#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/check/project_check.h"

// A check that goes on while the project is written.

namespace tavrel::test {
namespace {

class RepeatedCheck : public testing::Test {
 protected:
  void SetUp() override {
    document_->Page(1) = "<title>One</title><link>" + Link("two", "002") + Link("play", "M3") + "</link>";
    document_->Page(2) = "<title>Two</title>";
    document_->MusicLink(3) = "<song>S</song>";
    EXPECT_EQ(Sentences(), SentenceList());
  }

  using SentenceList = std::vector<std::string>;

  static std::string Link(const std::string& text, const std::string& target) {
    return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
  }

  /// What the next run of the same check finds: "page: sentence".
  SentenceList Sentences(PublishOptions options = {}, int other_notes = 0) {
    SentenceList sentences;
    for (const Finding& finding : check_->Run(*document_, CodePage::Windows1252(), options, other_notes))
      sentences.push_back(std::to_string(finding.Page) + ": " + finding.Sentence);
    return sentences;
  }

  std::unique_ptr<Global> document_ = std::make_unique<Global>();
  std::unique_ptr<ProjectCheck> check_ = std::make_unique<ProjectCheck>();
};

TEST_F(RepeatedCheck, FindsTheSameAgain) {
  document_->Page(2) = "<text>x</text>";
  const SentenceList expected = {"2: The page has no title, so the Notes menu shows its file name."};
  EXPECT_EQ(Sentences(), expected);
  EXPECT_EQ(Sentences(), expected);
}

TEST_F(RepeatedCheck, SeesThatAPageWentAndCameBack) {
  const Record two = document_->Page(2);
  document_->Page(2).clear();
  EXPECT_EQ(Sentences(), SentenceList{"1: Page 002 is empty."});
  document_->Page(2) = two;
  EXPECT_EQ(Sentences(), SentenceList());
}

TEST_F(RepeatedCheck, SeesThatTheFirstPageWent) {
  document_->Page(1).clear();
  EXPECT_EQ(Sentences(), SentenceList{"1: The page is empty, so no page is reached from it."});
}

TEST_F(RepeatedCheck, SeesThatALinkToAPageThatDidNotChangeWent) {
  document_->Page(1) = "<title>One</title>";
  EXPECT_EQ(Sentences(), SentenceList{"2: No links lead here from page 001."});
  document_->Page(1) = "<title>One</title><link>" + Link("two", "002") + "</link>";
  EXPECT_EQ(Sentences(), SentenceList());
}

TEST_F(RepeatedCheck, SeesThatMusicWentAndCame) {
  document_->MusicLink(3).clear();
  EXPECT_EQ(Sentences(), SentenceList{"1: Music link M3 is empty, so the link leads to the Notes menu."});
  document_->MusicLink(3) = "<album>A</album>";
  EXPECT_EQ(Sentences(), SentenceList());
}

TEST_F(RepeatedCheck, SeesThatLongerMusicMakesANoteTooLong) {
  // The name of the song stands in the note, and besides, each with its line end: the title (21 bytes), the
  // line about wrapping (40), no text (2), the link to page 2 (28) and the link around the name (37).
  document_->MusicLink(3) = "<song>" + std::string(4096, 's') + "</song>";
  EXPECT_EQ(Sentences(), SentenceList{"1: The note is 128 bytes too long. An iPod shows the first 4,096."});
  document_->MusicLink(3) = "<song>" + std::string(4096 - 128, 's') + "</song>";
  EXPECT_EQ(Sentences(), SentenceList());
}

TEST_F(RepeatedCheck, SeesThatOtherOptionsMakeANoteTooLong) {
  // The link to the Notes menu takes 28 bytes with its line end, the line about background music 42.
  document_->MusicLink(3) = "<song>" + std::string(4096 - 128, 's') + "</song>";
  EXPECT_EQ(Sentences(), SentenceList());
  EXPECT_EQ(Sentences({.NotesMenuLink = true}),
            SentenceList{"1: The note is 28 bytes too long. An iPod shows the first 4,096."});
  EXPECT_EQ(Sentences({.BackgroundMusic = true}),
            SentenceList{"1: The note is 42 bytes too long. An iPod shows the first 4,096."});
  EXPECT_EQ(Sentences({.NotesMenuLink = true, .BackgroundMusic = true}),
            SentenceList{"1: The note is 70 bytes too long. An iPod shows the first 4,096."});
  EXPECT_EQ(Sentences(), SentenceList());
}

TEST_F(RepeatedCheck, SeesThatTheIPodHasOtherNotes) {
  EXPECT_EQ(Sentences({}, 998), SentenceList());
  EXPECT_EQ(Sentences({}, 999), SentenceList{"0: There would be 1001 notes. An iPod shows 1,000."});
  EXPECT_EQ(Sentences({}, 0), SentenceList());
}

TEST_F(RepeatedCheck, OfAnotherDocumentFindsWhatIsInThat) {
  document_->Page(2).clear();
  EXPECT_EQ(Sentences(), SentenceList{"1: Page 002 is empty."});
  document_ = std::make_unique<Global>();
  EXPECT_EQ(Sentences(), SentenceList());
  document_->Page(1) = "<title>T</title><text>a > b</text>";
  EXPECT_EQ(Sentences(), SentenceList{"1: The bracket links nothing; it is published as it stands."});
}

}  // namespace
}  // namespace tavrel::test
