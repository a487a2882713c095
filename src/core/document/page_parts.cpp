#include "core/document/page_parts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/document/markup.h"
#include "core/text/characters.h"

namespace tavrel {
namespace {

/// Reads a record once from its start to its end. It finds what a walker for each tag would: an element ends
/// at the next closing tag of its kind, whatever opens in between.
class PartsReader {
 public:
  explicit PartsReader(std::string_view record) : record_(record) { parts_.Links.reserve(kUsualLinks); }

  PageParts Run() {
    for (std::size_t at = BracketFrom(0); at != kNotFound;) {
      const std::size_t behind_links = PassWholeLinks(at);
      at = BracketFrom(behind_links == at ? PassTag(at) : behind_links);
    }
    for (std::size_t kind = 0; kind < kNames.size(); ++kind) Forget(static_cast<Kind>(kind));
    while (!parts_.Links.empty() && IsNothing(parts_.Links.back())) parts_.Links.pop_back();
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
  static bool IsNothing(const PageParts::Link& link) { return link.Text.empty() && link.Target.empty(); }
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

  std::size_t BracketFrom(std::size_t at) const { return FindNear(record_, '<', at); }

  /// Goes behind what begins with the "<" at a place.
  std::size_t PassTag(std::size_t at) {
    const bool closes = at + 1 < record_.size() && record_[at + 1] == '/';
    const std::size_t name = at + (closes ? 2 : 1);
    const Kind kind = KindOf(record_.substr(name));
    if (kind == Kind::None) return name;
    closes ? Close(kind, at) : Open(kind, at, name + kNames.at(Index(kind)).size());
    return name + kNames.at(Index(kind)).size();
  }

  /// Goes behind the links that stand from a place on as the editor writes them; if none does, nowhere.
  /// Nearly all of a record's tags belong to such links.
  std::size_t PassWholeLinks(std::size_t at) {
    if (IsLinkUnderWay()) return at;
    const std::size_t before = parts_.Links.size();
    const std::size_t start = at;
    while (PassWholeLink(at)) continue;
    if (parts_.Links.size() == before) return at;
    for (const Kind kind : {Kind::LinkText, Kind::LinkTo})
      opened_.at(Index(kind)) = closed_.at(Index(kind)) = parts_.Links.size();
    first_link_ = std::min(first_link_, start);
    last_link_ = at - 1;
    return at;
  }

  bool PassWholeLink(std::size_t& at) {
    constexpr std::string_view kOpening = "<linktext>";
    constexpr std::string_view kBetween = "</linktext><linkto>";
    constexpr std::string_view kClosing = "</linkto>";
    if (!IsTextAt(kOpening, at)) return false;
    const std::size_t words = at + kOpening.size();
    const std::size_t words_end = BracketFrom(words);
    if (!IsTextAt(kBetween, words_end)) return false;
    const std::size_t target = words_end + kBetween.size();
    const std::size_t target_end = BracketFrom(target);
    if (!IsTextAt(kClosing, target_end)) return false;
    parts_.Links.push_back(
        {record_.substr(words, words_end - words), record_.substr(target, target_end - target)});
    at = target_end + kClosing.size();
    return true;
  }

  bool IsTextAt(std::string_view text, std::size_t at) const {
    return at < record_.size() && record_.substr(at).starts_with(text);
  }

  /// Whether a link has words and no target yet, or has not come to its end.
  bool IsLinkUnderWay() const {
    const auto is_whole = [whole = parts_.Links.size()](std::size_t count) { return count == whole; };
    return !(is_whole(opened_.at(Index(Kind::LinkText))) && is_whole(closed_.at(Index(Kind::LinkText))) &&
             is_whole(opened_.at(Index(Kind::LinkTo))) && is_whole(closed_.at(Index(Kind::LinkTo))));
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

std::vector<PageParts::Link> ListedLinks(std::string_view record) {
  return PartsOf(TagContent(record, "<link>", 1)).Links;
}

}  // namespace tavrel
