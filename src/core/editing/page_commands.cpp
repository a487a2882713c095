#include "core/editing/page_commands.h"

#include "core/editing/blocks.h"
#include "core/editing/link_numbers.h"

namespace tavrel {
namespace {

/// Swaps the current page with its neighbour.
void MovePage(Global& global, int step) {
  const int from = global.CurrentPage;
  const int to = from + step;
  global.PageClipboard = global.Page(from);
  std::swap(global.Page(from), global.Page(to));
  RenumberLinks(global, [from, to](int number) -> std::optional<int> {
    if (number == from) return to;
    if (number == to) return from;
    return std::nullopt;
  });
  global.CurrentPage = static_cast<std::int16_t>(to);
}

}  // namespace

void InsertPage(Global& global) {
  if (global.CurrentPage == kLastPage) {
    global.Page(kLastPage).clear();
  } else {
    InsertPages(global, global.CurrentPage, 1);
  }
}

void CutPage(Global& global) {
  CopyPage(global);
  if (global.CurrentPage == kLastPage) {
    global.Page(kLastPage).clear();
  } else {
    RemovePages(global, global.CurrentPage, 1);
  }
}

void CopyPage(Global& global) {
  global.PageClipboard = global.Page(global.CurrentPage);
}

void PastePage(Global& global) {
  global.Page(global.CurrentPage) = global.PageClipboard;
}

void ClearPage(Global& global) {
  global.Page(global.CurrentPage).clear();
}

void MovePageUp(Global& global) {
  MovePage(global, -1);
}

void MovePageDown(Global& global) {
  MovePage(global, 1);
}

}  // namespace tavrel
