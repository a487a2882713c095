#include "core/ipod/literal_notes.h"

#include <stdexcept>

#include "core/editing/literal_tags.h"

namespace tavrel::test {
namespace {

const char* const kFields[] = {"song", "album", "composer", "artist", "genre", "playlist"};

int Length(const std::string& text) {
  return static_cast<int>(text.size());
}

/// Everything from a position on.
std::string From(const std::string& text, int position) {
  return LiteralCharacters(text, position, Length(text));
}

std::string Before(const std::string& text, int position) {
  return LiteralCharacters(text, 1, position - 1);
}

std::string LiteralReplaced(const std::string& text, const std::string& wanted,
                            const std::string& replacement) {
  std::string result;
  std::string rest = text;
  for (int p = LiteralPosition(1, rest, wanted); p > 0; p = LiteralPosition(1, rest, wanted)) {
    result += Before(rest, p) + replacement;
    rest = From(rest, p + Length(wanted));
  }
  return result + rest;
}

std::string At(const std::map<int, std::string>& records, int number) {
  const auto found = records.find(number);
  return found == records.end() ? "" : found->second;
}

std::string GetMusic(const LiteralDocument& document, const std::string& reference) {
  if (reference.size() < 2) return "\\";
  const std::string record = At(document.MusicLinks, LiteralNumber(reference.substr(1)));
  std::string query;
  for (const std::string field : kFields) {
    const std::string value = LiteralGetTag(record, "<" + field + ">", 1);
    if (!value.empty()) query += "&" + field + "=" + value;
  }
  return query.empty() ? "\\" : "ipod:music?" + query.substr(1);
}

std::string Address(const LiteralDocument& document, const std::string& target) {
  return LiteralNumber(target) > 0 ? "z" + target + ".txt" : GetMusic(document, target);
}

std::string GetText(const LiteralDocument& document, const std::string& text, const std::string& record) {
  const int opening = LiteralPosition(1, text, "<");
  const int closing = LiteralPosition(1, text, ">");
  if (opening == 0 || closing < opening) return text;
  std::string result;
  int k = 1;
  for (const char c : text) {
    result += c;
    if (c == '<') {
      result += "a href=\"" + Address(document, LiteralGetTag(record, "<linkto>", k)) + "\">";
      k = k + 1;
    }
    if (c == '>') {
      result.pop_back();
      result += "</a>";
    }
  }
  return result;
}

std::string NoteOf(const LiteralDocument& document, int page, const PublishOptions& options) {
  const std::string record = At(document.Pages, page);
  std::string note = "<title>";
  if (page == 1) note += "-";
  note += LiteralGetTag(record, "<title>", 1) + "</title>\r\n";
  note += "<meta name=\"LineWrap\" content=\"false\">\r\n";
  if (options.BackgroundMusic) note += "<meta name=\"NowPlaying\" content=\"false\">\r\n";
  const std::string caption = LiteralGetTag(record, "<music>", 1);
  if (!caption.empty()) {
    note +=
        "<a href=\"" + GetMusic(document, LiteralGetTag(record, "<music>", 2)) + "\">" + caption + "</a>\r\n";
  }
  note += GetText(document, LiteralGetTag(record, "<text>", 1), record) + "\r\n";
  for (int k = 1;; ++k) {
    const std::string text = LiteralGetTag(record, "<linktext>", k);
    const std::string target = LiteralGetTag(record, "<linkto>", k);
    if (text.empty() || target.empty()) break;
    note += "<a href=\"" + Address(document, target) + "\">" + text + "</a>\r\n";
  }
  if (options.NotesMenuLink) note += "<a href=\"\\\">Notes menu</a>\r\n";
  return note;
}

/// The small form of a character of Windows-1252.
char Small(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const bool is_capital = (c >= 'A' && c <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
  if (is_capital) return static_cast<char>(byte + 0x20);
  if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 0x10);
  return byte == 0x9F ? '\xFF' : c;
}

std::string WithoutCase(std::string text) {
  for (char& c : text) c = Small(c);
  return text;
}

/// Takes the title element out of the content.
std::string CutTitle(std::string& content) {
  const int opening = LiteralPosition(1, content, "<title>");
  const int closing = LiteralPosition(1, content, "</title>");
  if (opening == 0 || closing == 0 || closing < opening) return "";
  const std::string element = LiteralCharacters(content, opening, closing + 8 - opening);
  content = Before(content, opening) + From(content, closing + 8);
  return element;
}

/// Takes the first anchor out of the content and gives its target.
std::string CutAnchor(std::string& content) {
  const int p = LiteralPosition(1, content, "<a href=");
  const int quote = LiteralPosition(p + 9, content, "\"");
  if (quote == 0) throw std::runtime_error("no closing quote");
  const std::string target = LiteralCharacters(content, p + 9, quote - (p + 9));
  content = Before(content, p) + From(content, quote + 2);
  const int closing = LiteralPosition(p, content, "</a>");
  if (closing == 0) throw std::runtime_error("no closing tag");
  content = Before(content, closing) + From(content, closing + 4);
  return target;
}

}  // namespace

LiteralDocument ContentsOf(const Global& global) {
  LiteralDocument document;
  for (int page = 0; page <= 1000; ++page) {
    if (!global.Page(page).empty()) document.Pages[page] = global.Page(page);
  }
  for (int link = 0; link <= 100; ++link) {
    if (!global.MusicLink(link).empty()) document.MusicLinks[link] = global.MusicLink(link);
  }
  return document;
}

std::string LiteralFile(const LiteralDocument& document) {
  std::string file;
  for (int link = 0; link <= 99; ++link) {
    const std::string record = At(document.MusicLinks, link);
    if (!record.empty()) file += " " + std::to_string(link) + " ," + record + "\r\n";
  }
  file += "\r\n";
  for (int page = 0; page <= 999; ++page) {
    const std::string record = LiteralReplaced(At(document.Pages, page), "\r\n", "<p>");
    if (!record.empty()) file += " " + std::to_string(page) + " ," + record + "\r\n";
  }
  return file;
}

LiteralDocument LiteralSavedAndLoaded(LiteralDocument document) {
  document.Pages.erase(1000);
  document.MusicLinks.erase(100);
  for (auto& [page, record] : document.Pages) record = LiteralReplaced(record, "<p>", "\r\n");
  return document;
}

std::map<std::string, std::string> LiteralNotes(const LiteralDocument& document,
                                                const PublishOptions& options) {
  std::map<std::string, std::string> notes;
  for (int page = 1; page <= 999; ++page) {
    if (At(document.Pages, page).empty()) continue;
    notes["z" + LiteralFormat(page) + ".txt"] = NoteOf(document, page, options);
  }
  return notes;
}

std::string LiteralLines(const std::string& bytes) {
  std::string lines;
  bool is_line_begun = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && i > 0 && bytes[i - 1] == '\r') continue;
    is_line_begun = bytes[i] != '\r' && bytes[i] != '\n';
    lines += is_line_begun ? std::string(1, bytes[i]) : "\r\n";
  }
  return is_line_begun ? lines + "\r\n" : lines;
}

