#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <exception>

#include "rows.h"

/// Prints every figure as a ratio to the raw cost of the same work in the same run. How fast the machine is
/// never makes it fail.
int main(int argc, char* argv[]) {
  using namespace tavrel::bench;
  const bool has_display = std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
  if (!has_display) ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  ::setenv("QT_LOGGING_RULES", "*.warning=false", 1);
  QApplication application(argc, argv);
  try {
    std::vector<Row> rows;
    for (const auto& more : {NotesRows, FileRows, WindowRows, EditingRows, HistoryRows, PreviewRows,
                             CheckRows, FindAllRows, IpodRows, ProcessRows}) {
      for (Row& row : more()) rows.push_back(std::move(row));
    }
    PrintTable(rows);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "The figures could not be measured: %s\n", error.what());
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
