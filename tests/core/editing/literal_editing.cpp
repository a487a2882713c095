#include "core/editing/literal_editing.h"

#include <utility>

#include "core/editing/literal_tags.h"

namespace tavrel::test {
namespace {

constexpr int kLargestPosition = 32767;

std::string Compared(const std::string& text, bool match_case, const CodePage& code_page) {
  return match_case ? text : code_page.Lower(text);
}

void ReplaceAt(std::string& text, int pos, int length, const std::string& replacement) {
  const int size = static_cast<int>(text.size());
  text = LiteralCharacters(text, 1, pos - 1) + replacement + LiteralCharacters(text, pos + length, size);
}

}  // namespace

void LiteralWalk(std::string& record, const LiteralRule& rule) {
  for (int k = 1;; ++k) {
    const std::string v = LiteralGetTag(record, "<linkto>", k);
    if (v.empty()) return;
    const int n = LiteralNumber(v);
    if (n < 1) continue;
    const int changed = rule(n);
    if (changed != n) LiteralSetTag(record, LiteralFormat(changed), "<linkto>", k);
  }
}

void LiteralReplace(std::string& record, const std::string& wanted, const std::string& replacement,
                    bool match_case, const CodePage& code_page) {
  const std::string s = Compared(wanted, match_case, code_page);
  const int length = static_cast<int>(s.size());
  std::string real = LiteralGetTag(record, "<text>", 1);
  std::string copy = Compared(real, match_case, code_page);
  int pos = LiteralPosition(1, copy, s);
  while (pos >= 1 && pos <= kLargestPosition) {
    ReplaceAt(real, pos, length, replacement);
    ReplaceAt(copy, pos, length, replacement);
    pos = LiteralPosition(pos + length, copy, s);
  }
  LiteralSetTag(record, real, "<text>", 1);
}

void LiteralEditor::SavePage() {
  Page(CurrentPage) = BuildPage(Fields, code_page_);
}

void LiteralEditor::LoadPage(int page) {
  Fields = ReadPage(Page(page));
}

void LiteralEditor::OpenPage(int page) {
  SavePage();
  CurrentPage = page;
  LoadPage(CurrentPage);
}

void LiteralEditor::Insert() {
  SavePage();
  if (CurrentPage == 999) {
    Page(999) = "";
    LoadPage(999);
    return;
  }
  for (int i = 998; i >= CurrentPage; --i) Page(i + 1) = Page(i);
  Page(CurrentPage) = "";
  FixLinks([this](int n) { return n >= CurrentPage ? n + 1 : n; });
  LoadPage(CurrentPage);
}

void LiteralEditor::Cut() {
  SavePage();
  PageClipboard = Page(CurrentPage);
  if (CurrentPage == 999) {
    Page(999) = "";
    LoadPage(999);
    return;
  }
  for (int i = CurrentPage; i <= 998; ++i) Page(i) = Page(i + 1);
  Page(999) = "";
  FixLinks([this](int n) { return n >= CurrentPage ? n - 1 : n; });
  LoadPage(CurrentPage);
}

void LiteralEditor::Copy() {
  SavePage();
  PageClipboard = Page(CurrentPage);
}

void LiteralEditor::Paste() {
  Page(CurrentPage) = PageClipboard;
  LoadPage(CurrentPage);
}

void LiteralEditor::Clear() {
  Page(CurrentPage) = "";
  LoadPage(CurrentPage);
}

void LiteralEditor::Up() {
  if (CurrentPage != 1) Swap(-1);
}

void LiteralEditor::Down() {
  if (CurrentPage != 999) Swap(1);
}

void LiteralEditor::Swap(int step) {
  SavePage();
  const int c = CurrentPage;
  PageClipboard = Page(c);
  Page(c) = Page(c + step);
  Page(c + step) = PageClipboard;
  FixLinks([c, step](int n) {
    int changed = n;
    if (n == c) changed = c + step;
    if (n == c + step) changed = c;
    return changed;
  });
  CurrentPage = c + step;
  LoadPage(CurrentPage);
}

void LiteralEditor::BlockCopy(int start, int end, int to) {
  SavePage();
  const bool are_pages = !(to < 1 || end < 1 || start < 1) && !(to > 999 || end > 999 || start > 999);
  if (start > end) std::swap(start, end);
  if (are_pages && !(start <= to && to <= end)) {
    for (int i = start; i <= end; ++i) {
      Page(to) = Page(i);
      if (to < 999) to = to + 1;
    }
  }
  LoadPage(CurrentPage);
}

void LiteralEditor::BlockClear(int start, int end) {
  SavePage();
  if (!(end < 1 || start < 1 || end > 999 || start > 999)) {
    if (start > end) std::swap(start, end);
    for (int i = start; i <= end; ++i) Page(i) = "";
  }
  LoadPage(CurrentPage);
}

void LiteralEditor::BlockDelete(int start, int end) {
  if (!(1 <= start && start <= 998 && 1 <= end && end <= 999)) return;
  OpenPage(start);
  if (start > end) std::swap(start, end);
  CurrentPage = start;
  for (int run = 1; run <= end - start + 1; ++run) Cut();
}

void LiteralEditor::BlockInsert(int at, int count) {
  if (!(1 <= at && at <= 998 && 1 <= count && count <= 50)) return;
  OpenPage(at);
  for (int run = 1; run <= count; ++run) Insert();
}

std::pair<int, int> LiteralEditor::Find(const std::string& wanted, int first_page, bool match_case) const {
  const std::string s = Compared(wanted, match_case, code_page_);
  for (int p = first_page; p <= 1000; ++p) {
    const std::string& record = Pages.at(static_cast<std::size_t>(p));
    if (record.empty()) continue;
    const std::string text = LiteralGetTag(record, "<text>", 1);
    const int pos = LiteralPosition(1, Compared(text, match_case, code_page_), s);
    if (pos >= 1) return {p, pos};
  }
  return {0, 0};
}

void LiteralEditor::Replace(const std::string& wanted, const std::string& replacement, bool match_case) {
  SavePage();
  for (int p = 1; p <= 1000; ++p) {
    if (!Page(p).empty()) LiteralReplace(Page(p), wanted, replacement, match_case, code_page_);
  }
  LoadPage(CurrentPage);
}

void LiteralEditor::FixLinks(const LiteralRule& rule) {
  for (int p = 1; p <= 999; ++p) {
    if (!Page(p).empty()) LiteralWalk(Page(p), rule);
  }
}

}  // namespace tavrel::test
