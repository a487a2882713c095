#include "core/shell/system_info.h"

#include "core/shell/registry_value.h"
#include "core/text/file_names.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

constexpr const char* kToolKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
constexpr const char* kToolValue = "PATH";
constexpr const char* kFolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
constexpr const char* kFolderValue = "MSINFO";
constexpr const char* kToolInFolder = R"(\MSINFO32.EXE)";

std::filesystem::path FindTool(const Platform& platform) {
  const CodePage& code_page = platform.SystemCodePage();
  std::string value;
  if (GetKeyValue(platform, RegistryRoot::LocalMachine, kToolKey, kToolValue, value)) {
    return PathFromName(value, code_page);
  }
  if (GetKeyValue(platform, RegistryRoot::LocalMachine, kFolderKey, kFolderValue, value)) {
    const std::filesystem::path tool = PathFromName(value + kToolInFolder, code_page);
    std::error_code error;
    if (std::filesystem::is_regular_file(tool, error)) return tool;
  }
  throw RunTimeError("There is no system information tool.");
}

}  // namespace

void StartSystemInfo(Platform& platform) {
  platform.StartProgram(FindTool(platform));
}

}  // namespace tavrel
