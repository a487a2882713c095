#include "ui/shell/program_place.h"

#include <algorithm>
#include <exception>
#include <system_error>
#include <utility>

#include "platform/whole_file.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr int kPlaces = 99;
constexpr int kPatienceWithStart = 5000;  // milliseconds

// No pattern of the program's file lists matches these names.
fs::path FileOfPlace(const fs::path& folder, int place, const char* extension) {
  return folder / (".tavrel-" + std::to_string(place) + extension);
}

fs::path RecoveryFileOf(const fs::path& folder, int place) {
  return FileOfPlace(folder, place, ".recovery");
}

/// The lock of a place if no running program holds it. Only the end of its program makes a lock stale, never
/// its age. If its file does not tell whose it is (damaged, of another computer, with a number that another
/// program has by now), the system knows whether it is still held.
std::unique_ptr<QLockFile> TryLock(const fs::path& folder, int place) {
  auto lock = std::make_unique<QLockFile>(ToText(FileOfPlace(folder, place, ".lock")));
  lock->setStaleLockTime(0);
  if (lock->tryLock() || (lock->removeStaleLockFile() && lock->tryLock())) return lock;
  return nullptr;
}

bool Exists(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

void Recover(const fs::path& recovery_file, Platform& platform, FoundAtStart& found) {
  try {
    Recovered recovered = RecoverDraft(recovery_file, platform);
    if (!recovered.Trouble.empty()) found.Troubles.push_back(recovered.Trouble);
    if (!recovered.Document.empty() || !recovered.Damaged.empty())
      found.Documents.push_back(std::move(recovered));
  } catch (const std::exception& error) {
    found.Troubles.emplace_back(error.what());
  }
}

}  // namespace

FoundAtStart ProgramPlace::Enter(const fs::path& folder, Platform& platform) {
  FoundAtStart found;
  // Two programs that start at once do so one after the other.
  QLockFile starting(ToText(folder / ".tavrel-start.lock"));
  if (!starting.tryLock(kPatienceWithStart)) return {{}, {}, false};
  std::vector<int> taken;
  bool is_alone = true;
  for (int place = 1; place <= kPlaces; ++place) {
    const fs::path recovery_file = RecoveryFileOf(folder, place);
    if (!Exists(recovery_file) && !Exists(FileOfPlace(folder, place, ".lock"))) continue;
    const std::unique_ptr<QLockFile> lock = TryLock(folder, place);
    if (lock == nullptr) is_alone = false;
    if (lock != nullptr && Exists(recovery_file)) Recover(recovery_file, platform, found);
    if (lock == nullptr || Exists(recovery_file)) taken.push_back(place);
  }
  if (is_alone) RemoveTemporaries(folder);
  TakePlace(folder, taken);
  found.IsPlaceFree = lock_ != nullptr;
  return found;
}

void ProgramPlace::TakePlace(const fs::path& folder, const std::vector<int>& taken) {
  for (int place = 1; place <= kPlaces; ++place) {
    if (std::find(taken.begin(), taken.end(), place) != taken.end()) continue;
    lock_ = TryLock(folder, place);
    if (lock_ != nullptr) recovery_file_ = RecoveryFileOf(folder, place);
    return;
  }
}

}  // namespace tavrel
