#include "core/document/recovery.h"

#include <algorithm>
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
constexpr std::string_view kAddition = " (recovered)";
constexpr const char* kNameless = "Project.dat";

struct Kept {
  Draft What;
  bool IsWhole = false;
};

std::string Utf8Name(const fs::path& name) {
  try {
    const std::u8string text = name.u8string();
    return {text.begin(), text.end()};
  } catch (const std::exception&) {
    return kNameless;
  }
}

/// The name from a heading, if it is one that a document can have in this folder.
fs::path SafeName(std::string_view text, const Platform& platform) {
  constexpr std::string_view kExtension = ".dat";
  const bool printable =
      std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
  if (!printable || text.size() <= kExtension.size()) return kNameless;
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

fs::path WriteRecovered(std::string_view text, const fs::path& folder, const Draft& draft,
                        Platform& platform) {
  fs::path document = WriteDocumentCopy(text, folder, NameOf(draft), "recovered", platform);
  if (document.empty()) {
    throw FileError(folder, "takes no copy of what was recovered", std::make_error_code(std::errc::io_error));
  }
  return document;
}

/// Takes a damaged recovery file out of the way of the next one.
fs::path PutAside(const fs::path& recovery_file, const fs::path& name) {
  const fs::path aside = FreeName(recovery_file.parent_path(), name, "damaged", ".recovery");
  std::error_code error;
  fs::rename(recovery_file, aside, error);
  if (error) throw FileError(recovery_file, "could not be renamed", error);
  return aside;
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
  bytes.append(Utf8Name(draft.DocPath)).append(kLineEnd).append(draft.Text);
  platform.WriteWholeFile(recovery_file, bytes);
}

Recovered RecoverDraft(const fs::path& recovery_file, Platform& platform) {
  const fs::path folder = recovery_file.parent_path();
  const Kept kept = ReadRecovery(ReadWholeFile(recovery_file), platform);
  Recovered recovered;
  const bool is_damaged = !kept.IsWhole || Rewritten(kept.What.Text).empty();
  const std::string text = is_damaged ? Salvaged(kept.What.Text) : kept.What.Text;
  if (!text.empty() && !(IsSaved({kept.What.DocPath, text}, folder))) {
    recovered.Document = WriteRecovered(text, folder, kept.What, platform);
  }
  if (is_damaged && !kept.What.Text.empty()) {
    recovered.Damaged = PutAside(recovery_file, NameOf(kept.What));
  } else {
    std::error_code error;
    fs::remove(recovery_file, error);
    if (error) throw FileError(recovery_file, "could not be deleted", error);
  }
  return recovered;
}

}  // namespace tavrel
