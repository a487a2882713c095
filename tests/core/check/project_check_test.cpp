#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/check/project_check_fixture.h"

// Each thing that would go wrong, with a project that shows it and one that does not.

namespace tavrel::test {
namespace {

TEST_F(ProjectCheckTest, AnEmptyProjectIsSound) {
  global_->Page(1).clear();
  ExpectNothing();
}

TEST_F(ProjectCheckTest, APageWithATitleAloneIsSound) {
  ExpectNothing();
}

TEST_F(ProjectCheckTest, APageWithoutATitle) {
  global_->Page(1) = "<text>x</text>";
  ExpectOne(Field::Title, 0, 0, 0, "The page has no title, so the Notes menu shows a dash.");
  SetText("", Link("two", "002"));
  global_->Page(2) = "<text>x</text>";
  EXPECT_EQ(Sentences(),
            std::vector<std::string>{"The page has no title, so the Notes menu shows its file name."});
}

TEST_F(ProjectCheckTest, ALinkToAPageThatThereIs) {
  SetText("", Link("x", "001"));
  ExpectNothing();
}

TEST_F(ProjectCheckTest, ALinkToAnEmptyPage) {
  SetText("", Link("a", "001") + Link("x", "007"));
  ExpectOne(Field::LinkTarget, 2, 0, 3, "Page 007 is empty.");
}

TEST_F(ProjectCheckTest, ALinkToNoPage) {
  SetText("", Link("x", "000"));
  ExpectOne(Field::LinkTarget, 1, 0, 3, "The link leads to no page, but to the Notes menu.");
}

TEST_F(ProjectCheckTest, ALinkBehindTheLastPage) {
  SetText("", Link("x", "1000"));
  ExpectOne(Field::LinkTarget, 1, 0, 4, "There can be no page \"1000\".");
}

TEST_F(ProjectCheckTest, ALinkWhoseNumberIsNotOfThreeDigitsLeadsToNoNote) {
  SetText("", Link("x", "1"));
  ExpectOne(Field::LinkTarget, 1, 0, 1, "There can be no page \"1\".");
}

TEST_F(ProjectCheckTest, MoreLinksThanTheEditorKeeps) {
  std::string links;
  for (int link = 1; link <= 49; ++link) links += Link("x", "001");
  SetText("", links);
  ExpectNothing();
  SetText("", links + Link("x", "001") + Link("x", "001"));
  ExpectOne(Field::Page, 0, 0, 0, "The page has 51 links. The editor keeps 49 when the page is stored.");
}

TEST_F(ProjectCheckTest, ALinkToMusic) {
  global_->MusicLink(7) = "<artist>A</artist>";
  SetText("", Link("x", "M7"));
  ExpectNothing();
}

TEST_F(ProjectCheckTest, ALinkToEmptyMusic) {
  SetText("", Link("x", "M7"));
  ExpectOne(Field::LinkTarget, 1, 0, 2, "Music link M7 is empty, so the link leads to the Notes menu.");
}

TEST_F(ProjectCheckTest, NotesAloneMakeNoMusic) {
  global_->MusicLink(7) = "<notes>remember</notes>";
  SetText("", Link("x", "M7"));
  ExpectOne(Field::LinkTarget, 1, 0, 2, "Music link M7 is empty, so the link leads to the Notes menu.");
}

TEST_F(ProjectCheckTest, AnImpossibleMusicLinkStopsPublishing) {
  SetText("", Link("x", "M101"));
  ExpectOne(Field::LinkTarget, 1, 0, 4, "There can be no music link \"M101\". Publishing stops here.");
  EXPECT_TRUE(Findings()[0].StopsPublishing);
}

TEST_F(ProjectCheckTest, AnImpossibleMusicLinkThatIsNotPublishedStopsNothing) {
  SetText("", Link("", "001") + Link("x", "M101"));
  const std::vector<Finding> findings = Findings();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].Sentence, "There can be no music link \"M101\".");
  EXPECT_FALSE(findings[0].StopsPublishing);
}

