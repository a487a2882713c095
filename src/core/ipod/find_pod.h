#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "core/platform.h"

namespace tavrel {

/// An iPod's disk.
struct Pod {
  Volume Drive;
  std::filesystem::path Notes;  ///< the folder whose sub-folders are the entries of the iPod's Notes menu
};

/// The Notes folder at the root of a volume, whatever its letter case; nothing if there is none that can be
/// read.
std::optional<std::filesystem::path> TestPod(const Platform& platform, const Volume& drive);

/// The last of the volumes that has a Notes folder. If that is the system's own, no iPod is found: it is
/// never taken for one.
std::optional<Pod> FindPod(const Platform& platform, const std::vector<Volume>& drives);

}  // namespace tavrel
