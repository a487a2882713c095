#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "core/document/document_file.h"
#include "core/ipod/note_writer.h"
#include "core/text/text_files.h"
#include "platform/system_platform.h"
#include "raw_notes.h"
#include "rows.h"
#include "started_program.h"
#include "support/full_size_document.h"
#include "support/temporary_folder.h"

namespace tavrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRuns = 11;
constexpr const char* kNotes = TAVREL_BENCH_NOTES;
constexpr const char* kRawNotes = TAVREL_BENCH_RAW_NOTES;
constexpr PublishOptions kOptions{.NotesMenuLink = true, .BackgroundMusic = true};

std::string RawNotesOf(const Global& global) {
  std::string bytes;
  for (int page = 1; page <= kLastPage; ++page) {
    const std::string text = NoteText(global, page, kOptions);
    RawNote note{};
    NoteName(page).copy(note.Name, sizeof note.Name - 1);
    note.Size = text.size();
    bytes.append(reinterpret_cast<const char*>(&note), sizeof note).append(text);
  }
  return bytes;
}

/// The full-size document as a file, and its notes for the baseline.
struct Files {
  test::TemporaryFolder Folder;
  fs::path Document = Folder.Path() / "Full size.dat";
  fs::path Raw = Folder.Path() / "raw";
  int Folders = 0;

  Files() {
    const auto system = MakeSystemPlatform();
    const auto state = std::make_unique<Global>();
    test::MakeFullSizeDocument(*state);
    system->WriteWholeFile(Document, DocumentText(*state));
    system->WriteWholeFile(Raw, RawNotesOf(*state));
  }

  /// A folder that is not there yet. They all stay until the end: some file systems are slow to create files
  /// where others have just been deleted.
  fs::path Next() { return Folder.Path() / ("notes " + std::to_string(++Folders)); }
};

double TimePublishing(Files& files) {
  return RunToItsEnd(
      {kNotes, "publish", "--notes-menu-link", files.Document.string(), files.Next().string()});
}

double TimeCreating(Files& files) {
  return RunToItsEnd({kRawNotes, files.Raw.string(), files.Next().string()});
}

/// The baseline is none unless it writes the same.
void CompareLastFolders(const Files& files) {
  const fs::path one = files.Folder.Path() / ("notes " + std::to_string(files.Folders - 1));
  const fs::path other = files.Folder.Path() / ("notes " + std::to_string(files.Folders));
  for (int page = 1; page <= kLastPage; ++page) {
    if (ReadWholeFile(one / NoteName(page)) != ReadWholeFile(other / NoteName(page)))
      throw std::runtime_error("the notes of the companion are not those of the baseline");
  }
}

}  // namespace

std::vector<Row> NotesRows() {
  // Kept until the program ends: other rows create files, too.
  static Files files;
  const Row publish = Compare(
      "tavrel-notes publish : create 999 files", 1.5, kRuns, [&] { return TimePublishing(files); },
      [&] { return TimeCreating(files); });
  CompareLastFolders(files);
  return {publish};
}

}  // namespace tavrel::bench
