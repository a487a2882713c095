#pragma once

#include <filesystem>
#include <string>

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel {

/// The open document as it stands in the editor.
struct Draft {
  std::filesystem::path DocPath;  ///< bare file name of the document
  std::string Text;               ///< the bytes that its file would have if it were saved now
};

/// Whether the document's file in `folder` says the same as the draft, whatever its lines end with.
bool IsSaved(const Draft& draft, const std::filesystem::path& folder);

/// Keeps a draft in a recovery file, whole or not at all. Throws FileError.
void KeepDraft(const Draft& draft, const std::filesystem::path& recovery_file, Platform& platform);

/// What has become of a recovery file. Paths are full.
struct Recovered {
  std::filesystem::path Document;  ///< the document it is now; empty: there was nothing in it to bring back
  std::filesystem::path Damaged;   ///< where the file itself lies now if not all of it could be read
  std::string Trouble;             ///< why the file could not be removed or renamed; empty if it could
};

/// Makes a recovery file a document of its own beside it, "NAME (recovered).dat" under a free name, and
/// removes it. One that says what its document's file says anyway is only removed; a damaged one is kept
/// under another name. Throws FileError, with the recovery file where it was, if it cannot be read or the
/// document cannot be written.
Recovered RecoverDraft(const std::filesystem::path& recovery_file, Platform& platform);

}  // namespace tavrel
