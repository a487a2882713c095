#include <array>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/ipod/literal_notes.h"
#include "core/ipod/note_reader.h"
#include "core/text/run_time_error.h"
#include "expect.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// Mostly none: many take their time.
constexpr std::array<int, 8> kTaken = {0, 98, 100, 0, 0, 0, 0, 0};
constexpr std::array<int, 3> kPages = {1, 1000, 1001};

std::vector<std::string> Split(std::string_view line) {
  std::vector<std::string> names(1);
  for (const char c : line) {
    if (c == '|') {
      names.emplace_back();
    } else {
      names.back() += c;
    }
  }
  return names;
}

/// A note that links to so many pieces of music.
std::string MusicNote(int pieces) {
  std::string note;
  for (int piece = 1; piece <= pieces; ++piece) {
    note += "<a href=\"song=" + std::to_string(piece) + "\">x</a>";
  }
  return note;
}

/// The records by the rules; nothing if the note is refused.
std::optional<test::LiteralDocument> LiterallyRead(const std::vector<std::string>& names,
                                                   const std::vector<std::string>& notes, int page) {
  test::LiteralReader reader(names);
  try {
    for (const std::string& note : notes) reader.ProcessInput(test::LiteralLines(note), page);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
  return reader.Document;
}

void ExpectSame(const Global& actual, const test::LiteralDocument& expected) {
  const test::LiteralDocument contents = test::ContentsOf(actual);
  for (const auto& [page, record] : expected.Pages) ExpectEqual(actual.Page(page), record, "the page");
  for (const auto& [link, record] : expected.MusicLinks) {
    ExpectEqual(actual.MusicLink(link), record, "the music link");
  }
  Expect(contents == expected, "no other page or music link is made");
}

/// A music link is one line of the document's file.
void ExpectMusicLinksOfOneLine(const Global& global) {
  for (const std::string& record : global.MusicLinks) {
    Expect(record.find_first_of("\r\n") == std::string::npos, "a music link is one line");
  }
}

}  // namespace

/// Any bytes are a note or a damaged one. An input is the numbers of the music links that are taken and of
/// the page, a line with the names of the folder's notes, bars between them, and a note, which is read twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto kGlobal = std::make_unique<Global>();
  Global& global = *kGlobal;
  Input input(data, size);
  const int taken = kTaken.at(static_cast<std::size_t>(input.Choice(kTaken.size())));
  const int page = kPages.at(static_cast<std::size_t>(input.Choice(kPages.size())));
  const std::vector<std::string> names = Split(input.Line());
  const std::string note(input.Rest());
  ExpectEqual(NoteLines(note), test::LiteralLines(note), "the lines of the note");

  ClearDocument(global);
  global.Page(1000).clear();
  const std::vector<std::string> notes = {MusicNote(taken), note, note};
  const std::optional<test::LiteralDocument> expected = LiterallyRead(names, notes, page);
  NoteReader reader(global, names, CodePage::Windows1252());
  try {
    for (const std::string& bytes : notes) reader.ProcessInput(NoteLines(bytes), page);
  } catch (const RunTimeError&) {
    Expect(!expected.has_value(), "only a damaged note is refused");
    return 0;
  }
  Expect(expected.has_value(), "a damaged note is refused");
  ExpectSame(global, *expected);
  ExpectMusicLinksOfOneLine(global);
  return 0;
}
