#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform.h"
#include "core/text/code_page.h"

namespace tavrel {

/// The text without the blanks at both ends. Only blanks go: tabs, line breaks and no-break spaces stay.
std::string_view TrimBlanks(std::string_view text);

/// A typed name made fit for a file: trimmed of blanks, then without any "&", "\", "/", ".", "?" and "*".
/// What remains may be empty, or begin or end with a blank.
std::string CleanName(std::string_view typed);

/// A file's path from a name in the code page, without NUL characters, which no file name can hold.
std::filesystem::path PathFromName(std::string_view name, const CodePage& code_page);

/// The same for a name that a person typed. Throws FileError if the system has no such names.
std::filesystem::path PathFromTypedName(std::string_view name, const Platform& platform);

/// A file name in the code page; characters that it does not hold become "?".
std::string NameInCodePage(const std::filesystem::path& name, const CodePage& code_page);

/// A file name less its last four characters, the full stop and the extension.
std::filesystem::path WithoutExtension(const std::filesystem::path& name);

/// One file of a folder.
struct FolderFile {
  std::filesystem::path Name;
  std::tm Modified;  ///< local time of the last change
};

/// The ordinary files of a folder whose names end in `extension` (such as ".dat"; letter case does not
/// matter, empty means all), sorted by name without letter case. An unreadable folder has no files.
std::vector<FolderFile> ListFiles(const std::filesystem::path& folder, std::string_view extension,
                                  const CodePage& code_page);

/// File lists show so many characters of a name.
inline constexpr std::size_t kListedNameLength = 25;

/// A line of a file list: the name padded with blanks or cut to 25 characters, then the date as dd-mm-yy.
std::string FileListEntry(std::string_view name, const std::tm& modified);

}  // namespace tavrel
