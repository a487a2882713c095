#include "core/ipod/folder_store.h"

#include <algorithm>
#include <map>
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
  error = platform.WhyNotReadable(folder);
  if (error) return entries;
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

/// The files that a copy has made. A disk that does not tell letter case apart would put a second one over
/// the first.
class CopiedFiles {
 public:
  explicit CopiedFiles(const CodePage& code_page) : code_page_(code_page) {}

  /// Throws FileError if the file is one of those that were made before.
  void Add(const fs::path& file) {
    const std::string key = code_page_.Lower(NameInCodePage(file.filename(), code_page_));
    const auto [same_name, is_new] = files_.try_emplace(key, file);
    std::error_code error;
    if (is_new || !fs::equivalent(file, same_name->second, error)) return;
    throw FileError(file,
                    "has a name that this disk does not tell from " + PathText(same_name->second.filename()),
                    std::make_error_code(std::errc::file_exists));
  }

 private:
  const CodePage& code_page_;
  std::map<std::string, fs::path> files_;
};

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
  CopiedFiles copied(platform.SystemCodePage());
  for (const fs::path& file : files) {
    const fs::path target = to / file.filename();
    // A file that is its own copy already must not be removed.
    if (!fs::equivalent(file, target, error)) RemoveLinkAt(target);
    copied.Add(target);
    platform.CopyPlainFile(file, target);
    progress(++done, static_cast<int>(files.size()));
  }
  platform.FlushVolumeOf(to);
}

void RemoveLinkAt(const fs::path& file) {
  std::error_code error;
  if (!fs::is_symlink(file, error) || fs::is_directory(file, error)) return;
  fs::remove(file, error);
  if (error) throw FileError(file, "could not be written", error);
}

bool DeleteFolder(const fs::path& path, const Platform& platform) {
  // With a separator at its end a link's path is the folder that it leads to.
  const fs::path folder = path.has_filename() ? path : path.parent_path();
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
