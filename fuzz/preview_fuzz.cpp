#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "core/ipod/device_limits.h"
#include "core/ipod/note_writer.h"
#include "core/preview/note.h"
#include "core/preview/note_screen.h"
#include "core/preview/pod_browser.h"
#include "expect.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// How wide letters are. Only the kinds that add up letter by letter can be trusted when lines are broken.
struct Letters {
  bool AddUp;
  TextWidth Width;
};

Letters LettersOf(int kind) {
  const auto size = [](std::string_view text) { return static_cast<int>(text.size()); };
  const auto sum = [](int least, int most) {
    return [least, most](std::string_view text) {
      int width = 0;
      for (const char c : text) width += least + static_cast<unsigned char>(c) % (most - least + 1);
      return width;
    };
  };
  switch (kind) {
    case 0:
      return {true, size};
    case 1:
      return {true, sum(0, 3)};
    case 2:
      return {true, sum(5, 11)};
    case 3:
      return {true, [](std::string_view) { return 0; }};
    case 4:
      return {false, sum(-3, 3)};
    case 5:
      return {false, [](std::string_view text) { return text.size() % 2 == 0 ? 1'000 : -1'000; }};
    case 6:
      return {false, [](std::string_view text) { return 100 - static_cast<int>(text.size()); }};
    default:
      return {false, [](std::string_view) { return 1'000'000; }};
  }
}

/// Whether all of `part` stands in `whole` in its order, with other bytes between it or not.
bool IsWithin(std::string_view part, std::string_view whole) {
  std::size_t at = 0;
  for (const char byte : part) {
    at = whole.find(byte, at);
    if (at == std::string_view::npos) return false;
    ++at;
  }
  return true;
}

void ExpectSoundNote(const Note& note, std::string_view bytes) {
  const std::string_view read = bytes.substr(0, kShownBytes);
  Expect(note.IsCut == (bytes.size() > kShownBytes), "a note is cut behind what is shown");
  Expect(read.find(note.Title) != std::string_view::npos, "the title stands in the note");
  std::string shown = note.Text;
  std::erase(shown, '\n');
  Expect(shown.find('\r') == std::string::npos, "all line ends are the same");
  Expect(IsWithin(shown, read), "the text holds nothing that the note does not");
  std::size_t behind = 0;
  for (const NoteLink& link : note.Links) {
    Expect(link.Start >= behind, "links stand in the order of the text");
    Expect(link.Length > 0 && link.Start + link.Length <= note.Text.size(), "links stand in the text");
    Expect(read.find(link.Address) != std::string_view::npos, "addresses stand in the note");
    behind = link.Start + link.Length;
  }
}

void ExpectSoundLines(const NoteScreen& screen, int width, const Letters& letters) {
  const std::string& text = screen.Shown().Text;
  std::size_t at = 0;
  for (const ScreenLine& line : screen.Lines()) {
    if (line.Start == at + 1) Expect(text[at++] == '\n', "only line ends are left out");
    Expect(line.Start == at, "lines follow on each other");
    at += line.Length;
    Expect(at <= text.size(), "lines stand in the text");
    std::string_view shown = std::string_view(text).substr(line.Start, line.Length);
    Expect(shown.find('\n') == std::string_view::npos, "a line has no line end in it");
    Expect(!shown.empty() || at == text.size() || text[at] == '\n', "an empty line is one of the text");
    Expect(!shown.empty() || at == 0 || text[at - 1] == '\n', "an empty line is not what is left of another");
    if (shown.ends_with(' ')) shown.remove_suffix(1);
    const bool fits = shown.size() <= 1 || letters.Width(shown) <= width;
    Expect(fits || !letters.AddUp, "what fits is on a line");
  }
  if (at < text.size()) Expect(text[at++] == '\n', "lines show all of the text");
  Expect(at == text.size(), "lines show all of the text");
}