void LiteralReader::ProcessInput(const std::string& note, int page) {
  if (page > 1000) throw std::runtime_error("no such page");
  std::string content = " " + note + " ";
  std::string record = CutTitle(content);

  content = LiteralReplaced(content, "<br>", "\r\n");
  content = LiteralReplaced(content, "<p>", "\r\n");
  content = LiteralReplaced(content, "</p>", "");
  content = LiteralReplaced(content, "<body>", "");
  content = LiteralReplaced(content, "</body>", "");

  const int meta = LiteralPosition(1, content, "<meta ");
  const int meta_end = meta == 0 ? 0 : LiteralPosition(meta, content, ">");
  if (meta_end > 0) content = Before(content, meta) + From(content, meta_end + 1);

  std::string links = "<link>";
  while (LiteralPosition(1, content, "<a href=") > 0) {
    const std::string target = CutAnchor(content);
    const bool is_music = target.substr(0, 5) == "ipod:" || target.substr(0, 5) == "song=";
    links += "<linktext></linktext><linkto>" + (is_music ? ProcessMusic(target) : ProcessLink(target)) +
             "</linkto>";
  }
  record += "<text>" + content + "</text>" + links + "</link>";
  Document.Pages[page] = record;
}

std::string LiteralReader::ProcessLink(const std::string& target) const {
  std::string number = "001";
  for (std::size_t i = 0; i < names_.size(); ++i) {
    if (names_[i] == target) number = LiteralFormat(static_cast<int>(i) + 1);
  }
  return number;
}

std::string LiteralReader::ProcessMusic(const std::string& target) {
  int n = 1;
  while (!At(Document.MusicLinks, n).empty()) ++n;
  if (n > 100) throw std::runtime_error("no free music link");
  std::string record;
  for (const std::string field : kFields) {
    const std::string key = field + "=";
    const int found = LiteralPosition(1, target, key);
    if (found == 0) continue;
    const std::string rest = From(target, found + Length(key));
    const int end = LiteralPosition(1, rest, "&");
    // A record is one line of the document's file.
    const std::string value = LiteralReplaced(end == 0 ? rest : Before(rest, end), "\r\n", " ");
    record += "<" + field + ">" + value + "</" + field + ">";
  }
  for (int other = 1; other < n; ++other) {
    if (WithoutCase(At(Document.MusicLinks, other)) == WithoutCase(record))
      return "M" + std::to_string(other);
  }
  if (!record.empty()) Document.MusicLinks[n] = record;
  return "M" + std::to_string(n);
}

LiteralDocument LiteralImport(const std::map<std::string, std::string>& notes) {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : notes) names.push_back(name);
  LiteralReader reader(names);
  int page = 0;
  for (const auto& [name, bytes] : notes) reader.ProcessInput(LiteralLines(bytes), ++page);
  return reader.Document;
}

}  // namespace tavrel::test
