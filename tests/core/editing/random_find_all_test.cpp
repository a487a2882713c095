#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/document/page_record.h"
#include "core/editing/described_hits.h"
#include "core/editing/random_pages.h"

// Finding in all pages against looking at every place, in random documents full of odd links.

namespace tavrel::test {
namespace {

/// The same search written out: every place of every field, one after the other.
class LiteralFindAll {
 public:
  LiteralFindAll(std::string wanted, bool match_case) : wanted_(std::move(wanted)), match_case_(match_case) {}

  HitList Hits(const Global& document) {
    for (page_ = 1; page_ <= 999; ++page_) {
      if (document.Page(page_).empty()) continue;
      const PageFields fields = ReadPage(document.Page(page_));
      Look(fields.Title, "title");
      Look(fields.Note, "note");
      Look(fields.Body, "text");
      for (std::size_t row = 0; row < fields.Links.size(); ++row) {
        Look(fields.Links[row].Text, "link text " + std::to_string(row + 1));
        Look(fields.Links[row].Target, "link target " + std::to_string(row + 1));
      }
      Look(fields.MusicText, "music text");
      Look(fields.MusicLink, "music link");
    }
    return hits_;
  }

 private:
  /// The random pages have no other accented letters.
  char Small(char c) const {
    if (match_case_) return c;
    if (c == '\xC9') return '\xE9';
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  }

  bool StandsAt(const std::string& content, std::size_t at) const {
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
      if (at + i >= content.size() || Small(content[at + i]) != Small(wanted_[i])) return false;
    }
    return true;
  }

  void Look(const std::string& content, const std::string& field) {
    for (std::size_t at = 0; at < content.size();) {
      const bool is_match = StandsAt(content, at);
      if (is_match) hits_.push_back(std::to_string(page_) + " " + field + " @" + std::to_string(at));
      at += is_match ? wanted_.size() : 1;
    }
  }

  std::string wanted_;
  bool match_case_;
  int page_ = 0;
  HitList hits_;
};

TEST(RandomFindAll, FindsWhatLookingAtEveryPlaceFinds) {
  constexpr int kDocuments = 40;
  const std::vector<std::string> wanted = {"a",  "cat",  "CAT",       "catcat", "T",      " ",  "0",
                                           "aa", "\r\n", "\xE9T\xC9", "M",      "<linkt", "00", "b"};
  std::mt19937 random(10);
  std::size_t hits = 0;
  for (int left = kDocuments; left > 0 && !testing::Test::HasFailure(); --left) {
    const auto document = std::make_unique<Global>();
    for (int pages = Any(random, 0, 12); pages > 0; --pages)
      document->Page(AnyPage(random)) = AnyRecord(random);
    for (const std::string& text : wanted) {
      const bool match_case = random() % 2 == 0;
      const HitList expected = LiteralFindAll(text, match_case).Hits(*document);
      EXPECT_EQ(DescribedHits(*document, text, match_case), expected) << text << (match_case ? " case" : "");
      hits += expected.size();
    }
  }
  EXPECT_GT(hits, 500U);
}

}  // namespace
}  // namespace tavrel::test
