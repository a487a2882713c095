#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "core/platform.h"

/// Published projects as folders on either side, the computer's and the iPod's.
namespace tavrel {

/// The names of a folder's sub-folders, sorted without letter case. An unreadable folder has none.
std::vector<std::filesystem::path> Subfolders(const std::filesystem::path& folder, const Platform& platform);

/// Copies the ordinary files of a folder, not the hidden ones, into another, which is made if it is missing.
/// Files and links of the same name are replaced, but for links that lead back to what would be copied;
/// others stay. What was copied is on the disk when it returns. Tells `progress` after each file how many of
/// how many are done. Throws FileError.
void CopyFolder(const std::filesystem::path& from, const std::filesystem::path& to, Platform& platform,
                const std::function<void(int done, int all)>& progress);

/// Removes a symbolic link from the place where a file is to be written: it may lead anywhere, and nothing is
/// written through it. One that leads to a folder stays. Throws FileError.
void RemoveLinkAt(const std::filesystem::path& file);

/// Deletes the ordinary files of a folder and then the folder. False if the folder is still there because it
/// holds anything else or a write-protected file. Of a symbolic link only the link goes.
bool DeleteFolder(const std::filesystem::path& folder, const Platform& platform);

}  // namespace tavrel
