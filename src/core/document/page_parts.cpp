#include "core/document/page_parts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text/characters.h"

namespace tavrel {
namespace {

InlineLink LinkAt(std::string_view text, std::size_t opening, std::size_t next) {
  const bool is_closed = next != kNotFound && text[next] == '>';
  const std::size_t end = is_closed ? next + 1 : opening + 1;
  const std::size_t words = is_closed ? next - opening - 1 : 0;
  return {opening, end - opening, text.substr(opening + 1, words), is_closed};
}

/// Reads a record once from its start to its end. It finds what a walker for each tag would: an element ends
/// at the next closing tag of its kind, whatever opens in between.
class PartsReader {
 public:
  explicit PartsReader(std::string_view record) : record_(record) { parts_.Links.reserve(kUsualLinks); }

  PageParts Run() {
    for (std::size_t at = record_.find('<'); at != kNotFound; at = record_.find('<', at + 1)) {
      const bool closes = at + 1 < record_.size() && record_[at + 1] == '/';
      const std::size_t name = at + (closes ? 2 : 1);
      const Kind kind = KindOf(record_.substr(name));
      if (kind == Kind::None) continue;
      closes ? Close(kind, at) : Open(kind, at, name + kNames.at(Index(kind)).size());
    }
    for (std::size_t kind = 0; kind < kNames.size(); ++kind) Forget(static_cast<Kind>(kind));
    const auto start = static_cast<std::size_t>(list_.data() == nullptr ? 0 : list_.data() - record_.data());
    parts_.AreLinksListed = parts_.Links.empty() || (list_.data() != nullptr && first_link_ >= start &&
                                                     last_link_ < start + list_.size());
    return std::move(parts_);
  }

 private:
  enum class Kind { Title, Note, Text, Music, LinkText, LinkTo, Link, None };

  static constexpr std::size_t kUsualLinks = 49;
  static constexpr std::array<std::string_view, 7> kNames = {"title>",    "note>",   "text>", "music>",
                                                             "linktext>", "linkto>", "link>"};

  static std::size_t Index(Kind kind) { return static_cast<std::size_t>(kind); }
  static bool IsOfLink(Kind kind) { return kind == Kind::LinkText || kind == Kind::LinkTo; }

  static Kind KindOf(std::string_view text) {
    if (text.starts_with("link")) {
      text.remove_prefix(4);
      if (text.starts_with("text>")) return Kind::LinkText;
      if (text.starts_with("to>")) return Kind::LinkTo;
      return text.starts_with(">") ? Kind::Link : Kind::None;
    }
    if (text.starts_with("title>")) return Kind::Title;
    if (text.starts_with("note>")) return Kind::Note;
    if (text.starts_with("text>")) return Kind::Text;
    return text.starts_with("music>") ? Kind::Music : Kind::None;
  }

  /// Where the content of the element goes; null if nobody asks for it.
  std::string_view* Place(Kind kind, std::size_t element) {
    switch (kind) {
      case Kind::LinkText:
        return &parts_.Links[element].Text;
      case Kind::LinkTo:
        return &parts_.Links[element].Target;
      case Kind::Music:
        return element == 0 ? &parts_.MusicText : element == 1 ? &parts_.MusicLink : nullptr;
      default:
        break;
    }
    if (element > 0) return nullptr;
    return kind == Kind::Title  ? &parts_.Title
           : kind == Kind::Note ? &parts_.Note
           : kind == Kind::Text ? &parts_.Text
                                : &list_;
  }

  void Open(Kind kind, std::size_t at, std::size_t start) {
    const std::size_t element = opened_.at(Index(kind))++;
    if (IsOfLink(kind)) {
      if (element == parts_.Links.size()) parts_.Links.emplace_back();
      first_link_ = std::min(first_link_, at);
      last_link_ = at;
    }
    if (std::string_view* place = Place(kind, element)) *place = record_.substr(start, 0);
  }

  void Close(Kind kind, std::size_t at) {
    std::size_t& closed = closed_.at(Index(kind));
    if (closed == opened_.at(Index(kind))) return;
    for (; closed < opened_.at(Index(kind)); ++closed) {
      if (std::string_view* place = Place(kind, closed))
        *place = {place->data(), static_cast<std::size_t>(record_.data() + at - place->data())};
    }
    if (IsOfLink(kind)) last_link_ = at;
  }

  /// Elements without an end have no content.
  void Forget(Kind kind) {
    for (std::size_t open = closed_.at(Index(kind)); open < opened_.at(Index(kind)); ++open) {
      if (std::string_view* place = Place(kind, open)) *place = {};
    }
  }

  std::string_view record_;
  PageParts parts_;
  std::string_view list_;  ///< the first list of links
  std::array<std::size_t, kNames.size()> opened_{};
  std::array<std::size_t, kNames.size()> closed_{};
  std::size_t first_link_ = kNotFound;
  std::size_t last_link_ = 0;
};

}  // namespace

std::size_t PageParts::PublishedLinks() const {
  const auto incomplete = [](const Link& link) { return link.Text.empty() || link.Target.empty(); };
  return static_cast<std::size_t>(std::find_if(Links.begin(), Links.end(), incomplete) - Links.begin());
}

PageParts PartsOf(std::string_view record) {
  return PartsReader(record).Run();
}

std::size_t FindBracket(std::string_view text, std::size_t from) {
  // In parts: one of the two may be far away where the other is near.
  constexpr std::size_t kPart = 256;
  for (; from < text.size(); from += kPart) {
    const std::string_view part = text.substr(from, kPart);
    const std::size_t closing = part.find('>');
    const std::size_t bracket = std::min(closing, part.substr(0, closing).find('<'));
    if (bracket != kNotFound) return from + bracket;
  }
  return kNotFound;
}

Brackets BracketsOf(std::string_view text) {
  Brackets brackets;
  const std::size_t first = FindBracket(text, 0);
  brackets.AreLinks = first != kNotFound && text[first] == '<' && text.find('>') != kNotFound;
  bool is_open = false;
  for (std::size_t at = first; at != kNotFound;) {
    const std::size_t next = FindBracket(text, at + 1);
    if (text[at] == '<') {
      brackets.Links.push_back(LinkAt(text, at, next));
    } else if (!is_open) {
      brackets.LoneClosings.push_back(at);
    }
    is_open = text[at] == '<';
    at = next;
  }
  return brackets;
}

}  // namespace tavrel
