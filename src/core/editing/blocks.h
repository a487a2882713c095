#pragma once

#include "core/document/global.h"
#include "core/text/code_page.h"

/// Commands on a range of pages. Ranges are given as typed, in either order, 1 to 999.
namespace tavrel {

inline constexpr int kMostInsertedPages = 50;  ///< blank pages that one command inserts

struct PageRange {
  int First = 1;
  int Last = 1;

  int Count() const { return Last - First + 1; }
  bool Contains(int page) const { return First <= page && page <= Last; }
};

/// The range between two pages, whichever comes first.
PageRange RangeBetween(int start, int end);

bool IsPage(int number);

/// Whether blocks can begin at a page: it is not page 999.
bool IsMovablePage(int number);

/// Whether pages can be copied so: all numbers are pages, and the target is not one of the copied ones.
bool CanCopyPages(int start, int end, int to);
bool CanClearPages(int start, int end);
/// The start as typed must not be page 999; the end may be.
bool CanDeletePages(int start, int end);
bool CanInsertPages(int at, int count);

/// Copies pages in ascending order over those from `to` on. Links stay as they are. Whatever would go beyond
/// page 999 goes there; the last copy wins.
void CopyPages(Global& global, PageRange pages, int to);

/// Empties pages. Links stay as they are.
void ClearPages(Global& global, PageRange pages);

/// Cuts the range's first page as many times as the range has pages, with exactly the result of the repeated
/// command on the shown page, but with the links renumbered once. The clipboard then holds the page that was
/// the last one. The first page must be stored and lie before page 999.
void DeletePages(Global& global, PageRange pages, const CodePage& code_page);

/// Moves the pages from `at` on, 1 to 998, up by `count` places and leaves blank pages there. What would go
/// beyond page 999 is lost; links into it point beyond 999 too.
void InsertPages(Global& global, int at, int count);

/// Takes `count` pages out; those behind move up. Links to the pages taken out point at the page before.
void RemovePages(Global& global, int at, int count);

}  // namespace tavrel
