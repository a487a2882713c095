#include "core/document/document_file.h"

#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "core/shell/program_folder.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/plain_ascii.h"
#include "core/text/run_time_error.h"
#include "core/text/stored_lines.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

constexpr int kLastStoredMusicLink = 99;
constexpr int kLastReadPage = 1000;

void AppendLine(std::string& text, int index, std::string_view record) {
  text.append(PrintForm(index)).append(",").append(record).append(kLineEnd);
}

/// A line of the file, split at its first comma.
struct StoredLine {
  std::string_view Index;
  std::string_view Record;
};

StoredLine Split(std::string_view line) {
  const std::size_t comma = line.find(',');
  const std::string_view index = line.substr(0, comma);
  return {TrimBlanks(index), comma == std::string_view::npos ? std::string_view() : line.substr(comma + 1)};
}

/// What becomes of a document with damaged lines.
enum class Damage { Refused, Skipped };

/// The number of an entry; nothing if its line is to be skipped.
std::optional<int> EntryIndex(std::string_view field, int last, Damage damage) {
  const int index = WholeValue(field);
  if (damage == Damage::Skipped) return index >= 1 && index <= last ? std::optional(index) : std::nullopt;
  if (index < 0 || index > last) {
    throw RunTimeError("The document is damaged: it has an entry numbered " + Quoted(field) +
                       ", but only 0 to " + std::to_string(last) +
                       " exist.\nRestore its backup (File > Restore) or repair it in a text editor.");
  }
  return index;
}

using Entries = std::vector<std::pair<int, std::string>>;

/// Reads a document line by line.
template <class Lines>
class DocumentReader {
 public:
  DocumentReader(Lines lines, Damage damage, DocumentLines& numbers)
      : lines_(std::move(lines)), damage_(damage), numbers_(numbers) {}

  void Run(Global& global) {
    Entries music_links = ReadMusicLinks();
    Entries pages = ReadPages();
    for (auto& [index, record] : music_links) global.MusicLink(index) = std::move(record);
    for (auto& [index, record] : pages) global.Page(index) = std::move(record);
  }

 private:
  StoredLine Next() {
    ++numbers_.Read;
    return Split(lines_.Next());
  }

  Entries ReadMusicLinks() {
    Entries music_links;
    while (!lines_.AtEnd()) {
      const StoredLine line = Next();
      if (line.Index.empty()) return music_links;
      if (const auto index = EntryIndex(line.Index, kLastMusicLink, damage_))
        music_links.emplace_back(*index, line.Record);
    }
    if (damage_ == Damage::Skipped) return music_links;
    throw RunTimeError(
        "The document is damaged: it ends before its pages.\n"
        "Restore its backup (File > Restore) or repair it in a text editor.");
  }

  Entries ReadPages() {
    Entries pages;
    while (!lines_.AtEnd()) {
      const StoredLine line = Next();
      const auto index = EntryIndex(line.Index, kLastReadPage, damage_);
      if (!index) continue;
      pages.emplace_back(*index, WithLineBreaks(line.Record));
      numbers_.Pages.at(static_cast<std::size_t>(*index)) = numbers_.Read;
    }
    return pages;
  }

  Lines lines_;
  Damage damage_;
  DocumentLines& numbers_;
};

void ReadText(std::string_view text, Global& global, Damage damage) {
  DocumentLines ignored;
  DocumentReader(LineReader(text), damage, ignored).Run(global);
}

}  // namespace

void LoadDocument(Global& global) {
  const std::filesystem::path file = DocumentFile(global);
  DocumentLines ignored;
  try {
    ReadDocumentFile(file, global, ignored);
  } catch (const FileError&) {
    throw;
  } catch (const RunTimeError& error) {
    throw RunTimeError(PathText(file) + "\n" + error.what());
  }
}

void SaveDocument(const Global& global, Platform& platform) {
  ReturnToProgramFolder(global);
  platform.WriteWholeFile(DocumentFile(global), DocumentText(global));
}

void DeleteDocument(const std::filesystem::path& folder, const std::filesystem::path& name) {
  std::filesystem::path backup = WithoutExtension(name);
  backup += ".bak";
  for (const std::filesystem::path& file : {folder / name, folder / backup}) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) continue;
    std::filesystem::remove(file, error);
    if (error) throw FileError(file, "could not be deleted", error);
  }
}

std::string DocumentText(const Global& global) {
  return DocumentText(global, global.CurrentPage, global.Page(global.CurrentPage));
}

std::string DocumentText(const Global& global, int typed_page, const std::string& typed_record) {
  constexpr std::size_t kIndexAndEnd = 16;
  std::size_t size = typed_record.size();
  for (const std::string& page : global.Pages) size += page.size() + kIndexAndEnd;
  for (const std::string& link : global.MusicLinks) size += link.size() + kIndexAndEnd;
  std::string text;
  text.reserve(size);

  for (int link = 0; link <= kLastStoredMusicLink; ++link) {
    if (!global.MusicLink(link).empty()) AppendLine(text, link, global.MusicLink(link));
  }
  text.append(kLineEnd);
  for (int page = 0; page <= kLastPage; ++page) {
    const std::string& record = page == typed_page ? typed_record : global.Page(page).Bytes();
    if (!record.empty()) AppendLine(text, page, OnOneLine(record));
  }
  return text;
}

void ReadDocumentFile(const std::filesystem::path& file, Global& global, DocumentLines& lines) {
  DocumentReader(FileLineReader(file), Damage::Refused, lines).Run(global);
}

void ReadDocumentText(std::string_view text, Global& global) {
  ReadText(text, global, Damage::Refused);
}

void SalvageDocumentText(std::string_view text, Global& global) {
  ReadText(text, global, Damage::Skipped);
}

}  // namespace tavrel
