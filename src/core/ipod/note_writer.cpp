#include "core/ipod/note_writer.h"

#include <array>
#include <system_error>
#include <utility>

#include "core/document/markup.h"
#include "core/ipod/folder_store.h"
#include "core/text/numbers.h"
#include "core/text/plain_ascii.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kNotesMenu = "\\";

void AppendAnchor(std::string& note, std::string_view address, std::string_view text) {
  note.append("<a href=\"").append(address).append("\">").append(text).append("</a>");
}

/// Opens an anchor to a link's target: the note of a page, or music.
void AppendLinkOpening(std::string& note, const Global& global, std::string_view target) {
  note.append("<a href=\"");
  if (Value(target) > 0) {
    note.append("z").append(target).append(".txt");
  } else {
    note.append(GetMusic(global, target));
  }
  note.append("\">");
}

void AppendMusic(std::string& note, const Global& global, std::string_view record) {
  TagWalker music(record, "<music>");
  const std::string_view caption = music.NextContent();
  if (caption.empty()) return;
  AppendAnchor(note, GetMusic(global, music.NextContent()), caption);
  note.append(kLineEnd);
}

void AppendPageLinks(std::string& note, const Global& global, std::string_view record) {
  TagWalker texts(record, "<linktext>");
  TagWalker targets(record, "<linkto>");
  while (true) {
    const std::string_view text = texts.NextContent();
    const std::string_view target = targets.NextContent();
    if (text.empty() || target.empty()) return;
    AppendLinkOpening(note, global, target);
    note.append(text).append("</a>").append(kLineEnd);
  }
}

}  // namespace

std::string GetText(const Global& global, std::string_view text, int page) {
  const std::size_t first_opening = text.find('<');
  const std::size_t first_closing = text.find('>');
  if (first_opening == std::string_view::npos || first_closing == std::string_view::npos ||
      first_closing < first_opening) {
    return std::string(text);
  }

  TagWalker targets(global.Page(page), "<linkto>");
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t bracket = text.find_first_of("<>", at);
    result.append(text.substr(at, bracket - at));
    if (bracket == std::string_view::npos) break;
    if (text[bracket] == '<') {
      AppendLinkOpening(result, global, targets.NextContent());
    } else {
      result.append("</a>");
    }
    at = bracket + 1;
  }
  return result;
}

std::string GetMusic(const Global& global, std::string_view reference) {
  if (reference.size() < 2) return std::string(kNotesMenu);
  const int number = WholeValue(reference.substr(1));
  if (number < 0 || number > kLastMusicLink) {
    throw RunTimeError("The target of a link reads " + Quoted(reference) +
                       ", but music links are numbered 0 to " + std::to_string(kLastMusicLink) +
                       ".\nCorrect the target and publish again.");
  }

  constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kFields = {{
      {"<song>", "&song="},
      {"<album>", "&album="},
      {"<composer>", "&composer="},
      {"<artist>", "&artist="},
      {"<genre>", "&genre="},
      {"<playlist>", "&playlist="},
  }};
  std::string query;
  for (const auto& [tag, key] : kFields) {
    const std::string_view value = TagContent(global.MusicLink(number), tag, 1);
    if (!value.empty()) query.append(key).append(value);
  }
  return query.empty() ? std::string(kNotesMenu) : "ipod:music?" + query.substr(1);
}

std::string NoteName(int page) {
  return "z" + FormatPage(page) + ".txt";
}

std::string NoteTitleLine(const Global& global, int page) {
  return std::string("<title>")
      .append(page == 1 ? "-" : "")
      .append(TagContent(global.Page(page), "<title>", 1))
      .append("</title>")
      .append(kLineEnd);
}

std::string NoteText(const Global& global, int page, const PublishOptions& options) {
  const std::string& record = global.Page(page);
  std::string note = NoteTitleLine(global, page);
  note.reserve(record.size() + record.size() / 4);
  note.append("<meta name=\"LineWrap\" content=\"false\">").append(kLineEnd);
  if (options.BackgroundMusic) note.append("<meta name=\"NowPlaying\" content=\"false\">").append(kLineEnd);

  AppendMusic(note, global, record);
  note.append(GetText(global, TagContent(record, "<text>", 1), page)).append(kLineEnd);
  AppendPageLinks(note, global, record);
  if (options.NotesMenuLink) {
    AppendAnchor(note, kNotesMenu, "Notes menu");
    note.append(kLineEnd);
  }
  return note;
}

void PublishNotes(const Global& global, Platform& platform, const fs::path& folder,
                  const PublishOptions& options) {
  std::error_code error;
  fs::create_directory(folder, error);
  if (error) throw FileError(folder, "could not be made", error);

  for (int page = 1; page <= kLastPage; ++page) {
    if (global.Page(page).empty()) continue;
    const std::string note = NoteText(global, page, options);
    RemoveLinkAt(folder / NoteName(page));
    platform.WritePlainFile(folder / NoteName(page), note);
  }
}

}  // namespace tavrel
