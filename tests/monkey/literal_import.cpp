#include <algorithm>

#include "core/editing/literal_tags.h"
#include "core/text/code_page.h"
#include "monkey/literal_page.h"

namespace tavrel::test {
namespace {

void ReplaceAll(std::string& text, const std::string& wanted, const std::string& replacement) {
  for (std::size_t at = text.find(wanted); at != std::string::npos;) {
    text.replace(at, wanted.size(), replacement);
    at = text.find(wanted, at + replacement.size());
  }
}

/// A note as it is read: line by line, CR LF after each.
std::string Lines(const std::string& bytes) {
  std::string lines;
  std::string line;
  bool any = false;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    any = true;
    if (bytes[at] != '\r' && bytes[at] != '\n') {
      line += bytes[at];
      continue;
    }
    if (bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n') ++at;
    lines += line + "\r\n";
    line.clear();
    any = false;
  }
  if (any) lines += line + "\r\n";
  return lines;
}

class Reader {
 public:
  explicit Reader(const std::vector<std::string>& names) : names_(names) {}

  Imported Result;

  bool Read(const std::string& note) {
    std::string content = " " + note + " ";
    std::string page = CutTitle(content);
    for (const char* tag : {"<br>", "<p>"}) ReplaceAll(content, tag, "\r\n");
    for (const char* tag : {"</p>", "<body>", "</body>"}) ReplaceAll(content, tag, "");
    const std::size_t meta = content.find("<meta ");
    const std::size_t end = meta == std::string::npos ? meta : content.find('>', meta);
    if (end != std::string::npos) content.erase(meta, end + 1 - meta);
    std::string links;
    for (std::size_t p = 0; (p = content.find("<a href=")) != std::string::npos;) {
      const std::size_t start = p + 9;
      const std::size_t quote = start > content.size() ? std::string::npos : content.find('"', start);
      if (quote == std::string::npos) return false;
      const std::string target = content.substr(start, quote - start);
      content.erase(p, quote + 2 - p);
      const std::size_t closing = content.find("</a>", p);
      if (closing == std::string::npos) return false;
      content.erase(closing, 4);
      const bool music = target.starts_with("ipod:") || target.starts_with("song=");
      if (music && FreeMusic() > 100) return false;
      links += "<linktext></linktext><linkto>" + (music ? Music(target) : Page(target)) + "</linkto>";
    }
    Result.Pages.push_back(page + "<text>" + content + "</text><link>" + links + "</link>");
    return true;
  }

 private:
  static std::string CutTitle(std::string& content) {
    const std::size_t opening = content.find("<title>");
    const std::size_t closing = content.find("</title>");
    if (opening == std::string::npos || closing == std::string::npos || closing < opening) return "";
    const std::string title = content.substr(opening, closing + 8 - opening);
    content.erase(opening, title.size());
    return title;
  }

  std::string Page(const std::string& target) const {
    std::string number = "001";
    for (std::size_t i = 0; i < names_.size(); ++i) {
      if (names_[i] == target) number = LiteralFormat(static_cast<int>(i) + 1);
    }
    return number;
  }

  std::size_t FreeMusic() const { return Result.Music.size() + 1; }

  std::string Music(const std::string& target) {
    std::string record;
    for (const std::string key : {"song", "album", "composer", "artist", "genre", "playlist"}) {
      const std::size_t found = target.find(key + "=");
      if (found == std::string::npos) continue;
      const std::size_t start = found + key.size() + 1;
      std::string value = target.substr(start, target.find('&', start) - start);
      // A music link is one line of the document's file.
      ReplaceAll(value, "\r\n", " ");
      record += "<" + key + ">" + value + "</" + key + ">";
    }
    const CodePage& code_page = CodePage::Windows1252();
    for (std::size_t i = 0; i < Result.Music.size(); ++i) {
      if (!record.empty() && code_page.Lower(Result.Music[i]) == code_page.Lower(record))
        return "M" + std::to_string(i + 1);
    }
    const std::string name = "M" + std::to_string(FreeMusic());
    if (!record.empty()) Result.Music.push_back(record);
    return name;
  }

  const std::vector<std::string>& names_;
};

}  // namespace

std::optional<Imported> LiteralImport(const std::vector<std::string>& names,
                                      const std::vector<std::string>& notes) {
  if (notes.size() > 1000) return std::nullopt;
  Reader reader(names);
  for (const std::string& note : notes) {
    if (!reader.Read(Lines(note))) return std::nullopt;
  }
  return reader.Result;
}

}  // namespace tavrel::test
