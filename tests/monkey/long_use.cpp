#include "monkey/long_use.h"

#include <QApplication>
#include <QComboBox>
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
#include "monkey/texts.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

constexpr int kMeasurements = 24;
constexpr int kWarmUp = 8;  // measurements before which caches fill

/// The toolkit's tables of glyphs, fonts and accessible objects and the allocator's leftovers go on growing
/// for hours, by about a mebibyte in 7,200 actions. Fields and lists keep the room that they once needed,
/// which doubles at a time: a field's own history has an entry for each letter of a long paste and grows by
/// 128 KiB at once. What is left behind of windows is counted as objects.
constexpr long kHourOfUse = 7200;             // actions
constexpr long kMemoryTolerance = 1280;       // KiB in an hour of use
constexpr long kLeastMemoryTolerance = 1024;  // KiB

/// A dialog has more than that, and one that was left behind would not be the only one.
constexpr long kObjectTolerance = 10;

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
  // The same state each time: no document is open. What the windows keep of the use before counts.
  monkey.CloseDocument();
  monkey.ClosePanels();
  // A window keeps a picture of itself, as large as somebody has made it last.
  Main& window = monkey.Theatre().Window();
  window.setUpdatesEnabled(true);
  window.resize(900, 600);
  window.repaint();
  RunEvents();
  RunEvents();
  const Stage& stage = monkey.Theatre();
  long objects = 0;
  const QWidgetList windows = QApplication::topLevelWidgets();
  for (const QWidget* shown : windows) objects += 1 + shown->findChildren<QObject*>().size();
  return {ResidentMemory(), HeapInUse(), EntriesIn("/proc/self/fd"),
          windows.size(),   objects,     TemporaryFiles(stage)};
}

/// The middle one of the numbers. A start in between, after a run-time error, leaves less for a while.
long Median(std::vector<Cost>::const_iterator first, std::vector<Cost>::const_iterator end,
            long Cost::*number) {
  std::vector<long> numbers;
  for (; first != end; ++first) numbers.push_back((*first).*number);
  std::sort(numbers.begin(), numbers.end());
  return numbers[numbers.size() / 2];
}

bool Grows(const char* what, const std::vector<Cost>& costs, long Cost::*number, long tolerance) {
  const auto middle = costs.begin() + kWarmUp + (static_cast<long>(costs.size()) - kWarmUp) / 2;
  const long first = Median(costs.begin() + kWarmUp, middle, number);
  const long second = Median(middle, costs.end(), number);
  const bool grows = second > first + tolerance;
  std::printf("%-16s first half %ld, second half %ld: %s\n", what, first, second,
              grows ? "GROWS" : "does not grow");
  return grows;
}

}  // namespace

int UseForLong(int actions) {
  TypePlainly();
  Monkey monkey(20, false);
  // A list makes its window when it is first needed, however late that is.
  for (const QComboBox* list : monkey.Theatre().Window().findChildren<QComboBox*>()) list->view();
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
  const long apart = actions * (kMeasurements - kWarmUp) / 2 / kMeasurements;
  const long tolerance = std::max(kLeastMemoryTolerance, kMemoryTolerance * apart / kHourOfUse);
  bool grows = Grows("memory/KiB", costs, &Cost::Memory, tolerance);
  grows = Grows("heap/KiB", costs, &Cost::Heap, tolerance) || grows;
  grows = Grows("handles", costs, &Cost::Handles, 0) || grows;
  grows = Grows("windows", costs, &Cost::Windows, 0) || grows;
  grows = Grows("objects", costs, &Cost::Objects, kObjectTolerance) || grows;
  grows = Grows("temporary files", costs, &Cost::TemporaryFiles, 0) || grows;
  return grows ? 1 : 0;
}

}  // namespace tavrel::test
