#include "core/preview/notes_menu.h"

#include <algorithm>
#include <utility>

#include "core/ipod/note_writer.h"
#include "core/preview/note.h"

namespace tavrel {
namespace {

char SmallLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool ComesBefore(const NotesMenuEntry& one, const NotesMenuEntry& other) {
  return std::lexicographical_compare(
      one.Title.begin(), one.Title.end(), other.Title.begin(), other.Title.end(), [](char a, char b) {
        return static_cast<unsigned char>(SmallLetter(a)) < static_cast<unsigned char>(SmallLetter(b));
      });
}

}  // namespace

std::vector<NotesMenuEntry> NotesMenuEntries(const Global& document) {
  std::vector<NotesMenuEntry> entries;
  for (int page = 1; page <= kLastPage; ++page) {
    if (document.Page(page).empty()) continue;
    std::string title = ReadNote(NoteTitleLine(document, page)).Title;
    entries.push_back({title.empty() ? NoteName(page) : std::move(title), page});
  }
  std::stable_sort(entries.begin(), entries.end(), ComesBefore);
  return entries;
}

NotesMenu::NotesMenu(std::vector<NotesMenuEntry> entries, int rows)
    : entries_(std::move(entries)), rows_(static_cast<std::size_t>(std::max(rows, 1))) {}

void NotesMenu::TurnForward() {
  if (current_ + 1 < entries_.size()) ++current_;
  FollowCurrent();
}

void NotesMenu::TurnBack() {
  if (current_ > 0) --current_;
  FollowCurrent();
}

void NotesMenu::Select(int page) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [page](const NotesMenuEntry& other) { return other.Page == page; });
  current_ = entry == entries_.end() ? 0 : static_cast<std::size_t>(entry - entries_.begin());
  FollowCurrent();
}

void NotesMenu::Return(std::size_t top, int page) {
  top_ = std::min(top, entries_.size() - std::min(entries_.size(), rows_));
  Select(page);
}

/// Scrolls no further than needed.
void NotesMenu::FollowCurrent() {
  top_ = std::min(top_, current_);
  if (current_ >= top_ + rows_) top_ = current_ + 1 - rows_;
}

}  // namespace tavrel
