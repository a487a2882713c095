#include <benchmark/benchmark.h>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "core/document/document_file.h"
#include "core/ipod/note_writer.h"
#include "platform/system_platform.h"
#include "rows.h"
#include "support/full_size_document.h"
#include "support/temporary_folder.h"

namespace tavrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRepetitions = 25;
constexpr int kPublishings = 11;
constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kNewFolderMode = 0777;
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

/// From now on big blocks come fresh from the system, as they do when a program has just started. The library
/// would otherwise keep them for reuse once one was freed.
void MakeMemoryFresh() {
  ::mallopt(M_MMAP_THRESHOLD, 128 * 1024);
}

/// Gives the small blocks of earlier repetitions back too, so that each load pays for its memory.
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

/// Numbered folders, one for each repetition. They all stay until the end: some file systems are slow to
/// create files where others have just been deleted.
class Folders {
 public:
  explicit Folders(const FullSize& full) : parent_(full.Folder.Path()) {}

  fs::path Next() { return parent_ / ("notes " + std::to_string(++last_)); }

 private:
  fs::path parent_;
  int last_ = 0;
};

double TimePublishing(const FullSize& full, const fs::path& folder) {
  return Seconds([&] { PublishNotes(*full.State, *full.System, folder, kOptions); });
}

double TimeWritingNotes(const FullSize& full, const fs::path& folder) {
  const Notes notes = PreparedNotes(*full.State, folder);
  return Seconds([&] {
    Checked(::mkdir(folder.c_str(), kNewFolderMode), "mkdir");
    for (const auto& [file, bytes] : notes) WriteAtOnce(file, bytes, false);
  });
}

}  // namespace

std::vector<Row> FileRows() {
  const FullSize full;
  const fs::path file = DocumentFile(*full.State);
  const std::string text = DocumentText(*full.State);
  const fs::path raw_file = full.Folder.Path() / "raw";
  Folders folders(full);

  const Row save = Compare(
      "save the document : write and flush", 2, kRepetitions,
      [&] { return Seconds([&] { SaveDocument(*full.State, *full.System); }); },
      [&] { return Seconds([&] { WriteAtOnce(raw_file, text, true); }); });
  const Row publish = Compare(
      "publish 999 notes : write 999 files", 1.25, kPublishings,
      [&] { return TimePublishing(full, folders.Next()); },
      [&] { return TimeWritingNotes(full, folders.Next()); });
  MakeMemoryFresh();
  const Row load = Compare(
      "load the document : read its file", 4, kRepetitions, [&] { return TimeLoading(full); },
      [&] { return TimeReading(file, text.size()); });
  return {load, save, publish};
}

}  // namespace tavrel::bench
