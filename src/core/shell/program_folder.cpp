#include "core/shell/program_folder.h"

#include <system_error>

#include "core/text/run_time_error.h"

namespace tavrel {

namespace fs = std::filesystem;

namespace {

constexpr const char* kSettingsName = "tavrel.ini";

/// A program that was started as "c:\..." has a folder on the same drive as one that was started as "C:\...".
fs::path WithCapitalDrive(const fs::path& folder) {
  fs::path::string_type text = folder.native();
  if (folder.has_root_name() && text[0] >= 'a' && text[0] <= 'z') {
    text[0] = static_cast<fs::path::value_type>(text[0] - 'a' + 'A');
  }
  return text;
}

}  // namespace

fs::path FindProgramFolder(const fs::path& executable_folder, const fs::path& documents_folder) {
  std::error_code error;
  if (fs::is_regular_file(executable_folder / kSettingsName, error))
    return WithCapitalDrive(executable_folder);
  return WithCapitalDrive(documents_folder / "Tavrel Writer");
}

void EnterProgramFolder(const fs::path& folder, const Platform& platform) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (!error) error = platform.WhyNotReadable(folder);
  if (!error) fs::current_path(folder, error);
  if (error) throw FileError(folder, "could not be opened", error);
}

bool IsFirstStart(const fs::path& folder) {
  std::error_code error;
  return !fs::exists(folder / kSettingsName, error);
}

void ReturnToProgramFolder(const Global& global) {
  std::error_code error;
  fs::current_path(global.ProgramFolder, error);
  if (error) throw FileError(global.ProgramFolder, "could not be opened", error);
}

}  // namespace tavrel
