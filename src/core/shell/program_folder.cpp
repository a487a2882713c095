#include "core/shell/program_folder.h"

#include <system_error>

#include "core/text/run_time_error.h"

namespace tavrel {

namespace fs = std::filesystem;

namespace {

constexpr const char* kSettingsName = "tavrel.ini";

}  // namespace

fs::path FindProgramFolder(const fs::path& executable_folder, const fs::path& documents_folder) {
  std::error_code error;
  if (fs::is_regular_file(executable_folder / kSettingsName, error)) return executable_folder;
  return documents_folder / "Tavrel Writer";
}

void EnterProgramFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
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