TEST_F(ProjectCheckTest, AnImpossibleMusicLinkInTheTextStopsPublishingThoughTheListEndsBefore) {
  SetText("<a> <b>", Link("", "001") + Link("b", "M101"));
  const std::vector<Finding> findings = Findings();
  EXPECT_TRUE(std::any_of(findings.begin(), findings.end(),
                          [](const Finding& finding) { return finding.StopsPublishing; }));
}

TEST_F(ProjectCheckTest, ThePagesOwnMusic) {
  global_->MusicLink(5) = "<song>S</song>";
  SetPage(1, "<music>Listen</music><music>M5</music>");
  ExpectNothing();
  SetPage(1, "<music>Listen</music><music>M6</music>");
  ExpectOne(Field::MusicLink, 0, 0, 2, "Music link M6 is empty, so the link leads to the Notes menu.");
  SetPage(1, "<music>Listen</music>");
  ExpectOne(Field::MusicLink, 0, 0, 0, "The music has no music link, so it leads to the Notes menu.");
}

TEST_F(ProjectCheckTest, LinksThatLeadNowhere) {
  global_->MusicLink(5) = "<song>S</song>";
  SetText("", Link("a", "007") + Link("b", "000") + Link("c", "1000") + Link("d", "M9") + Link("e", "M5") +
                  Link("f", "001"));
  const std::vector<Finding> findings = Findings();
  EXPECT_EQ(std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.LeadsNowhere; }),
            4);
}

TEST_F(ProjectCheckTest, LinksBehindOneWithoutWordsAreDropped) {
  SetText("", Link("a", "001") + Link("", "001") + Link("c", "001") + Link("d", "001"));
  ExpectOne(Field::LinkText, 2, 0, 0,
            "The link has no words, so it and the 2 links behind it are not in the list below the text.");
}

TEST_F(ProjectCheckTest, ALastLinkWithoutATargetIsDroppedAlone) {
  SetText("", Link("a", "001") + Link("b", ""));
  ExpectOne(Field::LinkTarget, 2, 0, 0, "The link has no target, so it is not in the list below the text.");
}

TEST_F(ProjectCheckTest, WordsInBracketsTakeTheLinksInOrder) {
  SetText("See <a> and <b>.", Link("a", "001") + Link("b", "001"));
  ExpectNothing();
}

TEST_F(ProjectCheckTest, WordsThatTakeAnotherLinkThanTheirOwn) {
  SetText("See <b>.", Link("a", "001") + Link("b", "001"));
  ExpectOne(Field::Text, 0, 4, 3, "<b> takes link 1, but link 2 has these words.");

  // The editor has no row for a fiftieth link.
  std::string others;
  while (others.size() < 48 * Link("y", "001").size()) others += Link("y", "001");
  SetText("See <b>", others + Link("b", "001"));
  ExpectOne(Field::Text, 0, 4, 3, "<b> takes link 1, but link 49 has these words.");
  SetText("See <b>", others + Link("y", "001") + Link("b", "001"));
  ExpectOne(Field::Page, 0, 0, 0, "The page has 50 links. The editor keeps 49 when the page is stored.");
}

TEST_F(ProjectCheckTest, WordsThatNoLinkHasTakeTheirs) {
  SetText("See <here>.", Link("a", "001"));
  ExpectNothing();
}

TEST_F(ProjectCheckTest, WordsForWhichThereIsNoLink) {
  SetText("<a> <b>", Link("a", "001"));
  ExpectOne(Field::Text, 0, 4, 3, "<b> takes link 2, which the page does not have.");
  SetText("<a> <b>", Link("a", "001") + Link("b", ""));
  EXPECT_EQ(Sentences(),
            (std::vector<std::string>{"<b> takes link 2, which has no target.",
                                      "The link has no target, so it is not in the list below the text."}));
}

TEST_F(ProjectCheckTest, AnOpeningBracketWithoutAClosingOne) {
  SetText("<a> <b", Link("a", "001") + Link("b", "001"));
  ExpectOne(Field::Text, 0, 4, 1, "The < has no > behind it.");
}

