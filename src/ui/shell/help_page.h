#pragma once

#include <filesystem>
#include <string>

#include "core/platform.h"

namespace tavrel {

/// The help page with its pictures inside: one file, so that no folder of pictures stands among the user's
/// projects.
std::string HelpPage();

/// Puts the help page into the program's folder if it is not there, or there from another version. A folder
/// that cannot be written to is no reason not to start.
void InstallHelpPage(const std::filesystem::path& program_folder, Platform& platform);

}  // namespace tavrel
