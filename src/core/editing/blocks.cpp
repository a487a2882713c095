#include "core/editing/blocks.h"

#include <algorithm>

#include "core/document/page_record.h"
#include "core/editing/link_numbers.h"

namespace tavrel {
namespace {

/// A number that has grown beyond 16 bits no longer counts as a page, so it grows no further.
constexpr int kEndOfNumbers = 32768;

auto PageAt(Global& global, int page) {
  return global.Pages.begin() + page;
}

/// What happens to links when page `at` is cut `count` times.
LinkRule NumbersAfterCuts(int at, int count) {
  return [at, count](int number) {
    return number < at ? std::nullopt : std::optional(std::max(number - count, at - 1));
  };
}

}  // namespace

PageRange RangeBetween(int start, int end) {
  return {std::min(start, end), std::max(start, end)};
}

bool IsPage(int number) {
  return 1 <= number && number <= kLastPage;
}

bool IsMovablePage(int number) {
  return IsPage(number) && number < kLastPage;
}

bool CanCopyPages(int start, int end, int to) {
  return IsPage(start) && IsPage(end) && IsPage(to) && !RangeBetween(start, end).Contains(to);
}

bool CanClearPages(int start, int end) {
  return IsPage(start) && IsPage(end);
}

bool CanDeletePages(int start, int end) {
  return IsMovablePage(start) && IsPage(end);
}

bool CanInsertPages(int at, int count) {
  return IsMovablePage(at) && 1 <= count && count <= kMostInsertedPages;
}

void CopyPages(Global& global, PageRange pages, int to) {
  for (int page = pages.First; page <= pages.Last; ++page) {
    global.Page(to) = global.Page(page);
    to = std::min(to + 1, kLastPage);
  }
}

void ClearPages(Global& global, PageRange pages) {
  for (int page = pages.First; page <= pages.Last; ++page) global.Page(page).clear();
}

void DeletePages(Global& global, PageRange pages, const CodePage& code_page) {
  global.PageClipboard = global.Page(pages.Last);
  if (pages.Count() > 1) {
    // By its turn the last page has been renumbered at each cut before, then shown and stored.
    RenumberLinks(global.PageClipboard, NumbersAfterCuts(pages.First, pages.Count() - 1));
    global.PageClipboard = BuildPage(ReadPage(global.PageClipboard), code_page);
  }
  RemovePages(global, pages.First, pages.Count());
}

void InsertPages(Global& global, int at, int count) {
  const int lost = std::min(count, kLastPage - at + 1);
  const auto end = PageAt(global, kLastPage + 1);
  std::rotate(PageAt(global, at), end - lost, end);
  ClearPages(global, {at, at + lost - 1});
  RenumberLinks(global, [at, count](int number) {
    return number < at ? std::nullopt : std::optional(std::min(number + count, kEndOfNumbers));
  });
}

void RemovePages(Global& global, int at, int count) {
  const auto end = PageAt(global, kLastPage + 1);
  std::rotate(PageAt(global, at), PageAt(global, at + count), end);
  ClearPages(global, {kLastPage - count + 1, kLastPage});
  RenumberLinks(global, NumbersAfterCuts(at, count));
}

}  // namespace tavrel
