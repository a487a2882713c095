#include "reliability/saved_versions.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <memory>

#include "core/document/backups.h"
#include "core/document/document_file.h"
#include "core/planner/plan_file.h"
#include "core/shell/settings.h"
#include "support/full_size_document.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

std::string Mark(int version) {
  return "<note>version " + std::to_string(version) + "</note>";
}

/// A full-size document, of which each version takes some pages and marks them.
const Global& FullSize() {
  static const auto document = [] {
    auto made = std::make_unique<Global>();
    MakeFullSizeDocument(*made);
    return made;
  }();
  return *document;
}

int Pages(int version) {
  if (version >= kSmallVersions) return 1 + version % 3;
  if (version % 2 != 0) return 1;
  return version % 4 == 0 ? kLastPage : 40;
}

/// A version's document, made of the one before it of as many pages, so that most of the time goes into
/// saving.
Global& DocumentVersion(int version) {
  static std::map<int, std::unique_ptr<Global>> made;
  std::unique_ptr<Global>& global = made[Pages(version)];
  if (!global) {
    global = std::make_unique<Global>();
    global->MusicLinks = FullSize().MusicLinks;
  }
  const std::string mark = Mark(version);
  for (int page = 1; page <= Pages(version); ++page) {
    const std::string& record = FullSize().Page(page);
    if (global->Page(page).empty()) global->Page(page) = record;
    global->Page(page).Edit().replace(record.size(), std::string::npos, mark);
  }
  return *global;
}

/// Whether a text is another with something behind it.
bool Is(const std::string& text, const std::string& start, const std::string& end) {
  return text.size() == start.size() + end.size() && text.starts_with(start) && text.ends_with(end);
}

std::string CellText(int version) {
  return "version " + std::to_string(version) + std::string(static_cast<std::size_t>(version % 3) * 500, '.');
}

std::string Setting(int version, std::size_t entry) {
  return std::to_string(version) + " of " + std::to_string(entry) +
         std::string(static_cast<std::size_t>(version % 3) * 200, '.');
}

constexpr std::size_t kSkinFlag = 10;

}  // namespace

void SaveDocumentVersion(int version, const fs::path& folder, Platform& platform) {
  Global& global = DocumentVersion(version);
  global.ProgramFolder = folder;
  global.DocPath = "Guide.dat";
  SaveDocument(global, platform);
}

bool IsDocumentVersion(int version, const fs::path& file) {
  const auto global = std::make_unique<Global>();
  global->ProgramFolder = file.parent_path();
  global->DocPath = file.filename();
  LoadDocument(*global);
  const std::string mark = Mark(version);
  for (int page = 1; page <= kLastPage; ++page) {
    const bool is_same = page <= Pages(version) ? Is(global->Page(page), FullSize().Page(page), mark)
                                                : global->Page(page).empty();
    if (!is_same) return false;
  }
  return global->MusicLinks == FullSize().MusicLinks;
}

void SavePlanVersion(int version, const fs::path& folder, Platform& platform) {
  Global global;
  global.ProgramFolder = folder;
  global.PlanPath = "Tour.pln";
  Plan plan;
  plan.TopLeft = plan.North = plan.South = plan.East = plan.West = std::to_string(version);
  for (PlanCell& cell : plan.Cells) {
    cell.Text = CellText(version);
    cell.West = cell.North = version % 2;
  }
  SavePlan(plan, global, platform);
}

bool IsPlanVersion(int version, const fs::path& folder) {
  Global global;
  global.ProgramFolder = folder;
  global.PlanPath = "Tour.pln";
  const Plan plan = LoadPlan(global);
  const bool has_lines = std::ranges::all_of(
      std::initializer_list<std::string>{plan.TopLeft, plan.North, plan.South, plan.East, plan.West},
      [version](const std::string& line) { return line == std::to_string(version); });
  return has_lines && std::ranges::all_of(plan.Cells, [version](const PlanCell& cell) {
           return cell.Text == CellText(version) && cell.West == version % 2 && cell.North == version % 2 &&
                  cell.East == kTickOff && cell.South == kTickOff;
         });
}

void SaveSettingsVersion(int version, const fs::path& folder, Platform& platform) {
  Global global;
  global.ProgramFolder = folder;
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry)
    global.Settings[entry] = Setting(version, entry);
  global.UseSkin = version % 2 != 0;
  SaveSettings(global, platform);
}

bool AreSettingsVersion(int version, const fs::path& folder, Platform& platform) {
  Global global;
  global.ProgramFolder = folder;
  LoadSettings(global, platform);
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry) {
    if (entry != kSkinFlag && global.Settings[entry] != Setting(version, entry)) return false;
  }
  return global.UseSkin == (version % 2 != 0);
}

void SaveBackupVersion(int version, const fs::path& folder, Platform& platform) {
  const int small = kSmallVersions + version;
  Global global;
  global.ProgramFolder = folder;
  if (version % 2 != 0) {
    SaveDocumentVersion(small, folder, platform);
    BackUpDocument("Guide.dat", global, platform);
  } else {
    platform.WriteWholeFile(folder / "Guide.bak", DocumentText(DocumentVersion(small)));
    RestoreDocument("Guide.bak", global, platform);
  }
}

}  // namespace tavrel::test
