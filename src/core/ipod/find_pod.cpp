#include "core/ipod/find_pod.h"

#include <system_error>

#include "core/ipod/folder_store.h"
#include "core/text/file_names.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

}  // namespace

std::optional<fs::path> TestPod(const Platform& platform, const Volume& drive) {
  if (!platform.IsReady(drive)) return std::nullopt;
  const CodePage& code_page = platform.SystemCodePage();
  for (const fs::path& name : Subfolders(drive.Root, platform)) {
    const bool is_notes = code_page.Lower(NameInCodePage(name, code_page)) == "notes";
    if (is_notes && !platform.WhyNotReadable(drive.Root / name)) return drive.Root / name;
  }
  return std::nullopt;
}

std::optional<Pod> FindPod(const Platform& platform, const std::vector<Volume>& drives) {
  std::optional<Pod> found;
  for (const Volume& drive : drives) {
    if (const std::optional<fs::path> notes = TestPod(platform, drive)) found = Pod{drive, *notes};
  }
  if (found && platform.IsSystemVolume(found->Drive)) return std::nullopt;
  return found;
}

}  // namespace tavrel
