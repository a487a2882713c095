#include "platform/unix_volumes.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

bool IsOctalDigit(char c) {
  return c >= '0' && c <= '7';
}

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

bool IsBelow(std::string_view folder, std::string_view path) {
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

template <std::size_t Count>
bool IsBelowAny(const std::array<std::string_view, Count>& folders, std::string_view path) {
  return std::any_of(folders.begin(), folders.end(),
                     [&](std::string_view folder) { return IsBelow(folder, path); });
}

/// One line of a mount table.
struct Mount {
  std::string Device;
  std::string Point;
  std::string Type;
};

/// Whether a person would call it a disk: a device of its own outside the system's inner folders, or whatever
/// is mounted where people mount things, such as a folder of another computer.
bool IsDisk(const Mount& mount) {
  constexpr std::array<std::string_view, 11> kInnerFolders = {
      "/boot", "/dev", "/efi", "/etc", "/nix", "/proc", "/run/user", "/snap", "/sys", "/usr", "/var"};
  constexpr std::array<std::string_view, 3> kMountFolders = {"/media", "/mnt", "/run/media"};
  constexpr std::array<std::string_view, 13> kPseudoTypes = {
      "autofs",  "cgroup", "cgroup2", "devpts",   "devtmpfs", "fuse.portal", "nsfs",
      "overlay", "proc",   "ramfs",   "squashfs", "sysfs",    "tmpfs"};
  if (std::find(kPseudoTypes.begin(), kPseudoTypes.end(), mount.Type) != kPseudoTypes.end()) return false;
  const bool own_device = mount.Device.starts_with("/dev/") && !IsBelowAny(kInnerFolders, mount.Point);
  return own_device || IsBelowAny(kMountFolders, mount.Point);
}

/// Whether a mount shows a part of the system's own disk at another place, as sub-volumes do.
bool IsPartOfSystem(const Mount& mount, const std::string& system_device) {
  return mount.Device == system_device && mount.Point != "/";
}

/// A single file can be mounted over another.
bool IsFile(const fs::path& point) {
  std::error_code error;
  return fs::exists(point, error) && !fs::is_directory(point, error);
}

}  // namespace

std::vector<Volume> MountedVolumes(const fs::path& mount_table) {
  std::vector<Volume> volumes{{"/", "/"}};
  std::string system_device;
  std::ifstream table(mount_table);
  for (std::string line; std::getline(table, line);) {
    std::istringstream fields(line);
    Mount mount;
    fields >> mount.Device >> mount.Point >> mount.Type;
    mount.Point = Unescaped(mount.Point);
    const fs::path root = mount.Point;
    if (root == "/") system_device = mount.Device;
    if (!IsDisk(mount) || IsPartOfSystem(mount, system_device) || IsFile(root)) continue;
    const bool known =
        std::any_of(volumes.begin(), volumes.end(), [&](const Volume& v) { return v.Root == root; });
    if (!known) volumes.push_back({PathText(root), root});
  }
  return volumes;
}

}  // namespace tavrel
