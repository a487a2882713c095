#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "core/document/document_file.h"
#include "platform/system_platform.h"
#include "rows.h"
#include "started_program.h"
#include "support/full_size_document.h"
#include "support/temporary_folder.h"

namespace tavrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kStarts = 25;
constexpr int kMemoryRuns = 5;
constexpr const char* kProgram = TAVREL_BENCH_PROGRAM;
constexpr const char* kBareWindow = TAVREL_BENCH_BARE_WINDOW;

/// A user's home in which the program has run before, with the full-size document as its only project.
class PreparedHome {
 public:
  PreparedHome() {
    ::setenv("HOME", home_.Path().c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", (home_.Path() / ".config").c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", home_.Path().c_str(), 1);
    fs::permissions(home_.Path(), fs::perms::owner_all);
    RunAndWait({kProgram});

    const fs::path folder = home_.Path() / "Documents" / "Tavrel Writer";
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".dat") fs::remove(entry.path());
    }
    Global full;
    test::MakeFullSizeDocument(full);
    full.ProgramFolder = folder;
    full.DocPath = "Full size.dat";
    SaveDocument(full, *MakeSystemPlatform());
    file_megabytes_ = static_cast<double>(fs::file_size(DocumentFile(full))) / (1024 * 1024);
  }

  double FileMegabytes() const { return file_megabytes_; }

 private:
  test::TemporaryFolder home_;
  double file_megabytes_ = 0;
};

double MedianOf(double Report::*figure, int runs, const std::vector<std::string>& command) {
  std::vector<double> figures;
  for (int run = 0; run < runs; ++run) figures.push_back(RunAndWait(command).*figure);
  return Median(figures);
}

double MedianMemory(const std::vector<std::string>& command) {
  return MedianOf(&Report::Megabytes, kMemoryRuns, command);
}

std::string Megabytes(double megabytes) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f MB", megabytes);
  return text;
}

Row StartRow() {
  Row row = Compare(
      "start to first paint : bare window", 1.5, kStarts, [] { return RunAndWait({kProgram}).Seconds; },
      [] { return RunAndWait({kBareWindow}).Seconds; });
  row.Note = Milliseconds(MedianOf(&Report::Seconds, kStarts, {kBareWindow, "menu"})) + " with one menu";
  return row;
}

Row MemoryRow(double file) {
  const double opened = MedianMemory({kProgram, "open"});
  const double bare = MedianMemory({kBareWindow});
  return {"memory over the bare window's : file size",
          Megabytes(opened - bare),
          Megabytes(file),
          (opened - bare) / file,
          3,
          Megabytes(opened) + " with it open, " + Megabytes(MedianMemory({kProgram})) + " without, " +
              Megabytes(bare) + " bare"};
}

}  // namespace

std::vector<Row> ProcessRows() {
  const PreparedHome home;
  return {StartRow(), MemoryRow(home.FileMegabytes())};
}

}  // namespace tavrel::bench
