#include "core/editing/replacement.h"

#include <algorithm>

namespace tavrel {
namespace {

/// Matches at later characters, counted from 1, are left alone. A replacement that holds the searched text
/// would otherwise be searched for ever.
constexpr std::size_t kLastPosition = 32767;

/// Nor may replacements within replacements fill the memory.
constexpr std::size_t kMostGrowth = 1'000'000;

}  // namespace

std::size_t PositionIn(std::string_view text, std::size_t from, const Searcher& searcher) {
  const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), searcher);
  return static_cast<std::size_t>(found - text.begin());
}

Replacement::Replacement(std::string_view text, std::string_view folded, std::string_view wanted,
                         std::string_view replacement, const Searcher& searcher)
    : text_(text), folded_(folded), wanted_(wanted), replacement_(replacement), searcher_(searcher) {}

std::string Replacement::Run() {
  while (FindNext() && IsWithinLimits()) ReplaceMatch();
  Pass(ahead_.size() + text_.size() - at_);
  return std::move(done_);
}

bool Replacement::FindNext() {
  while (!ahead_.empty()) {
    if (IsMatchHere()) return true;
    Pass(1);
  }
  const std::size_t position = PositionIn(folded_, at_, searcher_);
  Pass(position - at_);
  return at_ < text_.size();
}

bool Replacement::IsMatchHere() const {
  const std::size_t within = std::min(wanted_.size(), ahead_.size());
  return std::equal(wanted_.begin(), wanted_.begin() + static_cast<std::ptrdiff_t>(within),
                    ahead_.rbegin()) &&
         folded_.substr(at_).starts_with(wanted_.substr(within));
}

bool Replacement::IsWithinLimits() const {
  const std::size_t length = done_.size() + ahead_.size() + text_.size() - at_;
  return done_.size() < kLastPosition && length < text_.size() + kMostGrowth;
}

void Replacement::ReplaceMatch() {
  Drop(wanted_.size());
  const std::size_t passed = std::min(wanted_.size(), replacement_.size());
  done_ += replacement_.substr(0, passed);
  const std::string_view rest = replacement_.substr(passed);
  ahead_.append(rest.rbegin(), rest.rend());
  Pass(wanted_.size() - passed);
}

void Replacement::Drop(std::size_t count) {
  const std::size_t of_ahead = std::min(count, ahead_.size());
  ahead_.resize(ahead_.size() - of_ahead);
  at_ += count - of_ahead;
}

void Replacement::Pass(std::size_t count) {
  const std::size_t of_ahead = std::min(count, ahead_.size());
  done_.append(ahead_.rbegin(), ahead_.rbegin() + static_cast<std::ptrdiff_t>(of_ahead));
  ahead_.resize(ahead_.size() - of_ahead);
  const std::string_view of_text = text_.substr(at_, count - of_ahead);
  done_ += of_text;
  at_ += of_text.size();
}

}  // namespace tavrel
