#include "core/shell/program_folder.h"

#include <system_error>

#include "core/text/run_time_error.h"

namespace tavrel {

namespace fs = std::filesystem;

fs::path FindProgramFolder(const fs::path& executable_folder, const fs::path& documents_folder) {
  std::error_code error;
  if (fs::is_regular_file(executable_folder / "tavrel.ini", error)) return executable_folder;
  return documents_folder / "Tavrel Writer";
}

bool EnterProgramFolder(const fs::path& folder) {
  std::error_code error;
  const bool made = fs::create_directories(folder, error);
  if (!error) fs::current_path(folder, error);
  if (error) throw FileError(folder, "could not be opened", error);
  return made;
}

}  // namespace tavrel
