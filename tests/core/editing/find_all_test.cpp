#include "core/editing/find_all.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/editing/described_hits.h"

// Every place where a text stands in the pages, in their order.

namespace tavrel::test {
namespace {

constexpr bool kCaseMatters = true;
constexpr bool kCaseDoesNotMatter = false;

class FindAllTest : public testing::Test {
 protected:
  static std::string Link(const std::string& text, const std::string& target) {
    return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
  }

  HitList Hits(const std::string& wanted, bool match_case = kCaseMatters) const {
    return DescribedHits(*document_, wanted, match_case);
  }

  std::unique_ptr<Global> document_ = std::make_unique<Global>();
};

TEST_F(FindAllTest, FindsNothingInAnEmptyDocument) {
  EXPECT_EQ(Hits("a"), HitList());
}

TEST_F(FindAllTest, GoesThroughTheFieldsInTheOrderOfTheEditor) {
  document_->Page(3) = "<music>play x</music><music>Mx</music><link>" + Link("x", "00x") + Link("", "") +
                       Link("a x", "x") + "</link><text>--x</text><note>-x</note><title>x</title>";
  EXPECT_EQ(Hits("x"),
            (HitList{"3 title @0", "3 note @1", "3 text @2", "3 link text 1 @0", "3 link target 1 @2",
                     "3 link text 3 @2", "3 link target 3 @0", "3 music text @5", "3 music link @1"}));
}

TEST_F(FindAllTest, GoesThroughThePagesFromFirstToLast) {
  document_->Page(999) = "<text>x</text>";
  document_->Page(1) = "<note>x</note>";
  document_->Page(20) = "<title>x</title>";
  EXPECT_EQ(Hits("x"), (HitList{"1 note @0", "20 title @0", "999 text @0"}));
}

TEST_F(FindAllTest, SearchesOnePageAtATime) {
  document_->Page(1) = "<text>x x</text>";
  document_->Page(3) = "<text>x</text>";
  FindAll search(*document_, "x", true, CodePage::Windows1252());
  std::vector<Hit> hits;
  search.SearchPage(hits);
  EXPECT_EQ(hits.size(), 2U);
  search.SearchPage(hits);
  EXPECT_EQ(hits.size(), 2U);
  search.SearchPage(hits);
  EXPECT_EQ(hits.size(), 3U);
  for (int page = 4; page <= 999; ++page) {
    EXPECT_FALSE(search.IsDone());
    search.SearchPage(hits);
  }
  EXPECT_TRUE(search.IsDone());
  EXPECT_EQ(hits.size(), 3U);
}

TEST_F(FindAllTest, DoesNotSearchWhatIsNoPage) {
  document_->Page(0) = document_->Page(1000) = "<text>x</text>";
  EXPECT_EQ(Hits("x"), HitList());
}

TEST_F(FindAllTest, DoesNotSearchRowsThatTheEditorDoesNotHave) {
  std::string links;
  for (int row = 1; row <= 51; ++row) links += Link(row < 49 ? "a" : "x", row < 49 ? "001" : "x");
  document_->Page(1) = "<link>" + links + "</link>";
  EXPECT_EQ(Hits("x"), (HitList{"1 link text 49 @0", "1 link target 49 @0"}));
}

TEST_F(FindAllTest, CountsTheRowsThatTheEditorShows) {
  document_->Page(1) = "<text>a <linkto>7</linkto></text><link>" + Link("b", "002") + "</link>";
  EXPECT_EQ(Hits("002"), HitList{"1 link target 1 @0"});
  EXPECT_EQ(Hits("7"), HitList{"1 text @10"});
}

TEST_F(FindAllTest, DoesNotSearchTheMarkup) {
  document_->Page(1) = "<title>a</title><text>b</text><link>" + Link("c", "001") + "</link>";
  for (const char* wanted : {"t", "title", "<", "/", "linkto", "a</title>"})
    EXPECT_EQ(Hits(wanted), HitList());
}

TEST_F(FindAllTest, FindsNothingThatReachesIntoAnotherField) {
  document_->Page(1) = "<title>ab</title><text>cd</text>";
  EXPECT_EQ(Hits("bc"), HitList());
}

TEST_F(FindAllTest, MatchesDoNotOverlap) {
  document_->Page(1) = "<text>aaaaa</text><title>abababa</title>";
  EXPECT_EQ(Hits("aa"), (HitList{"1 text @0", "1 text @2"}));
  EXPECT_EQ(Hits("aba"), (HitList{"1 title @0", "1 title @4"}));
}

TEST_F(FindAllTest, AMatchMayFillItsField) {
  document_->Page(1) = "<title>ab</title><text>abab</text>";
  EXPECT_EQ(Hits("abab"), HitList{"1 text @0"});
  EXPECT_EQ(Hits("ababa"), HitList());
}

TEST_F(FindAllTest, CaseMattersOnlyIfAsked) {
  document_->Page(1) = "<title>apple</title><text>Apple APPLE</text>";
  EXPECT_EQ(Hits("Apple"), HitList{"1 text @0"});
  EXPECT_EQ(Hits("aPPle", kCaseDoesNotMatter), (HitList{"1 title @0", "1 text @0", "1 text @6"}));
}

TEST_F(FindAllTest, AccentedLettersHaveCapitalsToo) {
  // "été", "ÉTÉ", "Été"; then the pairs of letters outside Latin-1: Š, Œ, Ž and Ÿ.
  document_->Page(1) = "<title>\xE9t\xE9</title><text>\xC9T\xC9 \xC9t\xE9</text>";
  document_->Page(2) = "<text>\x8A\x9A \x8C\x9C \x8E\x9E \x9F\xFF</text>";
  EXPECT_EQ(Hits("\xE9T\xC9", kCaseDoesNotMatter), (HitList{"1 title @0", "1 text @0", "1 text @4"}));
  EXPECT_EQ(Hits("\xC9t\xE9"), HitList{"1 text @4"});
  EXPECT_EQ(Hits("\x9A\x8A \x9C\x8C \x9E\x8E \xFF\x9F", kCaseDoesNotMatter), HitList{"2 text @0"});
}

TEST_F(FindAllTest, SignsAndSharpSHaveNoOtherForm) {
  // The multiplication and the division sign stand where a letter and its capital would.
  document_->Page(1) = "<text>\xD7\xF7\xDF</text>";
  EXPECT_EQ(Hits("\xF7", kCaseDoesNotMatter), HitList{"1 text @1"});
  EXPECT_EQ(Hits("\xD7", kCaseDoesNotMatter), HitList{"1 text @0"});
  EXPECT_EQ(Hits("\xFF", kCaseDoesNotMatter), HitList());
}

TEST_F(FindAllTest, FindsLineEnds) {
  document_->Page(1) = "<text>a\r\nb\r\n</text>";
  EXPECT_EQ(Hits("\r\n"), (HitList{"1 text @1", "1 text @4"}));
}

TEST_F(FindAllTest, AFieldIsWhereAHitSaysItIs) {
  document_->Page(7) = "<title>A</title><note>B</note><text>C</text><link>" + Link("D", "001") +
                       Link("E", "M2") + "</link><music>F</music><music>M3</music>";
  const auto content = [this](Field where, int link = 0) {
    return std::string(FieldContent(*document_, {7, where, link}));
  };
  EXPECT_EQ(content(Field::Title), "A");
  EXPECT_EQ(content(Field::Note), "B");
  EXPECT_EQ(content(Field::Text), "C");
  EXPECT_EQ(content(Field::LinkText, 1), "D");
  EXPECT_EQ(content(Field::LinkTarget, 1), "001");
  EXPECT_EQ(content(Field::LinkText, 2), "E");
  EXPECT_EQ(content(Field::LinkTarget, 2), "M2");
  EXPECT_EQ(content(Field::MusicText), "F");
  EXPECT_EQ(content(Field::MusicLink), "M3");
}

TEST_F(FindAllTest, AFieldThatThereIsNotIsEmpty) {
  document_->Page(7) = "<title>A</title><link>" + Link("D", "001") + "</link>";
  for (const Field where : {Field::Project, Field::Page, Field::Note, Field::Text, Field::MusicText})
    EXPECT_EQ(FieldContent(*document_, {7, where}), "") << FieldName(where);
  for (const int row : {0, 2, 49}) {
    EXPECT_EQ(FieldContent(*document_, {7, Field::LinkText, row}), "") << row;
    EXPECT_EQ(FieldContent(*document_, {7, Field::LinkTarget, row}), "") << row;
  }
  EXPECT_EQ(FieldContent(*document_, {8, Field::Title}), "");
}

}  // namespace
}  // namespace tavrel::test
