#include "core/ipod/note_writer.h"

#include <set>
#include <system_error>
#include <utility>

#include "core/document/brackets.h"
#include "core/document/markup.h"
#include "core/document/page_parts.h"
#include "core/ipod/device_limits.h"
#include "core/ipod/folder_store.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// Takes a note's length instead of its bytes.
class Length {
 public:
  // As strings call it.
  // NOLINTNEXTLINE(readability-identifier-naming)
  Length& append(std::string_view more) {
    bytes_ += more.size();
    return *this;
  }
  std::size_t Bytes() const { return bytes_; }

 private:
  std::size_t bytes_ = 0;
};

/// Takes what a device reads of a note, and one byte more.
class Beginning {
 public:
  // As strings call it.
  // NOLINTNEXTLINE(readability-identifier-naming)
  Beginning& append(std::string_view more) {
    bytes_.append(more.substr(0, kShownBytes + 1 - bytes_.size()));
    return *this;
  }
  std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

template <class Note>
void AppendAnchor(Note& note, std::string_view address, std::string_view text) {
  note.append("<a href=\"").append(address).append("\">").append(text).append("</a>");
}

/// Opens an anchor to a link's target: the note of a page, or music.
template <class Note>
void AppendLinkOpening(Note& note, MusicAddresses& music, std::string_view target) {
  note.append("<a href=\"");
  if (Value(target) > 0) {
    note.append("z").append(target).append(".txt");
  } else {
    note.append(music.Of(target).Bytes);
  }
  note.append("\">");
}

template <class Note>
void AppendTitleLine(Note& note, int page, std::string_view title) {
  note.append("<title>").append(page == 1 ? "-" : "").append(title).append("</title>").append(kLineEnd);
}

template <class Note>
void AppendMusic(Note& note, MusicAddresses& music, const PageParts& parts) {
  if (parts.MusicText.empty()) return;
  AppendAnchor(note, music.Of(parts.MusicLink).Bytes, parts.MusicText);
  note.append(kLineEnd);
}

template <class Note>
void AppendPageLinks(Note& note, MusicAddresses& music, const PageParts& parts) {
  const std::size_t published = parts.PublishedLinks();
  for (std::size_t link = 0; link < published; ++link) {
    AppendLinkOpening(note, music, parts.Links[link].Target);
    note.append(parts.Links[link].Text).append("</a>").append(kLineEnd);
  }
}

template <class Note>
void AppendText(Note& note, MusicAddresses& music, std::string_view text, const PageParts& parts) {
  BracketWalker brackets(text);
  if (!brackets.AreLinks()) {
    note.append(text);
    return;
  }
  std::size_t link = 0;
  std::size_t copied = 0;
  for (std::size_t at = brackets.Next(); at != std::string_view::npos; at = brackets.Next()) {
    note.append(text.substr(copied, at - copied));
    if (text[at] == '<') {
      AppendLinkOpening(note, music, link < parts.Links.size() ? parts.Links[link].Target : "");
      ++link;
    } else {
      note.append("</a>");
    }
    copied = at + 1;
  }
  note.append(text.substr(copied));
}

template <class Note>
void AppendNote(Note& note, MusicAddresses& music, int page, const PageParts& parts,
                const PublishOptions& options) {
  AppendTitleLine(note, page, parts.Title);
  note.append("<meta name=\"LineWrap\" content=\"false\">").append(kLineEnd);
  if (options.BackgroundMusic) note.append("<meta name=\"NowPlaying\" content=\"false\">").append(kLineEnd);

  AppendMusic(note, music, parts);
  AppendText(note, music, parts.Text, parts);
  note.append(kLineEnd);
  AppendPageLinks(note, music, parts);
  if (options.NotesMenuLink) {
    AppendAnchor(note, kNotesMenu, "Notes menu");
    note.append(kLineEnd);
  }
}

}  // namespace

std::string GetText(const Global& global, std::string_view text, int page) {
  std::string result;
  MusicAddresses music(global);
  AppendText(result, music, text, PartsOf(global.Page(page)));
  return result;
}

std::string GetMusic(const Global& global, std::string_view reference) {
  return MusicAddresses(global).Of(reference).Bytes;
}

std::string NoteName(int page) {
  return "z" + FormatPage(page) + ".txt";
}

std::string NoteTitleLine(const Global& global, int page) {
  std::string line;
  AppendTitleLine(line, page, TagContent(global.Page(page), "<title>", 1));
  return line;
}

std::string NoteText(const Global& global, int page, const PublishOptions& options) {
  std::string note;
  const std::size_t size = global.Page(page).size();
  note.reserve(size + size / 4);
  MusicAddresses music(global);
  AppendNote(note, music, page, PartsOf(global.Page(page)), options);
  return note;
}

std::string NoteBeginning(const Global& global, int page, const PublishOptions& options) {
  Beginning beginning;
  MusicAddresses music(global);
  AppendNote(beginning, music, page, PartsOf(global.Page(page)), options);
  return beginning.Take();
}

std::size_t NoteLength(MusicAddresses& music, int page, const PageParts& parts,
                       const PublishOptions& options) {
  Length length;
  AppendNote(length, music, page, parts, options);
  return length.Bytes();
}

int OtherNotes(const Global& global, const fs::path& folder, const CodePage& code_page) {
  std::set<fs::path> rewritten;
  for (int page = 1; page <= kLastPage; ++page) {
    if (!global.Page(page).empty()) rewritten.insert(NoteName(page));
  }
  const std::vector<FolderFile> notes = ListFiles(folder, ".txt", code_page);
  return static_cast<int>(std::count_if(
      notes.begin(), notes.end(), [&](const FolderFile& note) { return !rewritten.contains(note.Name); }));
}

void PublishNotes(const Global& global, Platform& platform, const fs::path& folder,
                  const PublishOptions& options) {
  std::error_code error;
  const bool is_new = fs::create_directory(folder, error);
  if (error) throw FileError(folder, "could not be made", error);

  for (int page = 1; page <= kLastPage; ++page) {
    if (global.Page(page).empty()) continue;
    const std::string note = NoteText(global, page, options);
    if (!is_new) RemoveLinkAt(folder / NoteName(page));
    platform.WritePlainFile(folder / NoteName(page), note);
  }
}

}  // namespace tavrel
