#include "core/preview/note_screen.h"

#include <algorithm>
#include <utility>

namespace tavrel {
namespace {

/// How many characters from the front fit; at least one if there are any.
std::size_t FittingLength(std::string_view text, int width, const TextWidth& width_of) {
  std::size_t fits = std::min<std::size_t>(text.size(), 1);
  std::size_t too_long = text.size() + 1;
  const auto measure = [&](std::size_t length) {
    (width_of(text.substr(0, length)) <= width ? fits : too_long) = length;
  };
  // Never much more than fits is measured: a note may be one long line.
  for (std::size_t length = 2; length < too_long; length *= 2) measure(length);
  while (fits + 1 < too_long) measure(fits + (too_long - fits) / 2);
  return fits;
}

/// Where a line ends that does not fit: behind the last blank that does, or in the middle of a word.
std::size_t BreakAt(std::string_view line, std::size_t fits) {
  if (line[fits] == ' ') return fits + 1;
  const std::size_t blank = line.rfind(' ', fits - 1);
  return blank == std::string_view::npos ? fits : blank + 1;
}

void WrapLine(std::string_view line, std::size_t start, int width, const TextWidth& width_of,
              std::vector<ScreenLine>& lines) {
  for (std::size_t fits; (fits = FittingLength(line, width, width_of)) < line.size();) {
    const std::size_t end = std::min(BreakAt(line, fits), line.size());
    lines.push_back({start, end});
    start += end;
    line.remove_prefix(end);
    if (line.empty()) return;  // but for the blank at its end, it was long enough
  }
  lines.push_back({start, line.size()});
}

}  // namespace

std::vector<ScreenLine> WrapText(std::string_view text, int width, const TextWidth& width_of) {
  std::vector<ScreenLine> lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    WrapLine(text.substr(start, end - start), start, width, width_of, lines);
    start = end + 1;
  }
  return lines;
}

NoteScreen::NoteScreen(Note note, int width, int lines, const TextWidth& width_of)
    : note_(std::move(note)),
      lines_(WrapText(note_.Text, width, width_of)),
      height_(static_cast<std::size_t>(std::max(lines, 1))) {
  FollowScreen();
}

void NoteScreen::TurnForward() {
  const std::size_t next = current_ ? *current_ + 1 : note_.Links.size();
  if (next < note_.Links.size() && IsOnScreen(next)) {
    current_ = next;
  } else if (top_ + height_ < lines_.size()) {
    ++top_;
    FollowScreen();
  }
}

void NoteScreen::TurnBack() {
  if (current_ && *current_ > 0 && IsOnScreen(*current_ - 1)) {
    --*current_;
  } else if (top_ > 0) {
    --top_;
    FollowScreen();
  }
}

void NoteScreen::Return(std::size_t top, std::optional<std::size_t> link) {
  top_ = std::min(top, lines_.size() - std::min(lines_.size(), height_));
  current_ = link && *link < note_.Links.size() ? link : std::nullopt;
  FollowScreen();
}

std::size_t NoteScreen::LineOf(std::size_t link) const {
  const auto behind =
      std::upper_bound(lines_.begin(), lines_.end(), note_.Links[link].Start,
                       [](std::size_t start, const ScreenLine& line) { return start < line.Start; });
  return behind == lines_.begin() ? 0 : static_cast<std::size_t>(behind - lines_.begin()) - 1;
}

bool NoteScreen::IsOnScreen(std::size_t link) const {
  const std::size_t line = LineOf(link);
  return top_ <= line && line < top_ + height_;
}

/// Keeps the current link while it is on the screen; else the first one there becomes current.
void NoteScreen::FollowScreen() {
  if (current_ && IsOnScreen(*current_)) return;
  current_.reset();
  for (std::size_t link = 0; link < note_.Links.size(); ++link) {
    if (!IsOnScreen(link)) continue;
    current_ = link;
    return;
  }
}

}  // namespace tavrel
