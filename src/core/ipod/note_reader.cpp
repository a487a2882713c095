#include "core/ipod/note_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/document/markup.h"
#include "core/ipod/anchor_cutter.h"
#include "core/ipod/note_markup.h"
#include "core/text/characters.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// Finds one byte again and again, each time only as far as the next one.
class NextByte {
 public:
  NextByte(std::string_view text, char byte) : text_(text), byte_(byte), place_(Find(0)) {}

  /// Its first place from `at` on, the text's size without any. `at` must not go back.
  std::size_t From(std::size_t at) {
    if (place_ < at) place_ = Find(at);
    return place_;
  }

 private:
  std::size_t Find(std::size_t at) const { return std::min(text_.find(byte_, at), text_.size()); }

  std::string_view text_;
  char byte_;
  std::size_t place_;
};

bool IsMusicAddress(std::string_view target) {
  return target.starts_with("ipod:") || target.starts_with("song=");
}

/// The value behind a key, up to the next "&". A music link is one line of the document file, so a line break
/// becomes a blank.
std::string ValueOf(std::string_view address, std::string_view key) {
  const std::size_t found = address.find(key);
  if (found == kNotFound) return {};
  const std::size_t start = found + key.size();
  std::string value(address.substr(start, address.find('&', start) - start));
  Replacements ignored;
  ReplaceAll(value, kLineEnd, " ", ignored);
  return value;
}

/// The line of a note, from 1, that a byte stands in.
int LineAt(std::string_view note, std::size_t place) {
  const std::string_view in_front = note.substr(0, place);
  return 1 + static_cast<int>(std::count(in_front.begin(), in_front.end(), '\n'));
}

std::string MusicRecord(std::string_view address) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kKeys = {{
      {"song=", "<song>"},
      {"album=", "<album>"},
      {"composer=", "<composer>"},
      {"artist=", "<artist>"},
      {"genre=", "<genre>"},
      {"playlist=", "<playlist>"},
  }};
  std::string record;
  for (const auto& [key, tag] : kKeys) {
    if (address.find(key) != kNotFound) AppendTag(record, tag, ValueOf(address, key));
  }
  return record;
}

}  // namespace

NoteError::NoteError(const fs::path& note, int line, const std::string& fault)
    : RunTimeError(PathText(note) + "\ncould not be imported: " + fault),
      Note(note),
      Line(line),
      Fault(fault) {}

NoteReader::NoteReader(Global& global, const std::vector<std::string>& names, const CodePage& code_page)
    : global_(global), code_page_(code_page) {
  int page = 0;
  for (const std::string& name : names) page_numbers_[name] = FormatPage(++page);
}

void NoteReader::ProcessInput(std::string_view note, int page) {
  line_ = 0;
  if (page > kLastRecord)
    throw RunTimeError(
        "The folder holds more notes than a project has pages.\n"
        "Move some of them to another folder and import again.");
  std::string content;
  content.reserve(note.size() + 2);
  content.append(" ").append(note).append(" ");
  Replacements replacements;
  replacements.Add(0, 0, 1);
  std::string record = CutTitle(content, replacements);
  ConvertMarkup(content, replacements);
  CutMeta(content, replacements);

  AnchorCutter anchors(content);
  std::string links;
  links.reserve(note.size());
  try {
    ProcessAnchors(anchors, links);
  } catch (const RunTimeError&) {
    line_ = LineAt(note, replacements.Undone(anchors.Opening()));
    throw;
  }
  constexpr std::size_t kTags = 32;
  record.reserve(record.size() + anchors.Text().size() + links.size() + kTags);
  AppendTag(record, "<text>", anchors.Text());
  AppendTag(record, "<link>", links);
  global_.Page(page) = std::move(record);
}

/// Takes all anchors out of a note and writes the links that become of them.
void NoteReader::ProcessAnchors(AnchorCutter& anchors, std::string& links) {
  while (const std::optional<std::string> target = anchors.CutNext()) {
    links.append("<linktext></linktext>");
    AppendTag(links, "<linkto>", IsMusicAddress(*target) ? ProcessMusic(*target) : ProcessLink(*target));
  }
}

std::string NoteReader::ProcessLink(const std::string& target) const {
  const auto number = page_numbers_.find(target);
  return number == page_numbers_.end() ? FormatPage(1) : number->second;
}

std::string NoteReader::ProcessMusic(std::string_view target) {
  int number = 1;
  while (number <= kLastMusicLink && !global_.MusicLink(number).empty()) ++number;
  if (number > kLastMusicLink)
    throw RunTimeError(
        "The notes link to more than 100 pieces of music.\n"
        "Move some of them to another folder and import again.");
  const std::string record = MusicRecord(target);
  if (record.empty()) return MusicLinkName(number);
  const auto [same, is_new] = music_links_.try_emplace(code_page_.Lower(record), number);
  if (is_new) global_.MusicLink(number) = record;
  return MusicLinkName(same->second);
}

std::string NoteLines(std::string_view bytes) {
  std::string lines;
  lines.reserve(bytes.size() + bytes.size() / 16 + kLineEnd.size());
  NextByte carriage_return(bytes, '\r');
  NextByte line_feed(bytes, '\n');
  std::size_t at = 0;
  while (at < bytes.size()) {
    const std::size_t end = std::min(carriage_return.From(at), line_feed.From(at));
    lines.append(bytes, at, end - at).append(kLineEnd);
    at = bytes.substr(end).starts_with(kLineEnd) ? end + kLineEnd.size() : end + 1;
  }
  return lines;
}

void ImportNotes(Global& global, const fs::path& folder, const std::vector<fs::path>& notes,
                 const CodePage& code_page, const std::function<void(int)>& progress) {
  ClearDocument(global);
  global.DocPath = folder.filename();
  global.DocPath += ".dat";

  std::vector<std::string> names;
  for (const fs::path& note : notes) names.push_back(NameInCodePage(note, code_page));
  NoteReader reader(global, names, code_page);
  int page = 0;
  for (const fs::path& note : notes) {
    const std::string lines = NoteLines(ReadWholeFile(folder / note));
    try {
      reader.ProcessInput(lines, ++page);
    } catch (const RunTimeError& error) {
      throw NoteError(folder / note, reader.Line(), error.what());
    }
    progress(page);
  }
}

}  // namespace tavrel
