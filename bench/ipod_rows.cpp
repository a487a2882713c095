#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "core/ipod/folder_store.h"
#include "core/ipod/note_reader.h"
#include "core/ipod/note_writer.h"
#include "core/text/file_names.h"
#include "rows.h"
#include "support/fake_platform.h"
#include "support/full_size_document.h"
#include "support/temporary_folder.h"

namespace tavrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRepetitions = 25;
constexpr int kCopies = 11;

/// The notes of the full-size document in a folder.
struct Published {
  test::TemporaryFolder Folder;
  test::FakePlatform System;
  fs::path Notes = Folder.Path() / "Full size";
  std::vector<fs::path> Names;

  Published() {
    auto state = std::make_unique<Global>();
    test::MakeFullSizeDocument(*state);
    PublishNotes(*state, System, Notes, {.NotesMenuLink = true, .BackgroundMusic = true});
    for (const FolderFile& file : ListFiles(Notes, ".txt", System.SystemCodePage()))
      Names.push_back(file.Name);
    System.FlushesVolumes = false;
  }
};

double TimeImport(const Published& published) {
  auto state = std::make_unique<Global>();
  return Seconds([&] {
    ImportNotes(*state, published.Notes, published.Names, published.System.SystemCodePage(), [](int) {});
  });
}

void ReadByTheSystem(const fs::path& file, std::string& buffer) {
  const int handle = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  if (handle < 0 || ::fstat(handle, &status) != 0) throw std::runtime_error("cannot open a note");
  buffer.resize(static_cast<std::size_t>(status.st_size));
  if (::read(handle, buffer.data(), buffer.size()) < 0) throw std::runtime_error("cannot read a note");
  ::close(handle);
  benchmark::DoNotOptimize(buffer.data());
}

double TimeReading(const Published& published) {
  std::string buffer;
  return Seconds([&] {
    for (const fs::path& name : published.Names) ReadByTheSystem(published.Notes / name, buffer);
  });
}

std::string NoteWithAnchors(int count) {
  std::string note;
  for (int anchor = 0; anchor < count; ++anchor)
    note += "Go to <a href=\"z002.txt\">the second page</a> now.\r\n";
  return note;
}

double TimeAnchors(const std::string& note) {
  auto state = std::make_unique<Global>();
  NoteReader reader(*state, {"z001.txt", "z002.txt"}, CodePage::Windows1252());
  return Seconds([&] { reader.ProcessInput(note, 1); });
}

double TimeCopy(Published& published, const fs::path& target) {
  return Seconds([&] { CopyFolder(published.Notes, target, published.System, [](int, int) {}); });
}

double TimeCp(const Published& published, const fs::path& target) {
  const std::string command = "cp -r '" + published.Notes.string() + "' '" + target.string() + "'";
  return Seconds([&] {
    if (std::system(command.c_str()) != 0) throw std::runtime_error(command);
  });
}

}  // namespace

std::vector<Row> IpodRows() {
  Published published;
  const Row import = Compare(
      "import 999 notes : open, read, close them", 3, kRepetitions, [&] { return TimeImport(published); },
      [&] { return TimeReading(published); });
  const std::string many = NoteWithAnchors(10'000);
  const std::string few = NoteWithAnchors(1'000);
  const Row anchors = Compare(
      "note of 10,000 anchors : of 1,000", 12, kRepetitions, [&] { return TimeAnchors(many); },
      [&] { return TimeAnchors(few); });
  // The copies all stay until the end: some file systems are slow to create files where others have just been
  // deleted.
  int copies = 0;
  const auto next = [&] { return published.Folder.Path() / ("copy " + std::to_string(++copies)); };
  const Row copy = Compare(
      "copy 999 notes, flush excluded : cp -r", 1.25, kCopies, [&] { return TimeCopy(published, next()); },
      [&] { return TimeCp(published, next()); });
  return {import, anchors, copy};
}

}  // namespace tavrel::bench
