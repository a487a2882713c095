#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/document/global.h"

namespace tavrel {

/// A note in the list of the device's Notes menu.
struct NotesMenuEntry {
  std::string Title;  ///< the file's name if the note has none
  int Page;
};

/// The notes of a project as the device lists them: by their titles, capitals or not. The order of other
/// characters than letters is not documented.
std::vector<NotesMenuEntry> NotesMenuEntries(const Global& document);

/// The list on a screen that shows so many rows, and the wheel that moves through it.
class NotesMenu {
 public:
  NotesMenu(std::vector<NotesMenuEntry> entries, int rows);

  const std::vector<NotesMenuEntry>& Entries() const { return entries_; }
  std::size_t Top() const { return top_; }
  /// The entry that the centre button would follow; there is none if there are no entries.
  std::size_t Current() const { return current_; }

  void TurnForward();
  void TurnBack();
  /// Makes the entry of a page current, or the first one if the page has none.
  void Select(int page);
  /// Back to where the list was left; as near as it comes if it has changed.
  void Return(std::size_t top, int page);

 private:
  void FollowCurrent();

  std::vector<NotesMenuEntry> entries_;
  std::size_t rows_;
  std::size_t top_ = 0;
  std::size_t current_ = 0;
};

}  // namespace tavrel
