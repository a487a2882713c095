#include "core/ipod/note_writer.h"

#include <array>
#include <system_error>
#include <utility>

#include "core/document/markup.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kNotesMenu = "\\";

std::string OpeningAnchor(std::string_view target) {
  std::string anchor = "<a href=\"";
  return anchor.append(target).append("\">");
}

std::string Anchor(std::string_view target, std::string_view text) {
  return OpeningAnchor(target).append(text).append("</a>");
}

/// A link's address on the device: the note of a page, or music.
std::string LinkAddress(const Global& global, std::string_view target) {
  if (Value(target) > 0) return std::string("z").append(target).append(".txt");
  return GetMusic(global, target);
}

void AppendPageLinks(std::string& note, const Global& global, std::string_view record) {
  TagWalker texts(record, "<linktext>");
  TagWalker targets(record, "<linkto>");
  while (true) {
    const std::string_view text = texts.NextContent();
    const std::string_view target = targets.NextContent();
    if (text.empty() || target.empty()) return;
    note.append(Anchor(LinkAddress(global, target), text)).append(kLineEnd);
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
    result.append(text[bracket] == '<' ? OpeningAnchor(LinkAddress(global, targets.NextContent())) : "</a>");
    at = bracket + 1;
  }
  return result;
}

std::string GetMusic(const Global& global, std::string_view reference) {
  if (reference.size() < 2) return std::string(kNotesMenu);
  const int number = WholeValue(reference.substr(1));
  if (number < 0 || number > kLastMusicLink) {
    throw RunTimeError("A link names music link " + std::to_string(number) + ", but only 0 to " +
                       std::to_string(kLastMusicLink) + " exist.\nThe link's target reads \"" +
                       std::string(reference) + "\". Correct it and publish again.");
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
    const std::string value = GetTag(global.MusicLink(number), tag, 1);
    if (!value.empty()) query.append(key).append(value);
  }
  return query.empty() ? std::string(kNotesMenu) : "ipod:music?" + query.substr(1);
}

std::string NoteName(int page) {
  return "z" + FormatPage(page) + ".txt";
}

std::string NoteText(const Global& global, int page, const PublishOptions& options) {
  const std::string& record = global.Page(page);
  std::string note = "<title>";
  note.append(page == 1 ? "-" : "").append(GetTag(record, "<title>", 1)).append("</title>").append(kLineEnd);
  note.append("<meta name=\"LineWrap\" content=\"false\">").append(kLineEnd);
  if (options.BackgroundMusic) note.append("<meta name=\"NowPlaying\" content=\"false\">").append(kLineEnd);

  const std::string caption = GetTag(record, "<music>", 1);
  if (!caption.empty()) {
    note.append(Anchor(GetMusic(global, GetTag(record, "<music>", 2)), caption)).append(kLineEnd);
  }
  note.append(GetText(global, GetTag(record, "<text>", 1), page)).append(kLineEnd);
  AppendPageLinks(note, global, record);
  if (options.NotesMenuLink) note.append(Anchor(kNotesMenu, "Notes menu")).append(kLineEnd);
  return note;
}

void PublishNotes(const Global& global, Platform& platform, const fs::path& folder,
                  const PublishOptions& options) {
  std::error_code error;
  fs::create_directory(folder, error);
  if (!error && !fs::is_directory(folder, error) && !error)
    error = std::make_error_code(std::errc::not_a_directory);
  if (error) throw FileError(folder, "could not be made", error);

  for (int page = 1; page <= kLastPage; ++page) {
    if (global.Page(page).empty()) continue;
    platform.WritePlainFile(folder / NoteName(page), NoteText(global, page, options));
  }
}

}  // namespace tavrel
