#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/document/document_file.h"
#include "core/ipod/literal_notes.h"
#include "core/ipod/note_reader.h"
#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "core/text/stored_lines.h"
#include "expect.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;
using test::LiteralDocument;

namespace {

constexpr int kMostPages = 8;
constexpr int kMusicLinks = 3;

/// Notes by their file names; nothing stands for a run-time error.
using Notes = std::optional<std::map<std::string, std::string>>;
using NoteOf = std::function<std::string(const Global&, int, const PublishOptions&)>;

Notes Published(const Global& global, const PublishOptions& options, const NoteOf& note_of) {
  Notes notes(std::in_place);
  try {
    for (int page = 1; page <= kLastPage; ++page) {
      if (!global.Page(page).empty()) (*notes)[NoteName(page)] = note_of(global, page, options);
    }
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
  return notes;
}

Notes PublishAsTheRulesSay(const Global& global, const PublishOptions& options) {
  const Notes notes = Published(global, options, NoteText);
  const Notes expected = Published(global, options, LiteralNote);
  Expect(notes.has_value() == expected.has_value(), "a run-time error where the rules have one");
  if (!notes) return notes;
  for (const auto& [name, bytes] : *expected) ExpectEqual(notes->at(name), bytes, "the note");
  return notes;
}

/// False if a note cannot be imported.
bool Import(const std::map<std::string, std::string>& notes, Global& global) {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : notes) names.push_back(name);
  NoteReader reader(global, names, CodePage::Windows1252());
  int page = 0;
  try {
    for (const auto& [name, bytes] : notes) reader.ProcessInput(NoteLines(bytes), ++page);
  } catch (const RunTimeError&) {
    return false;
  }
  return true;
}

std::optional<LiteralDocument> LiterallyImported(const std::map<std::string, std::string>& notes) {
  try {
    return test::LiteralImport(notes);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

void ExpectSame(const Global& actual, const LiteralDocument& expected) {
  for (const auto& [page, record] : expected.Pages) ExpectEqual(actual.Page(page), record, "the page");
  for (const auto& [link, record] : expected.MusicLinks) {
    ExpectEqual(actual.MusicLink(link), record, "the music link");
  }
  Expect(test::ContentsOf(actual) == expected, "no other page or music link is made");
}

}  // namespace

/// A document is published, imported, saved, loaded and published again, each time as the rules say. An input
/// is the number of the options, three lines with the records of music links 1 to 3, and up to eight with
/// those of pages from 1 on, as the document's file holds them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const int chosen = input.Choice(4);
  const PublishOptions options{.NotesMenuLink = chosen % 2 == 1, .BackgroundMusic = chosen >= 2};
  const auto document = std::make_unique<Global>();
  for (int link = 1; link <= kMusicLinks; ++link) document->MusicLink(link) = input.Line();
  for (int page = 1; page <= kMostPages; ++page) document->Page(page) = WithLineBreaks(input.Line());

  const Notes notes = PublishAsTheRulesSay(*document, options);
  if (!notes) return 0;
  const std::optional<LiteralDocument> expected = LiterallyImported(*notes);
  const auto imported = std::make_unique<Global>();
  const bool is_imported = Import(*notes, *imported);
  Expect(is_imported == expected.has_value(), "notes are refused where the rules refuse them");
  if (!is_imported) return 0;
  ExpectSame(*imported, *expected);

  const std::string file = DocumentText(*imported);
  ExpectEqual(file, test::LiteralFile(*expected), "the document's file");
  const auto loaded = std::make_unique<Global>();
  ReadDocumentText(file, *loaded);
  ExpectSame(*loaded, test::LiteralSavedAndLoaded(*expected));
  ExpectEqual(DocumentText(*loaded), file, "the same bytes are saved again");
  PublishAsTheRulesSay(*loaded, options);
  return 0;
}
