#include "platform/unix_volumes.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

bool IsOctalDigit(char c) { return c >= '0' && c <= '7'; }

/// Mount tables write blanks, tabs, line feeds and backslashes as a backslash and three octal digits.
std::string Unescaped(const std::string& field) {
  std::string result;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const bool escaped = field[i] == '\\' && i + 3 < field.size() &&
                         std::all_of(field.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                                     field.begin() + static_cast<std::ptrdiff_t>(i) + 4, IsOctalDigit);
    if (escaped) {
      result += static_cast<char>(std::stoi(field.substr(i + 1, 3), nullptr, 8));
      i += 3;
    } else {
      result += field[i];
    }
  }
  return result;
}

/// Disks that people plug in or mount appear below these folders.
bool IsUserMount(const std::string& mount_point) {
  constexpr std::string_view kMountFolders[] = {"/media/", "/run/media/", "/mnt", "/Volumes/"};
  return std::any_of(std::begin(kMountFolders), std::end(kMountFolders),
                     [&](std::string_view folder) { return mount_point.starts_with(folder); });
}

}  // namespace

std::vector<Volume> MountedVolumes(const fs::path& mount_table) {
  std::vector<Volume> volumes{{"/", "/"}};
  std::ifstream table(mount_table);
  for (std::string line; std::getline(table, line);) {
    std::istringstream fields(line);
    std::string device;
    std::string mount_point;
    fields >> device >> mount_point;
    const fs::path root = Unescaped(mount_point);
    if (!IsUserMount(root.string())) continue;
    const bool known = std::any_of(volumes.begin(), volumes.end(), [&](const Volume& v) { return v.Root == root; });
    if (!known) volumes.push_back({PathText(root), root});
  }
  return volumes;
}

}  // namespace tavrel
