#include "monkey/long_use.h"

#include <QApplication>
#include <QPixmapCache>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "monkey/monkey.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

constexpr int kMeasurements = 24;
constexpr int kWarmUp = 4;  // measurements before which caches fill

/// What the toolkit and the allocator keep of what was in use differs from moment to moment: half a megabyte
/// is less than one leaked document in 10,000 actions would leave.
constexpr long kMemoryTolerance = 512;  // KiB

struct Cost {
  long Memory = 0;  ///< KiB
  long Heap = 0;    ///< KiB that are in use of what was allocated
  long Handles = 0;
  long Windows = 0;
  long Objects = 0;
  long TemporaryFiles = 0;
};

long ResidentMemory() {
  // The toolkit keeps pictures that it has drawn, up to 10 MiB of them, which would take hours to fill up.
  QPixmapCache::clear();
  malloc_trim(0);
  long size = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

long HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<long>((info.uordblks + info.hblkhd) / 1024);
}

long EntriesIn(const fs::path& folder) {
  long count = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder)) ++count;
  return count;
}

/// Files that no person has asked for: in the program's folder and in the system's folder for temporary ones,
/// where the sandbox itself is not counted.
long TemporaryFiles(const Stage& stage) {
  long count = 0;
  for (const auto& entry : fs::directory_iterator(stage.ProgramFolder)) {
    const std::string name = entry.path().filename().string();
    const bool is_usual = entry.is_directory() || name.ends_with(".dat") || name.ends_with(".bak") ||
                          name.ends_with(".pln") || name == "tavrel.ini";
    if (!is_usual) ++count;
  }
  return count + EntriesIn(stage.Sandbox.Path() / "tmp");
}

Cost Measure(Monkey& monkey) {
  // The same state each time: a program that has just started, without a document.
  monkey.Restart();
  RunEvents();
  RunEvents();
  const Stage& stage = monkey.Theatre();
  long objects = 0;
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (const QWidget* window : windows) objects += 1 + window->findChildren<QObject*>().size();
  return {ResidentMemory(), HeapInUse(), EntriesIn("/proc/self/fd"),
          windows.size(),   objects,     TemporaryFiles(stage)};
}

bool Grows(const char* what, const std::vector<Cost>& costs, long Cost::*number, long tolerance) {
  const auto least = [number](const Cost& a, const Cost& b) { return a.*number < b.*number; };
  const auto middle = costs.begin() + kWarmUp + (static_cast<long>(costs.size()) - kWarmUp) / 2;
  const long first = (*std::min_element(costs.begin() + kWarmUp, middle, least)).*number;
  const long second = (*std::min_element(middle, costs.end(), least)).*number;
  const bool grows = second > first + tolerance;
  std::printf("%-16s first half at least %ld, second half at least %ld: %s\n", what, first, second,
              grows ? "GROWS" : "does not grow");
  return grows;
}

}  // namespace

int UseForLong(int actions) {
  Monkey monkey(20, false);
  const fs::path temporary = monkey.Theatre().Sandbox.Path() / "tmp";
  fs::create_directory(temporary);
  setenv("TMPDIR", temporary.c_str(), 1);
  std::printf("  actions  memory/KiB  heap/KiB  handles  windows  objects  temporary files\n");
  std::vector<Cost> costs;
  for (int part = 1; part <= kMeasurements; ++part) {
    while (monkey.Done().Actions < actions * part / kMeasurements) {
      alarm(60);
      monkey.Act();
    }
    const Cost cost = Measure(monkey);
    costs.push_back(cost);
    std::printf("%9d %11ld %9ld %8ld %8ld %8ld %16ld\n", monkey.Done().Actions, cost.Memory, cost.Heap,
                cost.Handles, cost.Windows, cost.Objects, cost.TemporaryFiles);
    std::fflush(stdout);
  }
  std::printf("dialogs %d, messages %d, commands %d, starts %d\n", monkey.Dialogs(), monkey.Messages(),
              monkey.Done().Commands, monkey.Done().Starts);
  bool grows = Grows("memory/KiB", costs, &Cost::Memory, kMemoryTolerance);
  grows = Grows("handles", costs, &Cost::Handles, 0) || grows;
  grows = Grows("windows", costs, &Cost::Windows, 0) || grows;
  grows = Grows("objects", costs, &Cost::Objects, 0) || grows;
  grows = Grows("temporary files", costs, &Cost::TemporaryFiles, 0) || grows;
  return grows ? 1 : 0;
}

}  // namespace tavrel::test
