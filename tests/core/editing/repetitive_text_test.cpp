#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>

#include "core/editing/document_of.h"
#include "core/editing/search.h"
#include "core/editing/searching.h"
#include "core/editing/text_search.h"

// Texts that nearly hold the searched one at every place. Looking at each place for itself would take minutes
// for the large ones, so these tests would not come to their end.

namespace tavrel::test {
namespace {

constexpr int kManyPages = 150;
constexpr std::size_t kLongText = 32'000;

const CodePage& Letters() {
  return CodePage::Windows1252();
}

/// A document whose first pages all have the text.
std::unique_ptr<Global> DocumentWithTexts(const std::string& text) {
  auto global = std::make_unique<Global>();
  for (int page = 1; page <= kManyPages; ++page) global->Page(page) = WithText(text);
  return global;
}

TEST(RepetitiveText, IsSearchedToItsFirstMatch) {
  const std::string text = Repeated(1000, "a") + "b" + Repeated(10, "a");
  for (const bool match_case : {true, false}) {
    const TextSearch search(Repeated(500, "a") + "ba", match_case, Letters());
    EXPECT_EQ(search.Find(text, 0), 500U);
    EXPECT_EQ(search.Find(text, 500), 500U);
    EXPECT_EQ(search.Find(text, 501), text.size());
    EXPECT_EQ(TextSearch(Repeated(500, "a"), match_case, Letters()).Find(text, 501), text.size());
    EXPECT_EQ(TextSearch(Repeated(400, "a") + "c", match_case, Letters()).Find(text, 0), text.size());
  }
}

TEST(RepetitiveText, IsSearchedInBothCases) {
  const std::string text = Repeated(300, "aA") + "\xC9" + Repeated(300, "Aa");
  EXPECT_EQ(TextSearch(Repeated(200, "a") + "\xE9" + "aa", false, Letters()).Find(text, 0), 400U);
  EXPECT_EQ(TextSearch(Repeated(200, "a") + "\xE9" + "aa", true, Letters()).Find(text, 0), text.size());
  EXPECT_EQ(TextSearch(Repeated(100, "aA") + "\xC9" + "AaA", true, Letters()).Find(text, 0), 400U);
}

TEST(RepetitiveText, IsSearchedAsPlaceByPlaceWherePeriodsMeet) {
  std::mt19937 random(5);
  for (int round = 0; round < 300 && !testing::Test::HasFailure(); ++round) {
    const std::string piece = Repeated(1 + random() % 4, "a") + (random() % 2 == 0 ? "b" : "");
    const std::string wanted = Repeated(20 + random() % 40, piece) + Repeated(random() % 4, "a");
    std::string text;
    for (int part = 0; part < 6; ++part)
      text += Repeated(random() % 80, piece) + (random() % 2 == 0 ? "a" : "b");
    const std::size_t first = text.find(wanted);
    EXPECT_EQ(TextSearch(wanted, random() % 2 == 0, Letters()).Find(text, 0), std::min(first, text.size()))
        << wanted << " in " << text;
  }
}

TEST(RepetitiveText, IsSearchedOnAllPagesForWhatNoneHolds) {
  const auto global = DocumentWithTexts(Repeated(kLongText, "a"));
  const std::string half = Repeated(kLongText / 2, "a");
  for (const bool match_case : {true, false}) {
    EXPECT_FALSE(FindInPages(*global, half + "b", 1, match_case, Letters()));
    EXPECT_FALSE(FindInPages(*global, "b" + half, 1, match_case, Letters()));
    EXPECT_FALSE(FindInPages(*global, "a" + half + "b" + "a", 1, match_case, Letters()));
  }
}

TEST(RepetitiveText, IsReplacedOnAllPages) {
  const std::string half = Repeated(kLongText / 2, "a");
  const auto global = DocumentWithTexts(half + "bb" + half);
  ReplaceInPages(*global, half + "b", "", false, Letters());
  EXPECT_EQ(global->Page(1), WithText("b" + half));
  EXPECT_EQ(global->Page(kManyPages), WithText("b" + half));
}

TEST(RepetitiveText, IsSearchedWhereItWasPutIn) {
  // In what is put in, nearly the searched text begins at every place.
  const std::string as = Repeated(8'000, "a");
  const auto global = DocumentWithTexts(as + "b");
  ReplaceInPages(*global, as + "b", as + as + as, true, Letters());
  EXPECT_EQ(global->Page(1), WithText(as + as + as));
  EXPECT_EQ(global->Page(kManyPages), WithText(as + as + as));
}

}  // namespace
}  // namespace tavrel::test
