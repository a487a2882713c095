#include "core/editing/text_search.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace tavrel {
namespace {

/// So many places are looked at together.
constexpr std::size_t kBlock = 128;

/// In so many places a single letter is looked for together.
constexpr std::size_t kPart = 1024;

/// For each place that is passed, so many characters may turn out equal at places that are no match after
/// all.
constexpr std::size_t kPatience = 4;

std::string AllBytes() {
  std::string bytes(256, '\0');
  std::iota(bytes.begin(), bytes.end(), '\0');
  return bytes;
}

}  // namespace

TextSearch::TextSearch(std::string_view wanted, bool match_case, const CodePage& code_page)
    : wanted_(match_case ? std::string(wanted) : code_page.Lower(wanted)), folded_{} {
  const std::string bytes = match_case ? AllBytes() : code_page.Lower(AllBytes());
  std::copy(bytes.begin(), bytes.end(), folded_.begin());
  first_ = FormsOf(wanted_.front());
  last_ = FormsOf(wanted_.back());
  borders_.reserve(wanted_.size());
  borders_.push_back(0);
  while (borders_.size() < wanted_.size())
    borders_.push_back(Matched(borders_.back(), wanted_[borders_.size()]));
}

TextSearch::Forms TextSearch::FormsOf(char wanted) const {
  Forms forms{wanted, wanted};
  const auto one = std::find(folded_.begin(), folded_.end(), wanted);
  const auto other = std::find(one + 1, folded_.end(), wanted);
  forms.One = static_cast<char>(one - folded_.begin());
  forms.Other = other == folded_.end() ? forms.One : static_cast<char>(other - folded_.begin());
  return forms;
}

std::size_t TextSearch::Find(std::string_view text, std::size_t from) const {
  if (wanted_.size() == 1) return FindLetter(text, from);
  std::size_t patience = 0;
  while (from + wanted_.size() <= text.size()) {
    const std::size_t count = std::min(kBlock, text.size() - wanted_.size() + 1 - from);
    patience += count * kPatience;
    const std::size_t found = FindIn(text.substr(from), count, patience);
    from += found;
    if (found < count) return patience > 0 ? from : FindStepByStep(text, from);
  }
  return text.size();
}

std::size_t TextSearch::FindLetter(std::string_view text, std::size_t from) const {
  // In parts: one form may be far away where the other is near.
  for (; from < text.size(); from += kPart) {
    const std::string_view part = text.substr(from, kPart);
    const std::size_t one = part.find(first_.One);
    const std::size_t found =
        first_.One == first_.Other ? one : std::min(one, part.substr(0, one).find(first_.Other));
    if (found != std::string_view::npos) return from + found;
  }
  return text.size();
}

/// The first match among `count` places, or the first place that uses up the patience; `count` without
/// either.
std::size_t TextSearch::FindIn(std::string_view text, std::size_t count, std::size_t& patience) const {
  // Without branches, so that the compiler looks at many places at once.
  std::array<char, kBlock> candidates;
  const char* first = text.data();
  const char* last = first + wanted_.size() - 1;
  const Forms f = first_;
  const Forms l = last_;
  for (std::size_t i = 0; i < count; ++i) {
    const bool is_first = (first[i] == f.One) | (first[i] == f.Other);
    const bool is_last = (last[i] == l.One) | (last[i] == l.Other);
    candidates[i] = is_first & is_last;
  }
  for (std::size_t at = 0; at < count; ++at) {
    const void* candidate = std::memchr(candidates.data() + at, 1, count - at);
    if (candidate == nullptr) break;
    at = static_cast<std::size_t>(static_cast<const char*>(candidate) - candidates.data());
    const std::size_t same = SameLength(text.substr(at));
    if (same == wanted_.size()) return at;
    patience -= std::min(same, patience);
    if (patience == 0) return at;
  }
  return count;
}

/// Looks at every character only once, however often the text nearly holds what is looked for.
std::size_t TextSearch::FindStepByStep(std::string_view text, std::size_t from) const {
  std::size_t matched = 0;
  for (std::size_t at = from; at < text.size(); ++at) {
    matched = Matched(matched, Folded(text[at]));
    if (matched == wanted_.size()) return at + 1 - matched;
  }
  return text.size();
}

/// How many characters at the start of the text, which is not shorter, are those that are looked for.
std::size_t TextSearch::SameLength(std::string_view text) const {
  const auto different = std::mismatch(wanted_.begin(), wanted_.end(), text.begin(),
                                       [this](char wanted, char byte) { return Folded(byte) == wanted; });
  return static_cast<std::size_t>(different.first - wanted_.begin());
}

}  // namespace tavrel
