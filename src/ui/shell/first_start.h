#pragma once

#include <filesystem>

#include "core/platform.h"

namespace tavrel {

/// Puts the background pictures and the sample project into the program's folder. Files that
/// are there already stay as they are. Throws FileError.
void InstallFirstFiles(const std::filesystem::path& program_folder, Platform& platform);

}  // namespace tavrel
