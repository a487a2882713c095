#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include "core/platform.h"

namespace tavrel::test {

/// A file that the program replaces by another: how it does so, and what bytes lie there before and after.
struct WrittenFile {
  std::string Title;  ///< for the names of tests
  std::string Name;
  std::string Old;
  std::string New;
  std::map<std::string, std::string> Others;  ///< the files beside it, which must stay as they are
  std::function<void(const std::filesystem::path& folder, Platform& platform)> Save;
};

/// The document, the plan, the settings, a backup and a document that is restored from it.
const std::vector<WrittenFile>& WrittenFiles();

void PrintTo(const WrittenFile& file, std::ostream* out);

/// Runs `write` and gives what its FileError says; nothing if it had none.
std::string FileErrorOf(const std::function<void()>& write);

/// The temporary files of the program's writer that lie in a folder.
std::vector<std::filesystem::path> TemporariesIn(const std::filesystem::path& folder);

}  // namespace tavrel::test
