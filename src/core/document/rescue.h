#pragma once

#include <filesystem>
#include <vector>

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel {

/// Writes the document in memory under a free name that ends in " (rescued).dat", into the first of the
/// folders that takes it. If no folder takes the document's own name, it is called "Project (rescued).dat".
/// Gives the full path of the copy, or an empty one if no folder did.
std::filesystem::path RescueDocument(const Global& global, Platform& platform,
                                     const std::vector<std::filesystem::path>& folders);

}  // namespace tavrel