bool IsOnScreen(const NoteScreen& screen, std::size_t link, std::size_t height) {
  const NoteLink& wanted = screen.Shown().Links[link];
  const std::vector<ScreenLine>& lines = screen.Lines();
  std::size_t line = 0;
  while (line + 1 < lines.size() && lines[line + 1].Start <= wanted.Start) ++line;
  return screen.Top() <= line && line < screen.Top() + height;
}

void ExpectSoundPlace(const NoteScreen& screen, std::size_t height) {
  const std::size_t lines = screen.Lines().size();
  Expect(screen.Top() <= lines - std::min(lines, height),
         "the screen shows no more behind the end than it must");
  const auto current = screen.CurrentLink();
  if (current) {
    Expect(*current < screen.Shown().Links.size(), "the current link is one");
    Expect(IsOnScreen(screen, *current, height), "the current link is on the screen");
    return;
  }
  for (std::size_t link = 0; link < screen.Shown().Links.size(); ++link)
    Expect(!IsOnScreen(screen, link, height), "one of the links on the screen is current");
}

/// Whether a notch of the wheel does anything; it moves the screen or goes to another link.
template <typename Turn>
bool IsTurned(NoteScreen& screen, const Turn& turn) {
  const std::size_t top = screen.Top();
  const auto link = screen.CurrentLink();
  turn(screen);
  return screen.Top() != top || screen.CurrentLink() != link;
}

/// The wheel reaches the end of the note and every link on the way, and then its beginning again.
void ExpectTurningEnds(NoteScreen& screen, std::size_t height) {
  const std::size_t most = screen.Lines().size() + screen.Shown().Links.size() + 1;
  std::vector<bool> passed(screen.Shown().Links.size());
  const auto pass = [&] {
    ExpectSoundPlace(screen, height);
    if (screen.CurrentLink()) passed[*screen.CurrentLink()] = true;
  };
  std::size_t turns = 0;
  pass();
  for (; IsTurned(screen, [](NoteScreen& turned) { turned.TurnForward(); }); ++turns) {
    Expect(turns < most, "turning forward ends");
    pass();
  }
  Expect(screen.Top() == screen.Lines().size() - std::min(screen.Lines().size(), height),
         "it ends at the end");
  Expect(std::find(passed.begin(), passed.end(), false) == passed.end(), "every link is come to");
  for (turns = 0; IsTurned(screen, [](NoteScreen& turned) { turned.TurnBack(); }); ++turns) {
    Expect(turns < most, "turning back ends");
    ExpectSoundPlace(screen, height);
  }
  Expect(screen.Top() == 0, "turning back ends at the top");
}

void ExpectSoundNoteAndScreen(std::string_view bytes, int width, int height, const Letters& letters) {
  Note note = ReadNote(bytes);
  ExpectSoundNote(note, bytes);
  const std::size_t last = note.Links.size() + 1;
  NoteScreen screen(std::move(note), width, height, letters.Width);
  ExpectSoundLines(screen, width, letters);
  const auto rows = static_cast<std::size_t>(std::max(height, 1));
  ExpectTurningEnds(screen, rows);
  for (const std::size_t top : {std::size_t{0}, last, bytes.size() + 1}) {
    screen.Return(top, top % (last + 1));
    ExpectSoundPlace(screen, rows);
  }
}

/// Publishing stops at it.
constexpr std::string_view kUnpublished = "<text><a></text><linkto>M101</linkto>";

/// Somebody who presses one button of the device after the other.
class Walker {
 public:
  Walker(Global& document, const Letters& letters, int width, int height)
      : document_(document),
        layout_{width, height, letters.Width},
        browser_(layout_),
        pieces_{"", document.Page(1), document.Page(2), document.Page(3), kUnpublished} {
    Update();
  }

  void Press(Input& input) {
    switch (input.Choice(8)) {
      case 0:
        return browser_.TurnForward();
      case 1:
        return browser_.TurnBack();
      case 2:
      case 3:
        return Follow();
      case 4:
        return GoBack();
      case 5:
        steps_ = 1;
        return browser_.Start(input.Choice(3) + 1);
      case 6:
        document_.Page(input.Choice(3) + 1) = pieces_.at(static_cast<std::size_t>(input.Choice(5)));
        options_ = {.NotesMenuLink = !options_.NotesMenuLink,
                    .BackgroundMusic = options_.BackgroundMusic != options_.NotesMenuLink};
        return Update();
      default:
        layout_.Lines = input.Choice(9);
        return browser_.SetLayout(layout_);
    }
  }

