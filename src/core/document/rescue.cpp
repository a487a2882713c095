#include "core/document/rescue.h"

#include <string>
#include <system_error>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr int kMostNames = 1000;

/// "Guide (rescued).dat", then "Guide 2 (rescued).dat" and so on; empty if all are taken.
fs::path FreeName(const fs::path& folder, const fs::path& document_name) {
  for (int number = 1; number <= kMostNames; ++number) {
    fs::path name = document_name;
    if (number > 1) name += " " + std::to_string(number);
    name += " (rescued).dat";
    std::error_code error;
    if (!fs::exists(fs::symlink_status(folder / name, error))) return folder / name;
  }
  return {};
}

}  // namespace

fs::path RescueDocument(const Global& global, Platform& platform, const std::vector<fs::path>& folders) {
  const std::string text = DocumentText(global);
  for (const fs::path& folder : folders) {
    const fs::path copy = FreeName(folder, DocumentName(global));
    if (copy.empty()) continue;
    try {
      platform.WriteWholeFile(copy, text);
      return copy;
    } catch (const RunTimeError&) {
      // The next folder may take it.
    }
  }
  return {};
}

}  // namespace tavrel
