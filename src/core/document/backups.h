#pragma once

#include <filesystem>

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel {

/// Copies the document file `name` to the backup of the same name, or the backup `name` to its document file:
/// what lies there is replaced, whole or not at all. The name ends at its first full stop, if the first 25
/// characters hold one: "my.notes.dat" copies "my.dat" to "my.bak". Throws FileError.
void BackUpDocument(const std::filesystem::path& name, const Global& global, Platform& platform);
void RestoreDocument(const std::filesystem::path& name, const Global& global, Platform& platform);

}  // namespace tavrel
