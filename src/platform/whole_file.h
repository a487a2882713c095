#pragma once

#include <filesystem>
#include <string_view>

#include "platform/file_layer.h"

namespace tavrel {

/// Writes a file whole or not at all, through a temporary file beside it. A symbolic link is kept and what it
/// points to replaced. Throws FileError.
void WriteWholeFile(FileLayer& files, const std::filesystem::path& file, std::string_view bytes);

/// Creates or replaces a file in place; removes it again if it cannot be written to its end. Throws
/// FileError.
void WritePlainFile(FileLayer& files, const std::filesystem::path& file, std::string_view bytes);

}  // namespace tavrel
