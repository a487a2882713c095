#pragma once

#include <filesystem>

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel {

/// The folder with the program's own files: beside the executable if `tavrel.ini` lies there (a portable
/// copy), else "Tavrel Writer" in the user's documents folder.
std::filesystem::path FindProgramFolder(const std::filesystem::path& executable_folder,
                                        const std::filesystem::path& documents_folder);

/// Makes the program's folder if it is missing, and makes it the current folder. Throws FileError, also if
/// its files cannot be listed.
void EnterProgramFolder(const std::filesystem::path& folder, const Platform& platform);

/// Whether the program has never run to the point where it writes its settings.
bool IsFirstStart(const std::filesystem::path& folder);

/// Makes the program's folder the current one again. Throws FileError.
void ReturnToProgramFolder(const Global& global);

}  // namespace tavrel
