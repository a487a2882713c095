#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <variant>

#include "core/preview/pod_browser.h"

namespace tavrel::test {

/// Letters that are one wide.
inline int LetterWidth(std::string_view text) {
  return static_cast<int>(text.size());
}

/// A line with the links that begin or end in it: {words}, or [words] if the centre button would follow them.
inline std::string LineWithLinks(const NoteScreen& screen, std::size_t line) {
  const Note& note = screen.Shown();
  const auto& lines = screen.Lines();
  const std::size_t text_end = lines[line].Start + lines[line].Length;
  const std::size_t end = line + 1 < lines.size() ? lines[line + 1].Start : note.Text.size();
  std::string shown;
  for (std::size_t at = lines[line].Start; at < end; ++at) {
    std::string opening;
    std::string closing;
    for (std::size_t link = 0; link < note.Links.size(); ++link) {
      const bool is_current = screen.CurrentLink() == link;
      if (at == note.Links[link].Start) opening = is_current ? "[" : "{";
      if (at + 1 == note.Links[link].Start + note.Links[link].Length) closing = is_current ? "]" : "}";
    }
    shown += opening + (at < text_end ? note.Text.substr(at, 1) : "") + closing;
  }
  return shown;
}

/// The title and the lines on a screen of so many, as "title|line|line".
inline std::string ScreenText(const NoteScreen& screen, std::size_t height) {
  std::string shown = screen.Shown().Title;
  const std::size_t end = std::min(screen.Top() + height, screen.Lines().size());
  for (std::size_t line = screen.Top(); line < end; ++line) shown += "|" + LineWithLinks(screen, line);
  return shown;
}

/// The titles, as "title|>title|title": the centre button would follow the one that is marked.
inline std::string ScreenText(const NotesMenu& menu, std::size_t height) {
  std::string shown;
  const std::size_t end = std::min(menu.Top() + height, menu.Entries().size());
  for (std::size_t entry = menu.Top(); entry < end; ++entry) {
    if (entry > menu.Top()) shown += "|";
    shown += (entry == menu.Current() ? ">" : "") + menu.Entries()[entry].Title;
  }
  return shown;
}

inline std::string ScreenText(const ScreenMessage& message, std::size_t /*height*/) {
  return message.Title + "|" + message.Sentence;
}

inline std::string ScreenText(const PodBrowser& browser, std::size_t height) {
  return std::visit([height](const auto& screen) { return ScreenText(screen, height); }, browser.Shown());
}

}  // namespace tavrel::test
