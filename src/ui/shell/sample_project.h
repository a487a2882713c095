#pragma once

#include <filesystem>

#include "core/platform.h"

namespace tavrel {

/// Writes the sample project into the program's folder, unless a project of its name is there. Throws
/// FileError.
void InstallSampleProject(const std::filesystem::path& program_folder, Platform& platform);

}  // namespace tavrel
