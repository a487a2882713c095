#include "core/ipod/folder_store.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

#include "core/text/file_names.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// The entries of a folder that are not hidden; those read so far if it cannot be read to its end.
std::vector<fs::directory_entry> VisibleEntries(const fs::path& folder, const Platform& platform,
                                                std::error_code& error) {
  std::vector<fs::directory_entry> entries;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (!platform.IsHidden(entry->path())) entries.push_back(*entry);
  }
  return entries;
}

std::vector<fs::path> OrdinaryFiles(const fs::path& folder, const Platform& platform,
                                    std::error_code& error) {
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : VisibleEntries(folder, platform, error)) {
    std::error_code ignored;
    if (entry.is_regular_file(ignored)) files.push_back(entry.path());
  }
  return files;
}

bool IsWriteProtected(const fs::path& file) {
  std::error_code error;
  const fs::perms permissions = fs::symlink_status(file, error).permissions();
  return !error && (permissions & fs::perms::owner_write) == fs::perms::none;
}

}  // namespace

std::vector<fs::path> Subfolders(const fs::path& folder, const Platform& platform) {
  std::error_code error;
  std::vector<std::pair<std::string, fs::path>> found;
  const CodePage& code_page = platform.SystemCodePage();
  for (const fs::directory_entry& entry : VisibleEntries(folder, platform, error)) {
    std::error_code ignored;
    if (!entry.is_directory(ignored)) continue;
    const fs::path name = entry.path().filename();
    found.emplace_back(code_page.Lower(NameInCodePage(name, code_page)), name);
  }
  std::sort(found.begin(), found.end());
  std::vector<fs::path> names;
  for (auto& [key, name] : found) names.push_back(std::move(name));
  return names;
}

void CopyFolder(const fs::path& from, const fs::path& to, Platform& platform,
                const std::function<void(int, int)>& progress) {
  std::error_code error;
  const std::vector<fs::path> files = OrdinaryFiles(from, platform, error);
  if (error) throw FileError(from, "could not be read", error);
  fs::create_directory(to, error);
  if (error) throw FileError(to, "could not be made", error);

  int done = 0;
  for (const fs::path& file : files) {
    platform.CopyPlainFile(file, to / file.filename());
    progress(++done, static_cast<int>(files.size()));
  }
  platform.FlushVolumeOf(to);
}

bool DeleteFolder(const fs::path& folder, const Platform& platform) {
  std::error_code error;
  if (!fs::is_symlink(folder, error)) {
    if (!fs::is_directory(folder, error)) return false;
    for (const fs::path& file : OrdinaryFiles(folder, platform, error)) {
      if (!IsWriteProtected(file)) fs::remove(file, error);
    }
  }
  return fs::remove(folder, error);
}

}  // namespace tavrel
