#include "core/document/rescue.h"

#include <exception>
#include <string>
#include <system_error>

#include "core/document/document_file.h"

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
    // The document's own name may be one that no file system takes, or too long with its addition.
    for (const fs::path& name : {DocumentName(global), fs::path("Project")}) {
      const fs::path copy = FreeName(folder, name);
      if (copy.empty()) continue;
      try {
        platform.WriteWholeFile(copy, text);
        return copy;
      } catch (const std::exception&) {
        // The next name or folder may do.
      }
    }
  }
  return {};
}

}  // namespace tavrel
