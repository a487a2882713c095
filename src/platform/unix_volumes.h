#pragma once

#include <filesystem>
#include <vector>

#include "core/platform.h"

namespace tavrel {

/// The mounted file systems that a person would call a disk, from a mount table: the system's root first,
/// then the others in the table's order. Pseudo file systems and the system's own inner mounts are left out.
std::vector<Volume> MountedVolumes(const std::filesystem::path& mount_table);

}  // namespace tavrel
