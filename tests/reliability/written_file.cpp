#include "reliability/written_file.h"

#include <ostream>
#include <regex>

#include "core/document/backups.h"
#include "core/document/document_file.h"
#include "core/document/recovery.h"
#include "core/planner/plan_file.h"
#include "core/shell/settings.h"
#include "core/text/run_time_error.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

/// A plan with a text in each of its 25 cells and no ticks: 5 lines, and 5 for each cell.
std::string PlanLines(const std::string& text) {
  std::vector<std::string> lines = {"001", "N", "S", "E", "W"};
  for (int cell = 0; cell < 25; ++cell) lines.insert(lines.end(), {text, " 0 ", " 0 ", " 0 ", " 0 "});
  return Lines(lines);
}

WrittenFile Document() {
  return {.Title = "Document",
          .Name = "Guide.dat",
          .Old = std::string(kGuide),
          .New = std::string(kTrio),
          .Others = {{"Guide.bak", "a backup"}},
          .Save = [](const fs::path& folder, Platform& platform) {
            Global global;
            global.ProgramFolder = folder;
            global.DocPath = "Guide.dat";
            ReadDocumentText(kTrio, global);
            SaveDocument(global, platform);
          }};
}

WrittenFile PlanOfPages() {
  return {.Title = "Plan",
          .Name = "Tour.pln",
          .Old = PlanLines("from before"),
          .New = PlanLines("new"),
          .Others = {{"Other.pln", "another plan"}},
          .Save = [](const fs::path& folder, Platform& platform) {
            Global global;
            global.ProgramFolder = folder;
            global.PlanPath = "Tour.pln";
            Plan plan{.TopLeft = "001", .North = "N", .South = "S", .East = "E", .West = "W", .Cells = {}};
            for (PlanCell& cell : plan.Cells) cell.Text = "new";
            SavePlan(plan, global, platform);
          }};
}

WrittenFile SettingsFile() {
  std::vector<std::string> lines(20);
  lines[1] = "&HFF&";
  lines[9] = "0";
  return {.Title = "Settings",
          .Name = "tavrel.ini",
          .Old = Lines(std::vector<std::string>(20, "from before")),
          .New = Lines(lines),
          .Others = {{"Guide.dat", std::string(kGuide)}},
          .Save = [](const fs::path& folder, Platform& platform) {
            Global global;
            global.ProgramFolder = folder;
            global.Settings[2] = "&HFF&";
            SaveSettings(global, platform);
          }};
}

WrittenFile Backup() {
  return {.Title = "Backup",
          .Name = "Guide.bak",
          .Old = std::string(kSongs),
          .New = std::string(kGuide),
          .Others = {{"Guide.dat", std::string(kGuide)}},
          .Save = [](const fs::path& folder, Platform& platform) {
            Global global;
            global.ProgramFolder = folder;
            BackUpDocument("Guide.dat", global, platform);
          }};
}

WrittenFile RestoredDocument() {
  return {.Title = "RestoredDocument",
          .Name = "Guide.dat",
          .Old = std::string(kGuide),
          .New = std::string(kSongs),
          .Others = {{"Guide.bak", std::string(kSongs)}},
          .Save = [](const fs::path& folder, Platform& platform) {
            Global global;
            global.ProgramFolder = folder;
            RestoreDocument("Guide.bak", global, platform);
          }};
}

WrittenFile DraftOfDocument() {
  const std::string heading = "recovery," + std::to_string(kTrio.size()) + ",Guide.dat\r\n";
  return {.Title = "Draft",
          .Name = ".tavrel-1.recovery",
          .Old = "recovery,2,Guide.dat\r\n\r\n",
          .New = heading + std::string(kTrio),
          .Others = {{"Guide.dat", std::string(kGuide)}},
          .Save = [](const fs::path& folder, Platform& platform) {
            KeepDraft({"Guide.dat", std::string(kTrio)}, folder / ".tavrel-1.recovery", platform);
          }};
}

}  // namespace

const std::vector<WrittenFile>& WrittenFiles() {
  static const std::vector<WrittenFile> files = {Document(), PlanOfPages(),      SettingsFile(),
                                                 Backup(),   RestoredDocument(), DraftOfDocument()};
  return files;
}

void PrintTo(const WrittenFile& file, std::ostream* out) {
  *out << file.Title;
}

std::string FileErrorOf(const std::function<void()>& write) {
  try {
    write();
  } catch (const FileError& error) {
    return error.what();
  }
  return {};
}

std::vector<fs::path> TemporariesIn(const fs::path& folder) {
  static const std::regex temporary(R"(\.tavrel-[0-9]+\.tmp)");
  std::vector<fs::path> found;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (std::regex_match(entry.path().filename().string(), temporary)) found.push_back(entry.path());
  }
  return found;
}

}  // namespace tavrel::test
