#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/document/global.h"
#include "core/ipod/note_writer.h"
#include "core/preview/note_screen.h"
#include "core/preview/notes_menu.h"

namespace tavrel {

/// How much fits on a screen.
struct ScreenLayout {
  int Width;  ///< of a line, in the unit of `WidthOf`
  int Lines;  ///< below the title
  TextWidth WidthOf;
};

/// What the screen says in place of a note.
struct ScreenMessage {
  std::string Title;
  std::string Sentence;
};

/// What the centre button led to: a page, or music in words; neither if there is nothing to follow.
struct Followed {
  int Page = 0;
  std::string Music = {};
};

/// Walks through a document as one does on the device, with a history that begins at the Notes menu.
class PodBrowser {
 public:
  using Screen = std::variant<NotesMenu, NoteScreen, ScreenMessage>;

  explicit PodBrowser(ScreenLayout layout);

  /// Another screen, or a changed document: the place in it stays where it can.
  void SetLayout(ScreenLayout layout);
  void SetDocument(Global document, const PublishOptions& options);

  /// Shows a page, 1 to 999, with nothing before it but the Notes menu.
  void Start(int page);
  void TurnForward();
  void TurnBack();
  Followed Press();
  /// One step back.
  void Menu();

  const Screen& Shown() const { return screen_; }
  /// The page whose note is shown, or ought to be; 0 on the Notes menu and while music plays.
  int Page() const { return places_.back().Page; }

 private:
  struct Place {
    int Page = 0;
    std::string Music = {};  ///< that plays
    std::size_t Top = 0;     ///< how far the note was scrolled
    std::optional<std::size_t> CurrentLink = {};
  };

  void Remember();
  void GoTo(Place place);
  void Show();
  Screen NoteOf(const Place& place) const;
  Followed Follow(std::string_view address);

  ScreenLayout layout_;
  Global document_;
  PublishOptions options_;
  std::vector<Place> places_;
  Screen screen_;
};

}  // namespace tavrel
