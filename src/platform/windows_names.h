#pragma once

#include <filesystem>

namespace tavrel {

/// Whether Windows has no file of a name: it refuses some characters and names of more than 255 characters, a
/// colon begins the name of a drive or of a hidden stream of another file, and some names are devices,
/// whatever their extension.
bool IsNoWindowsFileName(const std::filesystem::path& name);

/// Whether a folder's path is so long that the standard library lists other entries than the folder's.
bool IsTooLongToList(const std::filesystem::path& folder);

}  // namespace tavrel