  void ExpectSound() const {
    Expect(browser_.Page() >= 0 && browser_.Page() <= kLastPage, "the page is one");
    if (std::holds_alternative<NotesMenu>(browser_.Shown())) {
      Expect(steps_ == 0, "the Notes menu stands at the beginning");
      ExpectSoundMenu(std::get<NotesMenu>(browser_.Shown()));
    } else {
      Expect(steps_ > 0, "only the Notes menu stands at the beginning");
    }
    if (const auto* note = std::get_if<NoteScreen>(&browser_.Shown())) {
      ExpectSoundPlace(*note, static_cast<std::size_t>(std::max(layout_.Lines, 1)));
      ExpectEqual(note->Shown().Text, ReadNote(NoteText(document_, browser_.Page(), options_)).Text,
                  "what is shown is what is published");
    }
  }

  /// As many steps back as there were forward lead to the Notes menu.
  void ReturnToMenu() {
    for (; steps_ > 0; --steps_) {
      Expect(!std::holds_alternative<NotesMenu>(browser_.Shown()), "no note was passed over");
      browser_.Menu();
    }
    ExpectSound();
  }

 private:
  void Update() { browser_.SetDocument(document_, options_); }

  void Follow() {
    const bool was_menu = std::holds_alternative<NotesMenu>(browser_.Shown());
    const Followed followed = browser_.Press();
    Expect(followed.Page == 0 || followed.Music.empty(), "what is followed is a page or music");
    if (followed.Page > 0) {
      Expect(browser_.Page() == followed.Page && !document_.Page(followed.Page).empty(), "the page is shown");
      ++steps_;
    } else if (!followed.Music.empty()) {
      if (!options_.BackgroundMusic) ++steps_;
    } else if (!was_menu && std::holds_alternative<NotesMenu>(browser_.Shown())) {
      steps_ = 0;
    }
  }

  void GoBack() {
    browser_.Menu();
    steps_ = std::max(steps_ - 1, 0);
  }

  void ExpectSoundMenu(const NotesMenu& menu) const {
    Expect(menu.Current() < menu.Entries().size() || menu.Entries().empty(), "an entry is current");
    Expect(menu.Top() <= menu.Current(), "the current entry is on the screen");
    const auto rows = static_cast<std::size_t>(std::max(layout_.Lines, 1));
    Expect(menu.Current() < menu.Top() + rows, "the current entry is on the screen");
  }

  Global& document_;
  PublishOptions options_;
  ScreenLayout layout_;
  PodBrowser browser_;
  std::array<Record, 5> pieces_;  ///< what pages can become
  int steps_ = 0;                 ///< that were taken from the Notes menu on
};

}  // namespace

/// An input is the kind of the letters' widths, the screen's width in two digits and its height; a line with
/// what is pressed on the device; a line with the record of music link 1, two lines with the records of pages
/// 2 and 3; and the rest is page 1 as well as a note.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const Letters letters = LettersOf(input.Choice(8));
  const int tens = input.Choice(10);
  const int width = 10 * tens + input.Choice(10);
  const int height = input.Choice(9);
  const std::string_view presses = input.Line();
  const auto document = std::make_unique<Global>();
  document->MusicLink(1) = input.Line();
  document->Page(2) = input.Line();
  document->Page(3) = input.Line();
  document->Page(1) = input.Rest();
  ExpectSoundNoteAndScreen(input.Rest(), width, height, letters);

  Walker walker(*document, letters, width, height);
  Input pressed(reinterpret_cast<const std::uint8_t*>(presses.data()), presses.size());
  while (!pressed.Rest().empty()) {
    walker.Press(pressed);
    walker.ExpectSound();
  }
  walker.ReturnToMenu();
  return 0;
}
