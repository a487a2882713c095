#include "core/editing/shown_page.h"

#include "core/editing/blocks.h"
#include "core/editing/page_commands.h"
#include "core/editing/search.h"

namespace tavrel::test {

void ShownPage::OpenPage(int page) {
  SavePage();
  State.CurrentPage = static_cast<std::int16_t>(page);
  LoadPage();
}

void ShownPage::Insert() {
  SavePage();
  InsertPage(State);
  LoadPage();
}

void ShownPage::Cut() {
  SavePage();
  CutPage(State);
  LoadPage();
}

void ShownPage::Copy() {
  SavePage();
  CopyPage(State);
}

void ShownPage::Paste() {
  PastePage(State);
  LoadPage();
}

void ShownPage::Clear() {
  ClearPage(State);
  LoadPage();
}

void ShownPage::Up() {
  if (State.CurrentPage == 1) return;
  SavePage();
  MovePageUp(State);
  LoadPage();
}

void ShownPage::Down() {
  if (State.CurrentPage == kLastPage) return;
  SavePage();
  MovePageDown(State);
  LoadPage();
}

void ShownPage::BlockCopy(int start, int end, int to) {
  SavePage();
  if (CanCopyPages(start, end, to)) CopyPages(State, RangeBetween(start, end), to);
  LoadPage();
}

void ShownPage::BlockClear(int start, int end) {
  SavePage();
  if (CanClearPages(start, end)) ClearPages(State, RangeBetween(start, end));
  LoadPage();
}

void ShownPage::BlockDelete(int start, int end) {
  if (!CanDeletePages(start, end)) return;
  OpenPage(start);
  const PageRange pages = RangeBetween(start, end);
  State.CurrentPage = static_cast<std::int16_t>(pages.First);
  SavePage();
  DeletePages(State, pages, code_page_);
  LoadPage();
}

void ShownPage::BlockInsert(int at, int count) {
  if (!CanInsertPages(at, count)) return;
  OpenPage(at);
  SavePage();
  InsertPages(State, at, count);
  LoadPage();
}

std::pair<int, int> ShownPage::Find(const std::string& wanted, int first_page, bool match_case) const {
  const std::optional<Match> match = FindInPages(State, wanted, first_page, match_case, code_page_);
  if (!match) return {0, 0};
  return {match->Page, static_cast<int>(match->Position) + 1};
}

void ShownPage::Replace(const std::string& wanted, const std::string& replacement, bool match_case) {
  SavePage();
  ReplaceInPages(State, wanted, replacement, match_case, code_page_);
  LoadPage();
}

}  // namespace tavrel::test
