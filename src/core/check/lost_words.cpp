#include "core/check/lost_words.h"

#include <algorithm>
#include <array>

#include "core/text/characters.h"

namespace tavrel {
namespace {

/// An element of a record that holds a field.
struct Element {
  std::string_view Opening;
  std::string_view Closing;
  Field First;  ///< the field that it holds
  Field Next;   ///< if it comes again; Field::Page: then it is not read
};

constexpr std::array<Element, 6> kElements = {
    {{"<title>", "</title>", Field::Title, Field::Page},
     {"<note>", "</note>", Field::Note, Field::Page},
     {"<text>", "</text>", Field::Text, Field::Page},
     {"<linktext>", "</linktext>", Field::LinkText, Field::LinkText},
     {"<linkto>", "</linkto>", Field::LinkTarget, Field::LinkTarget},
     {"<music>", "</music>", Field::MusicText, Field::MusicLink}}};

/// Walks a record from element to element.
class RecordWalk {
 public:
  explicit RecordWalk(std::string_view record) : record_(record) {}

  std::vector<LostWords> Run() {
    while (at_ < record_.size()) {
      if (!PassLinkTag() && !PassElement()) PassLostWords();
    }
    return std::move(lost_);
  }

 private:
  bool IsAt(std::string_view tag) const { return record_.substr(at_).starts_with(tag); }

  /// The links stand in an element of their own.
  bool PassLinkTag() {
    for (const std::string_view tag : {"<link>", "</link>"}) {
      if (!IsAt(tag)) continue;
      at_ += tag.size();
      return true;
    }
    return false;
  }

  bool PassElement() {
    for (std::size_t index = 0; index < kElements.size(); ++index) {
      if (!IsAt(kElements[index].Opening)) continue;
      PassContent(kElements[index], ++counts_[index]);
      return true;
    }
    return false;
  }

  void PassContent(const Element& element, int count) {
    const std::size_t start = at_ + element.Opening.size();
    const std::size_t end = record_.find(element.Closing, start);
    const Field field = count == 1 ? element.First : element.Next;
    const bool is_link = field == Field::LinkText || field == Field::LinkTarget;
    const bool is_read = field != Field::Page && end != kNotFound && (is_link || count <= 2);
    if (is_read) {
      last_ = {{.Where = field, .Link = is_link ? count : 0, .Position = end - start},
               record_.substr(start, end - start),
               element.Closing};
    } else {
      lost_.push_back(last_);
    }
    at_ = end == kNotFound ? record_.size() : end + element.Closing.size();
  }

  void PassLostWords() {
    const std::size_t start = at_;
    do {
      at_ = std::min(record_.find('<', at_ + 1), record_.size());
    } while (at_ < record_.size() && !IsAtTag());
    const std::string_view words = record_.substr(start, at_ - start);
    if (words.find_first_not_of(" \r\n") != kNotFound) lost_.push_back(last_);
  }

  bool IsAtTag() const {
    const auto opens = [this](const Element& element) { return IsAt(element.Opening); };
    return IsAt("<link>") || IsAt("</link>") || std::any_of(kElements.begin(), kElements.end(), opens);
  }

  std::string_view record_;
  std::size_t at_ = 0;
  std::array<int, kElements.size()> counts_ = {};
  LostWords last_;
  std::vector<LostWords> lost_;
};

}  // namespace

bool IsAsWritten(std::string_view record, const PageParts& parts) {
  std::size_t at = 0;
  const auto pass = [&](std::string_view tag, std::string_view content) {
    if (content.empty()) return true;
    const auto start = static_cast<std::size_t>(content.data() - record.data());
    if (start != at + tag.size()) return false;
    at += 2 * tag.size() + 1 + content.size();
    return true;
  };
  const auto pass_tag = [&](std::string_view tag) {
    if (!record.substr(at).starts_with(tag)) return false;
    at += tag.size();
    return true;
  };
  const auto pass_link = [&](const PageParts::Link& link) {
    return pass("<linktext>", link.Text) && pass("<linkto>", link.Target);
  };
  const auto pass_links = [&] {
    return parts.Links.empty() ||
           (pass_tag("<link>") && std::all_of(parts.Links.begin(), parts.Links.end(), pass_link) &&
            pass_tag("</link>"));
  };
  return pass("<title>", parts.Title) && pass("<note>", parts.Note) && pass("<text>", parts.Text) &&
         pass_links() && pass("<music>", parts.MusicText) && pass("<music>", parts.MusicLink) &&
         at == record.size();
}

std::vector<LostWords> FindLostWords(std::string_view record) {
  return RecordWalk(record).Run();
}

}  // namespace tavrel
