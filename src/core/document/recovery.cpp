#include "core/document/recovery.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <memory>
#include <string_view>
#include <system_error>

#include "core/document/document_copy.h"
#include "core/document/document_file.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

// A recovery file is a document after one line: the word, how many bytes follow the line, and the name of the
// document's file in UTF-8.
constexpr std::string_view kHeading = "recovery";
constexpr std::string_view kWhy = "recovered";
constexpr std::string_view kAddition = " (recovered)";
constexpr const char* kNameless = "Project.dat";

struct Kept {
  Draft What;
  bool IsWhole = false;
};

bool IsPrintable(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

/// The name for a heading, which is one line.
std::string HeadingName(const fs::path& name) {
  try {
    const std::u8string text = name.u8string();
    const std::string bytes(text.begin(), text.end());
    return IsPrintable(bytes) ? bytes : kNameless;
  } catch (const std::exception&) {
    return kNameless;
  }
}

/// The name from a heading, if it is one that a document can have in this folder.
fs::path SafeName(std::string_view text, const Platform& platform) {
  constexpr std::string_view kExtension = ".dat";
  if (!IsPrintable(text) || text.size() <= kExtension.size()) return kNameless;
  try {
    fs::path name(std::u8string(text.begin(), text.end()));
    const bool is_bare = !name.has_root_path() && name.filename() == name && name.has_extension();
    return is_bare && !platform.RefusesName(name) ? name : fs::path(kNameless);
  } catch (const std::exception&) {
    return kNameless;
  }
}

Kept ReadRecovery(std::string_view bytes, const Platform& platform) {
  const std::size_t end = bytes.find(kLineEnd);
  std::string_view heading = bytes.substr(0, end);
  if (end == std::string_view::npos || !heading.starts_with(kHeading)) {
    return {{kNameless, std::string(bytes)}, false};
  }
  heading.remove_prefix(std::min(heading.size(), kHeading.size() + 1));
  const std::size_t comma = std::min(heading.find(','), heading.size());
  const std::string_view text = bytes.substr(end + kLineEnd.size());
  const bool is_whole = heading.substr(0, comma) == std::to_string(text.size());
  return {{SafeName(heading.substr(std::min(comma + 1, heading.size())), platform), std::string(text)},
          is_whole};
}

bool HoldsNothing(const Global& document) {
  const auto empty = [](const std::string& record) { return record.empty(); };
  return std::all_of(document.Pages.begin(), document.Pages.end(), empty) &&
         std::all_of(document.MusicLinks.begin(), document.MusicLinks.end(), empty);
}

/// The text as the program writes it; empty if it is damaged.
std::string Rewritten(std::string_view text) {
  const auto document = std::make_unique<Global>();
  try {
    ReadDocumentText(text, *document);
  } catch (const RunTimeError&) {
    return {};
  }
  return DocumentText(*document);
}

/// What can be read of a damaged text, as a document's text; empty if there is nothing.
std::string Salvaged(std::string_view text) {
  const auto document = std::make_unique<Global>();
  SalvageDocumentText(text, *document);
  return HoldsNothing(*document) ? std::string() : DocumentText(*document);
}

/// "Guide" for "Guide.dat" and for what was recovered of it before.
fs::path NameOf(const Draft& draft) {
  const fs::path name = WithoutExtension(draft.DocPath);
  const fs::path::string_type addition = fs::path(kAddition).native();
  fs::path::string_type text = name.native();
  if (text.size() <= addition.size() || !text.ends_with(addition)) return name;
  text.resize(text.size() - addition.size());
  return text;
}

/// The copy that was made of the text before, by a start that could not remove the recovery file.
fs::path CopyMadeBefore(std::string_view text, const fs::path& folder, const fs::path& name) {
  for (int number = 1;; ++number) {
    fs::path copy = CopyName(folder, name, number, kWhy, ".dat");
    std::error_code error;
    if (!fs::exists(fs::symlink_status(copy, error))) return {};
    if (fs::is_regular_file(copy, error) && ReadWholeFile(copy) == text) return copy;
  }
}

fs::path WriteRecovered(std::string_view text, const fs::path& folder, const Draft& draft,
                        Platform& platform) {
  for (const fs::path& name : {NameOf(draft), WithoutExtension(kNameless)}) {
    fs::path made_before = CopyMadeBefore(text, folder, name);
    if (!made_before.empty()) return made_before;
  }
  fs::path document = WriteDocumentCopy(text, folder, NameOf(draft), kWhy, platform);
  if (document.empty()) {
    throw FileError(folder, "takes no copy of what was recovered", std::make_error_code(std::errc::io_error));
  }
  return document;
}

/// Takes a damaged recovery file out of the way of the next one. Gives its new path.
fs::path PutAside(const fs::path& recovery_file, const fs::path& name, std::error_code& error) {
  // The document's own name may be too long with its addition.
  for (const fs::path& tried : {name, WithoutExtension(kNameless)}) {
    fs::path aside = FreeName(recovery_file.parent_path(), tried, "damaged", ".recovery");
    fs::rename(recovery_file, aside, error);
    if (!error) return aside;
  }
  return {};
}

void CheckSize(const fs::path& recovery_file) {
  constexpr std::uintmax_t kMost = 256U << 20U;
  std::error_code error;
  const std::uintmax_t size = fs::file_size(recovery_file, error);
  if (!error && size > kMost) {
    throw FileError(recovery_file, "is not a file of this program's",
                    std::make_error_code(std::errc::file_too_large));
  }
}

}  // namespace

bool IsSaved(const Draft& draft, const fs::path& folder) {
  try {
    const std::string stored = ReadWholeFile(folder / draft.DocPath);
    return stored == draft.Text || Rewritten(stored) == draft.Text;
  } catch (const RunTimeError&) {
    return false;
  }
}

void KeepDraft(const Draft& draft, const fs::path& recovery_file, Platform& platform) {
  std::string bytes(kHeading);
  bytes.append(",").append(std::to_string(draft.Text.size())).append(",");
  bytes.append(HeadingName(draft.DocPath)).append(kLineEnd).append(draft.Text);
  platform.WriteWholeFile(recovery_file, bytes);
}

Recovered RecoverDraft(const fs::path& recovery_file, Platform& platform) {
  const fs::path folder = recovery_file.parent_path();
  CheckSize(recovery_file);
  const Kept kept = ReadRecovery(ReadWholeFile(recovery_file), platform);
  Recovered recovered;
  const bool is_damaged = !kept.IsWhole || Rewritten(kept.What.Text).empty();
  const std::string text = is_damaged ? Salvaged(kept.What.Text) : kept.What.Text;
  if (!text.empty() && !IsSaved({kept.What.DocPath, text}, folder)) {
    recovered.Document = WriteRecovered(text, folder, kept.What, platform);
  }
  std::error_code error;
  if (is_damaged && !kept.What.Text.empty()) {
    recovered.Damaged = PutAside(recovery_file, NameOf(kept.What), error);
  } else {
    fs::remove(recovery_file, error);
  }
  if (error) recovered.Trouble = FileError(recovery_file, "could not be removed", error).what();
  return recovered;
}

}  // namespace tavrel
