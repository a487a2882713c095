#include "core/document/document_copy.h"

#include <exception>
#include <string>
#include <system_error>

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr int kMostNames = 1000;

}  // namespace

fs::path CopyName(const fs::path& folder, const fs::path& name, int number, std::string_view why,
                  std::string_view extension) {
  fs::path numbered = name;
  if (number > 1) numbered += " " + std::to_string(number);
  numbered += " (" + std::string(why) + ")" + std::string(extension);
  return folder / numbered;
}

fs::path FreeName(const fs::path& folder, const fs::path& name, std::string_view why,
                  std::string_view extension) {
  for (int number = 1; number <= kMostNames; ++number) {
    fs::path copy = CopyName(folder, name, number, why, extension);
    std::error_code error;
    if (!fs::exists(fs::symlink_status(copy, error))) return copy;
  }
  return {};
}

fs::path WriteDocumentCopy(std::string_view text, const fs::path& folder, const fs::path& name,
                           std::string_view why, Platform& platform) {
  // The document's own name may be one that no file system takes, or too long with its addition.
  for (const fs::path& tried : {name, fs::path("Project")}) {
    const fs::path copy = FreeName(folder, tried, why, ".dat");
    if (copy.empty()) continue;
    try {
      platform.WriteWholeFile(copy, text);
      return copy;
    } catch (const std::exception&) {
      // The next name may do.
    }
  }
  return {};
}

}  // namespace tavrel
