#include "core/document/document_file.h"
#include "core/ipod/note_writer.h"
#include "platform/system_platform.h"
#include "rows.h"
#include "support/full_size_document.h"
#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <string>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tavrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRepetitions = 25;
constexpr mode_t kNewFileMode = 0666;
constexpr PublishOptions kOptions{.NotesMenuLink = true, .BackgroundMusic = true};

template <typename Result>
Result Checked(Result result, const char* call) {
  if (result < 0) throw std::system_error(errno, std::generic_category(), call);
  return result;
}

/// The full-size document, with its file in a folder of its own.
struct FullSize {
  test::TemporaryFolder Folder;
  std::unique_ptr<Platform> System = MakeSystemPlatform();
  std::unique_ptr<Global> State = std::make_unique<Global>();

  FullSize() {
    test::MakeFullSizeDocument(*State);
    State->ProgramFolder = Folder.Path();
    State->DocPath = "Full size.dat";
    SaveDocument(*State, *System);
  }
};

/// Gives what earlier repetitions freed back to the system, so that each one pays for its memory as the first
/// load of a program does.
void ForgetFreedMemory() {
  ::malloc_trim(0);
}

double TimeLoading(const FullSize& full) {
  ForgetFreedMemory();
  auto loaded = std::make_unique<Global>();
  loaded->ProgramFolder = full.State->ProgramFolder;
  loaded->DocPath = full.State->DocPath;
  const double seconds = Seconds([&] { LoadDocument(*loaded); });
  benchmark::DoNotOptimize(loaded->Pages.data());
  return seconds;
}

double TimeReading(const fs::path& file, std::size_t size) {
  ForgetFreedMemory();
  std::unique_ptr<char[]> bytes;
  return Seconds([&] {
    const int handle = Checked(::open(file.c_str(), O_RDONLY | O_CLOEXEC), "open");
    bytes = std::make_unique_for_overwrite<char[]>(size);
    Checked(::read(handle, bytes.get(), size), "read");
    ::close(handle);
    benchmark::DoNotOptimize(bytes.get());
    benchmark::ClobberMemory();
  });
}

void WriteAtOnce(const fs::path& file, const std::string& bytes, bool flush) {
  const int handle =
      Checked(::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kNewFileMode), "open");
  Checked(::write(handle, bytes.data(), bytes.size()), "write");
  if (flush) Checked(::fsync(handle), "fsync");
  Checked(::close(handle), "close");
}

using Notes = std::vector<std::pair<fs::path, std::string>>;

Notes PreparedNotes(const Global& global, const fs::path& folder) {
  Notes notes;
  for (int page = 1; page <= kLastPage; ++page) {
    notes.emplace_back(folder / NoteName(page), NoteText(global, page, kOptions));
  }
  return notes;
}

double TimePublishing(const FullSize& full) {
  const fs::path folder = full.Folder.Path() / "published";
  const double seconds = Seconds([&] { PublishNotes(*full.State, *full.System, folder, kOptions); });
  fs::remove_all(folder);
  return seconds;
}

double TimeWritingNotes(const Notes& notes) {
  const fs::path folder = notes.front().first.parent_path();
  fs::create_directory(folder);
  const double seconds = Seconds([&] {
    for (const auto& [file, bytes] : notes) WriteAtOnce(file, bytes, false);
  });
  fs::remove_all(folder);
  return seconds;
}

}  // namespace

std::vector<Row> FileRows() {
  // A fixed threshold: the library's own one grows once a big block is freed, and blocks would be reused.
  ::mallopt(M_MMAP_THRESHOLD, 128 * 1024);

  const FullSize full;
  const fs::path file = DocumentFile(*full.State);
  const std::string text = DocumentText(*full.State);
  const fs::path raw_file = full.Folder.Path() / "raw";
  const Notes notes = PreparedNotes(*full.State, full.Folder.Path() / "raw notes");

  std::vector<Row> rows;
  rows.push_back(Compare(
      "load the document : read its file", 4, kRepetitions, [&] { return TimeLoading(full); },
      [&] { return TimeReading(file, text.size()); }));
  rows.push_back(Compare(
      "save the document : write and flush", 2, kRepetitions,
      [&] { return Seconds([&] { SaveDocument(*full.State, *full.System); }); },
      [&] { return Seconds([&] { WriteAtOnce(raw_file, text, true); }); }));
  rows.push_back(Compare(
      "publish 999 notes : write 999 files", 1.25, kRepetitions, [&] { return TimePublishing(full); },
      [&] { return TimeWritingNotes(notes); }));
  return rows;
}

}  // namespace tavrel::bench
