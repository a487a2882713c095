#include "core/text/file_names.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <system_error>
#include <tuple>
#include <utility>

#include "core/text/plain_ascii.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kExtensionLength = 4;

auto SystemTime(fs::file_time_type time) {
#ifdef _MSC_VER
  return std::chrono::utc_clock::to_sys(std::chrono::file_clock::to_utc(time));
#else
  return std::chrono::file_clock::to_sys(time);
#endif
}

std::tm LocalTime(fs::file_time_type time) {
  const auto whole = std::chrono::time_point_cast<std::chrono::seconds>(SystemTime(time));
  const std::time_t seconds = whole.time_since_epoch().count();
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &seconds);
#else
  localtime_r(&seconds, &local);
#endif
  return local;
}

/// Stands for a date that the system's clock cannot hold.
std::tm UnknownTime() {
  std::tm time{};
  time.tm_mday = 1;
  time.tm_year = 70;
  return time;
}

}  // namespace

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string CleanName(std::string_view typed) {
  std::string name(TrimBlanks(typed));
  std::erase_if(name, [](char c) { return std::string_view("&\\/.?*").find(c) != std::string_view::npos; });
  return name;
}

fs::path PathFromName(std::string_view name, const CodePage& code_page) {
  std::u32string characters = code_page.Decode(name);
  std::erase(characters, U'\0');
  return {characters};
}

fs::path PathFromTypedName(std::string_view name, const Platform& platform) {
  fs::path path = PathFromName(name, platform.SystemCodePage());
  // A name of nothing but NULs is none: the folder itself would be taken for the file.
  if (path.empty() || platform.RefusesName(path)) {
    throw FileError(path, "could not be created", std::make_error_code(std::errc::invalid_argument));
  }
  return path;
}

std::string NameInCodePage(const fs::path& name, const CodePage& code_page) {
  try {
    return code_page.Encode(name.u32string());
  } catch (const std::exception&) {
    return PlainAscii(name.native());
  }
}

fs::path WithoutExtension(const fs::path& name) {
  fs::path::string_type text = name.native();
  text.resize(text.size() - std::min(text.size(), kExtensionLength));
  return {text};
}

std::vector<FolderFile> ListFiles(const fs::path& folder, std::string_view extension,
                                  const CodePage& code_page) {
  struct Found {
    std::string SortKey;
    FolderFile File;
  };
  std::vector<Found> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::error_code file_error;
    if (!entry->is_regular_file(file_error)) continue;
    const fs::path name = entry->path().filename();
    std::string key = code_page.Lower(NameInCodePage(name, code_page));
    if (!key.ends_with(extension)) continue;
    const auto modified = entry->last_write_time(file_error);
    found.push_back({std::move(key), {name, file_error ? UnknownTime() : LocalTime(modified)}});
  }
  std::sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
    return std::tie(a.SortKey, a.File.Name.native()) < std::tie(b.SortKey, b.File.Name.native());
  });

  std::vector<FolderFile> files;
  files.reserve(found.size());
  for (Found& one : found) files.push_back(std::move(one.File));
  return files;
}

std::string FileListEntry(std::string_view name, const std::tm& modified) {
  std::string entry(name.substr(0, kListedNameLength));
  entry.resize(kListedNameLength, ' ');
  std::array<char, 16> date{};
  const std::size_t length = std::strftime(date.data(), date.size(), "%d-%m-%y", &modified);
  return entry.append(date.data(), length);
}

}  // namespace tavrel
