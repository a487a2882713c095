#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "core/preview/note.h"

namespace tavrel {

/// A device's screen, by its size in dots.
struct ScreenModel {
  int Width;
  int Height;
  bool IsColour;  ///< else four greys
};

inline constexpr std::array<ScreenModel, 7> kScreenModels = {{{160, 128, false},
                                                              {138, 110, false},
                                                              {220, 176, true},
                                                              {176, 132, true},
                                                              {320, 240, true},
                                                              {240, 320, true},
                                                              {240, 376, true}}};

/// A line on the screen: a part of a note's text.
struct ScreenLine {
  std::size_t Start;
  std::size_t Length;
};

/// How wide a part of a line is on the screen.
using TextWidth = std::function<int(std::string_view text)>;

/// Breaks a text into lines at most `width` wide, behind blanks where there are any. Where the devices break
/// lines is not documented, so this comes near and no more.
std::vector<ScreenLine> WrapText(std::string_view text, int width, const TextWidth& width_of);

/// A note on a screen that shows so many lines, and the wheel that moves through it.
class NoteScreen {
 public:
  NoteScreen(Note note, int width, int lines, const TextWidth& width_of);

  const Note& Shown() const { return note_; }
  const std::vector<ScreenLine>& Lines() const { return lines_; }

  /// The first line on the screen.
  std::size_t Top() const { return top_; }
  /// The link that the centre button would follow; nothing if none is on the screen.
  std::optional<std::size_t> CurrentLink() const { return current_; }

  /// One notch of the wheel: to the next link if that is on the screen, else one line further.
  void TurnForward();
  void TurnBack();
  /// Back to where the note was left; as near as it comes if the note has changed.
  void Return(std::size_t top, std::optional<std::size_t> link);

 private:
  std::size_t LineOf(std::size_t link) const;
  bool IsOnScreen(std::size_t link) const;
  void FollowScreen();

  Note note_;
  std::vector<ScreenLine> lines_;
  std::size_t height_;
  std::size_t top_ = 0;
  std::optional<std::size_t> current_;
};

}  // namespace tavrel