TEST_F(ProjectCheckTest, AClosingBracketTooMany) {
  SetText("<a> b>", Link("a", "001"));
  ExpectOne(Field::Text, 0, 5, 1, "The > ends no link.");
}

TEST_F(ProjectCheckTest, AClosingBracketInFrontOfAllSwitchesTheLinksOff) {
  SetText("a> <b>", Link("b", "001"));
  ExpectOne(Field::Text, 0, 1, 1,
            "The first > comes before the first <, so no words of the text are linked.");
}

TEST_F(ProjectCheckTest, ABracketAlone) {
  SetText("5 < 6");
  ExpectOne(Field::Text, 0, 2, 1, "The bracket links nothing; it is published as it stands.");
}

TEST_F(ProjectCheckTest, ANoteOfExactlyTheShownLengthAndOneByteMore) {
  // <title>-T</title>, the line about wrapping and the text, each with a line end: 19 + 40 + text + 2.
  const std::size_t rest = 19 + 40 + 2;
  SetText(std::string(4096 - rest, 'x'));
  ExpectNothing();
  SetText(std::string(4096 - rest + 1, 'x'));
  ExpectOne(Field::Page, 0, 0, 0, "The note is 1 byte too long. An iPod shows the first 4,096.");
}

TEST_F(ProjectCheckTest, TheTickBoxesCountForTheLength) {
  const std::size_t rest = 19 + 40 + 2;
  SetText(std::string(4096 - rest, 'x'));
  EXPECT_EQ(Findings({.NotesMenuLink = true, .BackgroundMusic = false}).size(), 1U);
  EXPECT_EQ(Findings({.NotesMenuLink = false, .BackgroundMusic = true}).size(), 1U);
}

TEST_F(ProjectCheckTest, MoreNotesThanAnIpodShows) {
  EXPECT_EQ(Findings({}, 999).size(), 0U);
  const std::vector<Finding> findings = Findings({}, 1000);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].Page, 0);
  EXPECT_EQ(findings[0].Sentence, "There would be 1001 notes. An iPod shows 1,000.");
}

TEST_F(ProjectCheckTest, APageThatNoLinkLeadsTo) {
  SetText("", Link("two", "002"));
  SetPage(2, "");
  SetPage(3, "<link>" + Link("four", "004") + "</link>");
  SetPage(4, "<link>" + Link("three", "003") + "</link>");
  const std::vector<Finding> findings = Findings();
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0].Page, 3);
  EXPECT_EQ(findings[1].Page, 4);
  EXPECT_EQ(findings[0].Sentence, "No links lead here from page 001.");
}

TEST_F(ProjectCheckTest, APageIsReachedThroughOthersAndThroughWordsOfATextAlone) {
  SetText("<two>", Link("", "002"));
  SetPage(2, "<link>" + Link("three", "003") + "</link>");
  SetPage(3, "");
  EXPECT_EQ(Sentences(),
            std::vector<std::string>{"The link has no words, so it is not in the list below the text."});
}

TEST_F(ProjectCheckTest, WithoutPage1NothingIsReached) {
  global_->Page(1).clear();
  SetPage(2, "");
  ExpectOne(Field::Page, 0, 0, 0, "The page is empty, so no page is reached from it.");
}

TEST_F(ProjectCheckTest, TheLastMusicLinkIsNotStored) {
  global_->MusicLink(99) = "<song>S</song>";
  ExpectNothing();
  global_->MusicLink(100) = "<song>S</song>";
  EXPECT_EQ(Sentences(), std::vector<std::string>{"Music link M100 is not stored in the project's file."});
}

TEST_F(ProjectCheckTest, FindingsComeInTheOrderOfThePages) {
  SetText("", Link("two", "002"));
  global_->Page(2) = "<text>x</text>";
  SetPage(3, "");
  const std::vector<Finding> findings = Findings();
  EXPECT_TRUE(std::is_sorted(findings.begin(), findings.end(),
                             [](const Finding& one, const Finding& other) { return one.Page < other.Page; }));
}

}  // namespace
}  // namespace tavrel::test
