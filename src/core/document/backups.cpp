#include "core/document/backups.h"

#include "core/text/file_names.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// A file name up to and with its first full stop; empty if the part that file lists show has none.
fs::path BaseName(const fs::path& name, const CodePage& code_page) {
  const std::string shown = NameInCodePage(name, code_page).substr(0, kListedNameLength);
  if (shown.find('.') == std::string::npos) return {};
  const fs::path::string_type& text = name.native();
  return text.substr(0, text.find(fs::path::value_type('.')) + 1);
}

void CopyWhole(const fs::path& from, const fs::path& to, Platform& platform) {
  platform.WriteWholeFile(to, ReadWholeFile(from));
}

fs::path FileOf(const fs::path& base_name, const char* extension, const Global& global) {
  fs::path file = global.ProgramFolder / base_name;
  // An empty base name leaves a separator at the end, as it should: the extension is then the whole name.
  return file += extension;
}

/// The file to copy. A name with a single full stop is the file itself, however its extension is written.
fs::path SourceOf(const fs::path& name, const fs::path& base_name, const char* extension,
                  const Global& global) {
  const bool is_itself =
      !base_name.empty() && name.stem().native() + fs::path(".").native() == base_name.native();
  return is_itself ? global.ProgramFolder / name : FileOf(base_name, extension, global);
}

}  // namespace

void BackUpDocument(const fs::path& name, const Global& global, Platform& platform) {
  const fs::path base = BaseName(name, platform.SystemCodePage());
  CopyWhole(SourceOf(name, base, "dat", global), FileOf(base, "bak", global), platform);
}

void RestoreDocument(const fs::path& name, const Global& global, Platform& platform) {
  const fs::path base = BaseName(name, platform.SystemCodePage());
  CopyWhole(SourceOf(name, base, "bak", global), FileOf(base, "dat", global), platform);
}

}  // namespace tavrel
