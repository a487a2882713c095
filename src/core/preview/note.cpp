#include "core/preview/note.h"

#include <algorithm>
#include <utility>

#include "core/ipod/device_limits.h"
#include "core/text/characters.h"

namespace tavrel {
namespace {

char Lower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool StartsWith(std::string_view text, std::string_view lower_start) {
  return text.size() >= lower_start.size() &&
         std::equal(lower_start.begin(), lower_start.end(), text.begin(),
                    [](char wanted, char character) { return wanted == Lower(character); });
}

/// A tag's name in small letters: "<A href=..." is "a", "</A>" is "/a".
std::string NameOf(std::string_view tag) {
  std::string name;
  for (const char character : tag.substr(1)) {
    if (character == '>' || character == ' ' || character == '\r' || character == '\n') break;
    if (character == '/' && !name.empty()) break;  // <br/>
    name += Lower(character);
  }
  return name;
}

/// The value of href in an opening tag, with or without quotes.
std::string AddressIn(std::string_view tag) {
  constexpr std::string_view kKey = "href=";
  std::size_t at = 0;
  while (at < tag.size() && !StartsWith(tag.substr(at), kKey)) ++at;
  if (at == tag.size()) return {};
  const std::string_view value = tag.substr(at + kKey.size());
  if (value.starts_with('"')) return std::string(value.substr(1, value.find('"', 1) - 1));
  return std::string(value.substr(0, value.find_first_of(" >")));
}

/// Goes through a note from front to end.
class NoteScanner {
 public:
  explicit NoteScanner(std::string_view bytes) : rest_(bytes.substr(0, kShownBytes)) {
    note_.IsCut = bytes.size() > kShownBytes;
  }

  Note Run() {
    while (!rest_.empty()) {
      const std::size_t end = rest_.starts_with('<') ? rest_.find('>') : kNotFound;
      if (end != kNotFound) {
        TakeTag(rest_.substr(0, end + 1));
      } else if (rest_.starts_with('\r') || rest_.starts_with('\n')) {
        TakeLineEnd();
      } else {
        TakeText();
      }
    }
    CloseLink();
    return std::move(note_);
  }

 private:
  void Skip(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

  void TakeText() {
    const std::size_t end = std::min(rest_.find_first_of("<\r\n", 1), rest_.size());
    note_.Text.append(rest_.substr(0, end));
    is_head_line_ = false;
    Skip(end);
  }

  void TakeLineEnd() {
    Skip(rest_.starts_with("\r\n") ? 2 : 1);
    if (!std::exchange(is_head_line_, false)) note_.Text += '\n';
  }

  void TakeTag(std::string_view tag) {
    const std::string name = NameOf(tag);
    Skip(tag.size());
    if (name == "title") {
      TakeTitle();
    } else if (name == "meta") {
      StartHeadLine();
    } else if (name == "br" || name == "p") {
      note_.Text += '\n';
    } else if (name == "a") {
      CloseLink();
      note_.Links.push_back({AddressIn(tag), note_.Text.size(), 0});
      is_in_link_ = true;
    } else if (name == "/a") {
      CloseLink();
    }
  }

  void TakeTitle() {
    std::size_t end = 0;
    while (end < rest_.size() && !StartsWith(rest_.substr(end), "</title>")) ++end;
    if (note_.Title.empty()) note_.Title = rest_.substr(0, end);
    Skip(end);
    StartHeadLine();
  }

  /// A line is not shown if nothing else follows on it and nothing stood before.
  void StartHeadLine() { is_head_line_ = note_.Text.empty() || note_.Text.ends_with('\n'); }

  void CloseLink() {
    if (!std::exchange(is_in_link_, false)) return;
    NoteLink& link = note_.Links.back();
    link.Length = note_.Text.size() - link.Start;
    if (link.Length == 0) note_.Links.pop_back();
  }

  std::string_view rest_;
  Note note_;
  bool is_in_link_ = false;
  bool is_head_line_ = false;
};

}  // namespace

Note ReadNote(std::string_view bytes) {
  return NoteScanner(bytes).Run();
}

}  // namespace tavrel
