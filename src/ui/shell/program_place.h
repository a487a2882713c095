#pragma once

#include <QLockFile>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/document/recovery.h"
#include "core/platform.h"

namespace tavrel {

/// What a start found of programs that ended without a word.
struct FoundAtStart {
  std::vector<Recovered> Documents;
  std::vector<std::string> Troubles;  ///< recovery files that had to stay, and why
  bool IsPlaceFree = true;            ///< whether this program can keep a draft of its own
};

/// The place of this program among those that run in the same folder: a number, held by a lock that is free
/// again when the program ends, however it ends. Its recovery file has that number.
class ProgramPlace {
 public:
  /// Makes documents of all recovery files that no running program holds, clears what killed programs left
  /// half written, and takes a free place. In a folder that cannot be written to there is no place and
  /// nothing is found.
  FoundAtStart Enter(const std::filesystem::path& folder, Platform& platform);

  /// Gives the place up.
  void Leave() { lock_.reset(); }

  /// Where drafts are kept; empty without a place.
  const std::filesystem::path& RecoveryFile() const { return recovery_file_; }

 private:
  void TakePlace(const std::filesystem::path& folder, const std::vector<int>& taken);

  std::unique_ptr<QLockFile> lock_;
  std::filesystem::path recovery_file_;
};

}  // namespace tavrel
