#include "core/ipod/note_writer.h"

#include <array>
#include <set>
#include <system_error>

#include "core/document/brackets.h"
#include "core/document/markup.h"
#include "core/document/page_parts.h"
#include "core/ipod/folder_store.h"
#include "core/ipod/music_links.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/plain_ascii.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kNotesMenu = "\\";

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

/// The record that a reference such as "M7" means.
const Record& MusicLinkAt(const Global& global, std::string_view reference) {
  const int number = WholeValue(reference.substr(1));
  if (number < 0 || number > kLastMusicLink) {
    throw RunTimeError("The target of a link reads " + Quoted(reference) +
                       ", but music links are numbered 0 to " + std::to_string(kLastMusicLink) +
                       ".\nCorrect the target and publish again.");
  }
  return global.MusicLink(number);
}

template <class Note>
void AppendMusicAddress(Note& note, const Global& global, std::string_view reference) {
  constexpr std::array<std::string_view, kPublishedMusicFields> kKeys = {
      "song=", "album=", "composer=", "artist=", "genre=", "playlist="};
  std::string_view before = "ipod:music?";
  if (reference.size() >= 2) {
    const MusicParts parts = MusicPartsOf(MusicLinkAt(global, reference));
    for (std::size_t field = 0; field < kKeys.size(); ++field) {
      if (parts[field].empty()) continue;
      note.append(before).append(kKeys[field]).append(parts[field]);
      before = "&";
    }
  }
  if (before != "&") note.append(kNotesMenu);
}

/// Opens an anchor to a link's target: the note of a page, or music.
template <class Note>
void AppendLinkOpening(Note& note, const Global& global, std::string_view target) {
  note.append("<a href=\"");
  if (Value(target) > 0) {
    note.append("z").append(target).append(".txt");
  } else {
    AppendMusicAddress(note, global, target);
  }
  note.append("\">");
}

template <class Note>
void AppendTitleLine(Note& note, int page, std::string_view title) {
  note.append("<title>").append(page == 1 ? "-" : "").append(title).append("</title>").append(kLineEnd);
}

template <class Note>
void AppendMusic(Note& note, const Global& global, const PageParts& parts) {
  if (parts.MusicText.empty()) return;
  note.append("<a href=\"");
  AppendMusicAddress(note, global, parts.MusicLink);
  note.append("\">").append(parts.MusicText).append("</a>").append(kLineEnd);
}

template <class Note>
void AppendPageLinks(Note& note, const Global& global, const PageParts& parts) {
  const std::size_t published = parts.PublishedLinks();
  for (std::size_t link = 0; link < published; ++link) {
    AppendLinkOpening(note, global, parts.Links[link].Target);
    note.append(parts.Links[link].Text).append("</a>").append(kLineEnd);
  }
}

template <class Note>
void AppendText(Note& note, const Global& global, std::string_view text, const PageParts& parts) {
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
      AppendLinkOpening(note, global, link < parts.Links.size() ? parts.Links[link].Target : "");
      ++link;
    } else {
      note.append("</a>");
    }
    copied = at + 1;
  }
  note.append(text.substr(copied));
}

template <class Note>
void AppendNote(Note& note, const Global& global, int page, const PageParts& parts,
                const PublishOptions& options) {
  AppendTitleLine(note, page, parts.Title);
  note.append("<meta name=\"LineWrap\" content=\"false\">").append(kLineEnd);
  if (options.BackgroundMusic) note.append("<meta name=\"NowPlaying\" content=\"false\">").append(kLineEnd);

  AppendMusic(note, global, parts);
  AppendText(note, global, parts.Text, parts);
  note.append(kLineEnd);
  AppendPageLinks(note, global, parts);
  if (options.NotesMenuLink) {
    note.append("<a href=\"").append(kNotesMenu).append("\">Notes menu</a>").append(kLineEnd);
  }
}

}  // namespace

std::string GetText(const Global& global, std::string_view text, int page) {
  std::string result;
  AppendText(result, global, text, PartsOf(global.Page(page)));
  return result;
}

std::string GetMusic(const Global& global, std::string_view reference) {
  std::string address;
  AppendMusicAddress(address, global, reference);
  return address;
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
  AppendNote(note, global, page, PartsOf(global.Page(page)), options);
  return note;
}

std::size_t NoteLength(const Global& global, int page, const PageParts& parts,
                       const PublishOptions& options) {
  Length length;
  AppendNote(length, global, page, parts, options);
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
