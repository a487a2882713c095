#include "literal_rules.h"

#include <cmath>
#include <cstdlib>
#include <vector>

#include "core/text/run_time_error.h"

namespace tavrel::fuzz {
namespace {

std::size_t OpeningPosition(const std::string& text, const std::string& tag, int occurrence) {
  std::size_t position = Position(text, tag, 1);
  while (occurrence > 1 && position > 0) {
    --occurrence;
    position = Position(text, tag, position + 1);
  }
  return position;
}

std::string Closing(const std::string& tag) {
  return tag.substr(0, 1) + "/" + tag.substr(1);
}

/// The number that a text begins with, after blanks; 0 without one.
double LeadingNumber(const std::string& text) {
  std::size_t at = 0;
  while (at < text.size() && text[at] == ' ') ++at;
  std::string number;
  const auto take_digits = [&] {
    std::size_t digits = 0;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++digits) number += text[at++];
    return digits;
  };
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) number += text[at++];
  std::size_t digits = take_digits();
  if (at < text.size() && text[at] == '.') {
    number += text[at++];
    digits += take_digits();
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    number += text[at++];
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) number += text[at++];
    if (take_digits() == 0) number.resize(number.find_first_of("eE"));
  }
  return std::strtod(number.c_str(), nullptr);
}

std::string Target(const Global& global, const std::string& link_to) {
  if (LeadingNumber(link_to) > 0) return "z" + link_to + ".txt";
  return LiteralGetMusic(global, link_to);
}

/// The lines of a text, each without its CR LF or LF; a last one without an end counts if it is not empty.
std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  for (const char character : text) {
    if (character == '\n') {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      lines.push_back(line);
      line.clear();
    } else {
      line += character;
    }
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

std::string WithLineBreaks(std::string record) {
  for (std::size_t at = 0; (at = Position(record, "<p>", at + 1)) != 0;) record.replace(at - 1, 3, "\r\n");
  return record;
}

struct Entry {
  bool HasIndex;
  double Index;
  std::string Record;
};

Entry EntryOf(const std::string& line) {
  const std::size_t comma = line.find(',');
  const std::string field = line.substr(0, comma);
  return {field.find_first_not_of(' ') != std::string::npos, std::nearbyint(LeadingNumber(field)),
          comma == std::string::npos ? "" : line.substr(comma + 1)};
}

std::size_t Checked(double index, double last) {
  if (!(index >= 0 && index <= last)) throw RunTimeError("no such entry");
  return static_cast<std::size_t>(index);
}

}  // namespace

std::size_t Position(const std::string& text, const std::string& wanted, std::size_t from) {
  for (std::size_t at = from; at + wanted.size() <= text.size() + 1; ++at) {
    if (text.compare(at - 1, wanted.size(), wanted) == 0) return at;
  }
  return 0;
}

void LiteralReadDocument(const std::string& text, Global& global) {
  bool in_pages = false;
  for (const std::string& line : Lines(text)) {
    const Entry entry = EntryOf(line);
    if (in_pages) {
      global.Pages.at(Checked(entry.Index, 1000)) = WithLineBreaks(entry.Record);
    } else if (entry.HasIndex) {
      global.MusicLinks.at(Checked(entry.Index, 100)) = entry.Record;
    } else {
      in_pages = true;
    }
  }
  if (!in_pages) throw RunTimeError("no pages");
}

std::string LiteralGetTag(const std::string& text, const std::string& tag, int occurrence) {
  std::size_t position = OpeningPosition(text, tag, occurrence);
  if (position < 1) return "";
  position += tag.size();
  const std::size_t end = Position(text, Closing(tag), position);
  if (end < 1 || position >= end) return "";
  return text.substr(position - 1, end - position);
}

void LiteralSetTag(std::string& text, const std::string& value, const std::string& tag, int occurrence) {
  std::size_t position = OpeningPosition(text, tag, occurrence);
  if (position < 1) return;
  position += tag.size() - 1;
  const std::size_t end = Position(text, Closing(tag), position);
  if (end >= 1) text = text.substr(0, position) + value + text.substr(end - 1);
}

std::string LiteralGetMusic(const Global& global, const std::string& reference) {
  if (reference.size() < 2) return "\\";
  const double number = std::nearbyint(LeadingNumber(reference.substr(1)));
  if (!(number >= 0 && number <= 100)) throw RunTimeError("no such music link");
  const std::string& record = global.MusicLinks[static_cast<std::size_t>(number)];
  std::string query;
  for (const std::string field : {"song", "album", "composer", "artist", "genre", "playlist"}) {
    const std::string value = LiteralGetTag(record, "<" + field + ">", 1);
    if (!value.empty()) query += "&" + field + "=" + value;
  }
  if (query.empty()) return "\\";
  return "ipod:music?" + query.substr(1);
}

std::string LiteralGetText(const Global& global, const std::string& text, int page) {
  const std::size_t opening = Position(text, "<", 1);
  const std::size_t closing = Position(text, ">", 1);
  if (opening == 0 || closing < opening) return text;
  std::string result;
  int link = 1;
  for (const char character : text) {
    result += character;
    if (character == '<') {
      const std::string link_to = LiteralGetTag(global.Page(page), "<linkto>", link);
      result += "a href=\"" + Target(global, link_to) + "\">";
      ++link;
    }
    if (character == '>') {
      result.pop_back();
      result += "</a>";
    }
  }
  return result;
}

std::string LiteralNote(const Global& global, int page, const PublishOptions& options) {
  const std::string& record = global.Page(page);
  std::string note = "<title>";
  if (page == 1) note += "-";
  note += LiteralGetTag(record, "<title>", 1) + "</title>\r\n";
  note += "<meta name=\"LineWrap\" content=\"false\">\r\n";
  if (options.BackgroundMusic) note += "<meta name=\"NowPlaying\" content=\"false\">\r\n";
  const std::string caption = LiteralGetTag(record, "<music>", 1);
  if (!caption.empty()) {
    const std::string music = LiteralGetMusic(global, LiteralGetTag(record, "<music>", 2));
    note += "<a href=\"" + music + "\">" + caption + "</a>\r\n";
  }
  note += LiteralGetText(global, LiteralGetTag(record, "<text>", 1), page) + "\r\n";
  for (int link = 1;; ++link) {
    const std::string link_to = LiteralGetTag(record, "<linkto>", link);
    const std::string link_text = LiteralGetTag(record, "<linktext>", link);
    if (link_to.empty() || link_text.empty()) break;
    note += "<a href=\"" + Target(global, link_to) + "\">" + link_text + "</a>\r\n";
  }
  if (options.NotesMenuLink) note += "<a href=\"\\\">Notes menu</a>\r\n";
  return note;
}

}  // namespace tavrel::fuzz
