#include "core/editing/replacement.h"

#include <algorithm>

namespace tavrel {
namespace {

/// Matches at later characters, counted from 1, are left alone. A replacement that holds the searched text
/// would otherwise be searched for ever.
constexpr std::size_t kLastPosition = 32767;

}  // namespace

Replacement::Replacement(std::string_view text, const TextSearch& search, std::string_view replacement,
                         std::size_t room)
    : text_(text),
      search_(search),
      wanted_(search.Wanted()),
      replacement_(replacement),
      most_length_(text.size() + room),
      plain_(std::min(replacement.find(wanted_.front(), wanted_.size()), replacement.size())) {
  done_.reserve(text.size());
}

std::string Replacement::Run() {
  while (FindNext() && IsWithinLimits()) ReplaceMatch();
  Pass(ahead_.size() + text_.size() - at_);
  return std::move(done_);
}

bool Replacement::FindNext() {
  for (PassToCandidate(); !ahead_.empty(); PassToCandidate()) {
    if (IsMatchHere()) return true;
    Pass(1);
  }
  Pass(search_.Find(text_, at_) - at_);
  return at_ < text_.size();
}

/// A match in what is ahead can only begin where the wanted text's first character stands.
void Replacement::PassToCandidate() {
  const std::size_t candidate = ahead_.rfind(wanted_.front());
  Pass(ahead_.size() - (candidate == std::string::npos ? 0 : candidate + 1));
}

bool Replacement::IsMatchHere() const {
  const std::size_t within = std::min(wanted_.size(), ahead_.size());
  return std::equal(wanted_.begin(), wanted_.begin() + static_cast<std::ptrdiff_t>(within),
                    ahead_.rbegin()) &&
         search_.IsStartOf(text_.substr(at_), within);
}

bool Replacement::IsWithinLimits() const {
  const std::size_t length = done_.size() + ahead_.size() + text_.size() - at_;
  return done_.size() < kLastPosition && length < most_length_;
}

void Replacement::ReplaceMatch() {
  Drop(wanted_.size());
  done_ += replacement_.substr(0, plain_);
  const std::string_view rest = replacement_.substr(plain_);
  ahead_.append(rest.rbegin(), rest.rend());
  Pass(wanted_.size() - std::min(wanted_.size(), replacement_.size()));
}

void Replacement::Drop(std::size_t count) {
  const std::size_t of_ahead = std::min(count, ahead_.size());
  ahead_.resize(ahead_.size() - of_ahead);
  at_ += count - of_ahead;
}

void Replacement::Pass(std::size_t count) {
  for (; count > 0 && !ahead_.empty(); --count) {
    done_ += ahead_.back();
    ahead_.pop_back();
  }
  done_.append(text_, at_, count);
  at_ += std::min(count, text_.size() - at_);
}

}  // namespace tavrel
