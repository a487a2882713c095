#pragma once

#include <filesystem>
#include <string_view>

#include "core/platform.h"

namespace tavrel {

/// Writes a document under a free name: "NAME (WHY).dat", then "NAME 2 (WHY).dat" and so on. If the folder
/// does not take the document's own name, it is called "Project". Gives the full path of the copy, or an
/// empty one if the folder takes neither.
std::filesystem::path WriteDocumentCopy(std::string_view text, const std::filesystem::path& folder,
                                        const std::filesystem::path& name, std::string_view why,
                                        Platform& platform);

/// "NAME (WHY).EXT", or "NAME 2 (WHY).EXT" and so on.
std::filesystem::path CopyName(const std::filesystem::path& folder, const std::filesystem::path& name,
                               int number, std::string_view why, std::string_view extension);

/// The first of "NAME (WHY).EXT", "NAME 2 (WHY).EXT" and so on that no file of the folder has; empty if all
/// are taken.
std::filesystem::path FreeName(const std::filesystem::path& folder, const std::filesystem::path& name,
                               std::string_view why, std::string_view extension);

}  // namespace tavrel
