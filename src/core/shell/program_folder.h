#pragma once

#include <filesystem>

namespace tavrel {

/// The folder with the program's own files: beside the executable if `tavrel.ini` lies there (a portable
/// copy), else "Tavrel Writer" in the user's documents folder.
std::filesystem::path FindProgramFolder(const std::filesystem::path& executable_folder,
                                        const std::filesystem::path& documents_folder);

/// Makes the program's folder if it is missing, and makes it the current folder. True if it was made now.
/// Throws FileError.
bool EnterProgramFolder(const std::filesystem::path& folder);

}  // namespace tavrel
