#pragma once

#include <filesystem>
#include <string_view>

#include "platform/file_layer.h"

namespace tavrel {

/// Writes a file whole or not at all, through a temporary file beside it. A symbolic link is kept and what it
/// points to replaced; a second name of the old file (a hard link) keeps the old bytes. Throws FileError.
void WriteWholeFile(FileLayer& files, const std::filesystem::path& file, std::string_view bytes);

/// Removes the temporary files that a program left in a folder when it was killed while it wrote there. No
/// other program may be writing there meanwhile. What cannot be removed stays.
void RemoveTemporaries(const std::filesystem::path& folder);

/// Creates or replaces a file in place; removes it again if it cannot be written to its end. Throws
/// FileError.
void WritePlainFile(FileLayer& files, const std::filesystem::path& file, std::string_view bytes);

/// Copies a file as WritePlainFile writes one. Throws FileError.
void CopyPlainFile(FileLayer& files, const std::filesystem::path& from, const std::filesystem::path& to);

/// Waits until all that was written to a folder's volume is on the disk. Throws FileError.
void FlushVolumeOf(FileLayer& files, const std::filesystem::path& folder);

}  // namespace tavrel
