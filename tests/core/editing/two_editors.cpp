#include "core/editing/two_editors.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "core/editing/random_pages.h"

namespace tavrel::test {
namespace {

struct Wording {
  std::string Wanted;
  std::string Replacement;
};

/// None of these replacements would be replaced for ever.
const Wording& AnyWording(std::mt19937& random) {
  static const std::vector<Wording> wordings = {{"cat", "dog"},     {"cat", ""},          {"cat", "xxxCat"},
                                                {"CAT", "catx"},    {"a", "A"},           {"ab", "aab"},
                                                {"\xC9", "e"},      {"<text>", "x"},      {"1", "</text>"},
                                                {"atc", "c<note>"}, {"\r\n", "<linkto>"}, {" ", ""}};
  return AnyOf(random, wordings);
}

}  // namespace

void TwoEditors::FillSomePages() {
  for (int left = Any(random_, 1, 14); left > 0; --left) SetAnyRecord(AnyPage(random_));
  SetAnyRecord(0);
  if (random_() % 2 == 0) SetAnyRecord(1000);
  ShowPage(AnyPage(random_));
}

void TwoEditors::FillAllPages() {
  for (int page = 0; page <= 1000; ++page) SetAnyRecord(page);
  ShowPage(1);
}

void TwoEditors::SetAnyRecord(int page) {
  const std::string record = AnyRecord(random_);
  program_.State.Page(page) = record;
  literal_.Pages.at(static_cast<std::size_t>(page)) = record;
}

void TwoEditors::ShowPage(int page) {
  program_.State.CurrentPage = static_cast<std::int16_t>(page);
  program_.LoadPage();
  literal_.CurrentPage = page;
  literal_.LoadPage(page);
}

void TwoEditors::ExpectSameState() const {
  EXPECT_EQ(program_.State.CurrentPage, literal_.CurrentPage) << commands_;
  EXPECT_EQ(program_.State.PageClipboard, literal_.PageClipboard) << commands_;
  for (std::size_t page = 0; page < literal_.Pages.size(); ++page) {
    // A plain comparison first: a thousand expectations each time would take long.
    if (program_.State.Pages[page] == literal_.Pages[page]) continue;
    EXPECT_EQ(program_.State.Pages[page], literal_.Pages[page]) << "page " << page << " " << commands_;
  }
}

void TwoEditors::RunAnyCommand() {
  switch (random_() % 10) {
    case 0:
    case 1:
      return RunAnyTyping();
    case 2:
      return RunAnyReplace();
    case 3:
      return RunAnyFind();
    case 4:
    case 5:
    case 6:
      return RunAnyBlockCommand();
    default:
      return RunAnyPageCommand();
  }
}

void TwoEditors::RunAnyPageCommand() {
  switch (random_() % 8) {
    case 0:
      return Run("insert", [](auto& editor) { editor.Insert(); });
    case 1:
      return Run("cut", [](auto& editor) { editor.Cut(); });
    case 2:
      return Run("copy", [](auto& editor) { editor.Copy(); });
    case 3:
      return Run("paste", [](auto& editor) { editor.Paste(); });
    case 4:
      return Run("clear", [](auto& editor) { editor.Clear(); });
    case 5:
      return Run("up", [](auto& editor) { editor.Up(); });
    case 6:
      return Run("down", [](auto& editor) { editor.Down(); });
    default:
      return RunOpenPage(AnyPage(random_));
  }
}

void TwoEditors::RunOpenPage(int page) {
  Run("open " + std::to_string(page), [=](auto& editor) { editor.OpenPage(page); });
}

void TwoEditors::RunAnyTyping() {
  const std::string target = AnyTarget(random_);
  const auto row = static_cast<std::size_t>(Any(random_, 0, 3));
  switch (random_() % 4) {
    case 0:
      return Run("type title", [](auto& editor) { editor.Fields.Title += " t"; });
    case 1:
      return Run("type tags", [](auto& editor) { editor.Fields.Title += "<text>t</text><link>"; });
    case 2:
      return Run("type body", [](auto& editor) { editor.Fields.Body += " Cat"; });
    default:
      return Run("type " + target, [&](auto& editor) { editor.Fields.Links.at(row).Target = target; });
  }
}

void TwoEditors::RunAnyBlockCommand() {
  const bool is_odd = random_() % 16 == 0;
  int start = is_odd ? Any(random_, -1, 1001) : AnyPage(random_);
  int end = start + Any(random_, 0, 4);
  if (random_() % 3 == 0) std::swap(start, end);
  const int to = AnyPage(random_);
  const std::string range = std::to_string(start) + " to " + std::to_string(end);
  switch (random_() % 4) {
    case 0:
      return Run("copy " + range + " to " + std::to_string(to),
                 [=](auto& editor) { editor.BlockCopy(start, end, to); });
    case 1:
      return Run("clear " + range, [=](auto& editor) { editor.BlockClear(start, end); });
    case 2:
      return RunBlockDelete(start, end);
    default:
      return RunBlockInsert(start, is_odd ? Any(random_, -1, 52) : Any(random_, 1, 5));
  }
}

void TwoEditors::RunBlockDelete(int start, int end) {
  Run("delete " + std::to_string(start) + " to " + std::to_string(end),
      [=](auto& editor) { editor.BlockDelete(start, end); });
}

void TwoEditors::RunBlockInsert(int at, int count) {
  Run("insert " + std::to_string(count) + " at " + std::to_string(at),
      [=](auto& editor) { editor.BlockInsert(at, count); });
}

void TwoEditors::RunAnyReplace() {
  const Wording& wording = AnyWording(random_);
  const bool match_case = random_() % 2 == 0;
  Run("replace " + wording.Wanted + (match_case ? " exactly by " : " by ") + wording.Replacement,
      [&](auto& editor) { editor.Replace(wording.Wanted, wording.Replacement, match_case); });
}

void TwoEditors::RunAnyFind() {
  const std::string& wanted = AnyWording(random_).Wanted;
  const bool match_case = random_() % 2 == 0;
  const int first_page = random_() % 2 == 0 ? 1 : literal_.CurrentPage + 2;
  Run("find " + wanted, [](auto& editor) { editor.SavePage(); });
  const std::pair<int, int> found = literal_.Find(wanted, first_page, match_case);
  EXPECT_EQ(program_.Find(wanted, first_page, match_case), found) << commands_;
  if (1 <= found.first && found.first <= 999) RunOpenPage(found.first);
}

}  // namespace tavrel::test
