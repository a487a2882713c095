#include "core/preview/pod_browser.h"

#include <utility>

#include "core/text/numbers.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

constexpr std::string_view kNotesMenuAddress = "\\";
constexpr std::string_view kMusicAddress = "ipod:music?";

/// "song=A&album=B" as "song A, album B".
std::string MusicInWords(std::string_view query) {
  std::string words;
  bool is_key = true;
  for (const char c : query) {
    if (c == '&') {
      words += ", ";
      is_key = true;
    } else if (c == '=' && is_key) {
      words += ' ';
      is_key = false;
    } else {
      words += c;
    }
  }
  return words;
}

/// The page whose note has the name; 0 if no page's has.
int PageOfNote(std::string_view name) {
  if (name.empty()) return 0;
  const int page = WholeValue(name.substr(1));
  return page >= 1 && page <= kLastPage && name == NoteName(page) ? page : 0;
}

}  // namespace

PodBrowser::PodBrowser(ScreenLayout layout)
    : layout_(std::move(layout)), places_(1), screen_(NotesMenu({}, layout_.Lines)) {}

void PodBrowser::SetLayout(ScreenLayout layout) {
  Remember();
  layout_ = std::move(layout);
  Show();
}

void PodBrowser::SetDocument(Global document, const PublishOptions& options) {
  Remember();
  document_ = std::move(document);
  options_ = options;
  Show();
}

void PodBrowser::Start(int page) {
  places_ = {Place{.Page = 0}, Place{.Page = page}};
  Show();
}

void PodBrowser::TurnForward() {
  if (auto* menu = std::get_if<NotesMenu>(&screen_)) menu->TurnForward();
  if (auto* note = std::get_if<NoteScreen>(&screen_)) note->TurnForward();
}

void PodBrowser::TurnBack() {
  if (auto* menu = std::get_if<NotesMenu>(&screen_)) menu->TurnBack();
  if (auto* note = std::get_if<NoteScreen>(&screen_)) note->TurnBack();
}

Followed PodBrowser::Press() {
  if (const auto* menu = std::get_if<NotesMenu>(&screen_)) {
    if (menu->Entries().empty()) return {};
    const int page = menu->Entries()[menu->Current()].Page;
    GoTo({.Page = page});
    return {.Page = page};
  }
  const auto* note = std::get_if<NoteScreen>(&screen_);
  if (note == nullptr || !note->CurrentLink()) return {};
  return Follow(std::string(note->Shown().Links[*note->CurrentLink()].Address));
}

Followed PodBrowser::Follow(std::string_view address) {
  if (address == kNotesMenuAddress) {
    const int page = Page();
    places_ = {Place{}};
    Show();
    if (auto* menu = std::get_if<NotesMenu>(&screen_)) menu->Select(page);
    return {};
  }
  if (address.starts_with(kMusicAddress)) {
    std::string music = MusicInWords(address.substr(kMusicAddress.size()));
    if (music.empty()) return {};
    if (!options_.BackgroundMusic) GoTo({.Music = music});
    return {.Music = std::move(music)};
  }
  const int page = PageOfNote(address);
  if (page == 0 || document_.Page(page).empty()) return {};
  GoTo({.Page = page});
  return {.Page = page};
}

void PodBrowser::Menu() {
  if (places_.size() == 1) return;
  const int page = Page();
  places_.pop_back();
  Show();
  if (auto* menu = std::get_if<NotesMenu>(&screen_)) menu->Select(page);
}

/// How the place looks that is about to be left.
void PodBrowser::Remember() {
  Place& place = places_.back();
  if (const auto* note = std::get_if<NoteScreen>(&screen_)) {
    place.Top = note->Top();
    place.CurrentLink = note->CurrentLink();
  }
}

void PodBrowser::GoTo(Place place) {
  Remember();
  places_.push_back(std::move(place));
  Show();
}

void PodBrowser::Show() {
  const Place& place = places_.back();
  if (!place.Music.empty()) {
    screen_ = ScreenMessage{"Now Playing", place.Music};
  } else if (place.Page > 0) {
    screen_ = NoteOf(place);
  } else {
    const auto* before = std::get_if<NotesMenu>(&screen_);
    const int page = before && !before->Entries().empty() ? before->Entries()[before->Current()].Page : 0;
    NotesMenu menu(NotesMenuEntries(document_), layout_.Lines);
    menu.Return(before == nullptr ? 0 : before->Top(), page);
    screen_ = std::move(menu);
  }
}

PodBrowser::Screen PodBrowser::NoteOf(const Place& place) const {
  if (document_.Page(place.Page).empty())
    return ScreenMessage{NoteName(place.Page), "The page is empty, so there is no note of it."};
  try {
    NoteScreen note(ReadNote(NoteBeginning(document_, place.Page, options_)), layout_.Width, layout_.Lines,
                    layout_.WidthOf);
    note.Return(place.Top, place.CurrentLink);
    return note;
  } catch (const RunTimeError& error) {
    return ScreenMessage{NoteName(place.Page), error.what()};
  }
}

}  // namespace tavrel
