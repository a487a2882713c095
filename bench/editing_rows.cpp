#include <algorithm>
#include <benchmark/benchmark.h>
#include <functional>
#include <string.h>
#include <string>
#include <string_view>
#include <vector>

#include "core/editing/blocks.h"
#include "core/editing/page_commands.h"
#include "core/editing/search.h"
#include "edited_document.h"
#include "rows.h"
#include "worst.h"

namespace tavrel::bench {
namespace {

constexpr int kRepetitions = 25;
constexpr std::string_view kWanted = "cat";

const CodePage& Letters() {
  return CodePage::Windows1252();
}

Edit Deleting(int last) {
  return [last](Global& global) { DeletePages(global, {1, last}, Letters()); };
}

void InsertFifty(Global& global) {
  InsertPages(global, 1, kMostInsertedPages);
}

std::vector<Row> PageRows() {
  EditedDocument document;
  const auto compare = [&document](const std::string& work, const Edit& edit, const Edit& baseline) {
    return Compare(
        work, 5, kRepetitions, [&] { return document.TimeOf(edit); },
        [&] { return baseline ? document.TimeOf(baseline) : document.TimeOfCopyingPages(); });
  };
  return {compare("insert at page 1 : copy all pages", InsertPage, {}),
          compare("cut page 1 : copy all pages", CutPage, {}),
          compare("delete pages 1 to 500 : cut one", Deleting(500), CutPage),
          compare("delete pages 1 to 998 : cut one", Deleting(998), CutPage),
          compare("insert 50 pages : insert one", InsertFifty, InsertPage)};
}

/// Texts that no page has: short and long ones, and such as begin or end like much that is there.
constexpr std::string_view kAbsent[] = {
    "z", "e#", "ea#", "the swan lake", "e on for a while", "Line 1 of page 000, which goes on for a while."};

Row FindRow(const std::string& work, double limit, bool match_case) {
  const EditedDocument document;
  const TextViews texts = document.PageTexts();
  Worst worst;
  for (const std::string_view wanted : kAbsent) {
    const auto find = [&] {
      benchmark::DoNotOptimize(FindInPages(document.State(), wanted, 1, match_case, Letters()));
    };
    const auto search = [&] {
      for (const std::string_view text : texts) {
        benchmark::DoNotOptimize(::memmem(text.data(), text.size(), wanted.data(), wanted.size()));
      }
    };
    worst.Add(Compare(
                  work, limit, kRepetitions, [&] { return Seconds(find); }, [&] { return Seconds(search); }),
              "\"" + std::string(wanted) + "\"");
  }
  return worst.Get();
}

/// A text of `length` characters in which the searched one stands `hits` times.
std::string TextWithHits(std::size_t length, std::size_t hits) {
  std::string text(length, '.');
  for (std::size_t hit = 0; hit < hits; ++hit) text.replace(length / hits * hit, kWanted.size(), kWanted);
  return text;
}

/// Texts of `length` characters in which the searched one stands `hits` times in all.
Texts TextsWithHits(std::size_t pages, std::size_t length, std::size_t hits) {
  Texts texts;
  for (std::size_t page = 0; page < pages; ++page) {
    texts.push_back(TextWithHits(length, (hits + page) / pages));
  }
  return texts;
}

Texts UsualTexts(std::size_t hits) {
  return TextsWithHits(kLastPage, 3500, hits);
}

struct Replacing {
  std::string_view Name;
  std::string_view With;
  bool MatchCase;
};

constexpr Replacing kReplacings[] = {{"by nothing", "", true},
                                     {"by as much", "dog", true},
                                     {"by more", "crocodile", true},
                                     {"by more, any case", "crocodile", false}};

/// Replaces in the one document and does the baseline with the other.
Row ReplaceRow(const std::string& work, double limit, const Texts& texts,
               const std::function<double(const Edit& replace)>& baseline) {
  EditedDocument document(texts);
  Worst worst;
  for (const Replacing& replacing : kReplacings) {
    const Edit replace = [&](Global& global) {
      ReplaceInPages(global, kWanted, replacing.With, replacing.MatchCase, Letters());
    };
    worst.Add(Compare(
                  work, limit, kRepetitions, [&] { return document.TimeOf(replace); },
                  [&] { return baseline(replace); }),
              std::string(replacing.Name));
  }
  return worst.Get();
}

/// The last row has as many characters and hits on both sides: only a work that grows faster than the length
/// of a text takes longer with the long ones.
std::vector<Row> ReplaceRows() {
  constexpr std::size_t kHits = 100'000;
  constexpr std::size_t kLongText = 32'000;
  constexpr std::size_t kLongTexts = 25;
  EditedDocument usual(UsualTexts(kHits));
  EditedDocument half_the_hits(UsualTexts(kHits / 2));
  EditedDocument short_texts(TextsWithHits(kLongTexts * 4, kLongText / 4, kHits));
  return {ReplaceRow("replace 100,000 times : copy all texts", 20, UsualTexts(kHits),
                     [&](const Edit&) { return usual.TimeOfCopyingTexts(); }),
          ReplaceRow("replace 100,000 times : 50,000 times", 2.5, UsualTexts(kHits),
                     [&](const Edit& replace) { return half_the_hits.TimeOf(replace); }),
          ReplaceRow("replace in 25 long texts : 100 short ones", 1.5,
                     TextsWithHits(kLongTexts, kLongText, kHits),
                     [&](const Edit& replace) { return short_texts.TimeOf(replace); })};
}

}  // namespace

std::vector<Row> EditingRows() {
  KeepFreedMemory();
  std::vector<Row> rows = PageRows();
  rows.push_back(FindRow("find what is absent, case matched : memmem", 3, true));
  rows.push_back(FindRow("find what is absent, any case : memmem", 8, false));
  for (Row& row : ReplaceRows()) rows.push_back(std::move(row));
  return rows;
}

}  // namespace tavrel::bench
