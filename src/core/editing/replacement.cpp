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
  while (PassNextMatch() && IsWithinLimits()) ReplaceMatch();
  Pass(ahead_.size() + text_.size() - at_);
  return std::move(done_);
}

/// Passes all up to the end of the next match; false if there is none. Every character is looked at once, so
/// that a match that is nearly there again and again takes no longer.
bool Replacement::PassNextMatch() {
  for (std::size_t matched = 0; matched < wanted_.size();) {
    if (matched == 0) {
      PassToCandidate();
      if (ahead_.empty()) return PassNextMatchInText();
    }
    if (ahead_.empty() && at_ == text_.size()) return false;
    matched = search_.Matched(matched, ahead_.empty() ? search_.Folded(text_[at_]) : ahead_.back());
    Pass(1);
  }
  return true;
}

/// The same where no replacement is ahead, as it mostly is.
bool Replacement::PassNextMatchInText() {
  Pass(search_.Find(text_, at_) - at_);
  if (at_ == text_.size()) return false;
  Pass(wanted_.size());
  return true;
}

/// A match in what is ahead can only begin where the wanted text's first character stands.
void Replacement::PassToCandidate() {
  const std::size_t candidate = ahead_.rfind(wanted_.front());
  Pass(ahead_.size() - (candidate == std::string::npos ? 0 : candidate + 1));
}

/// Whether the match that was passed is to be replaced.
bool Replacement::IsWithinLimits() const {
  const std::size_t length = done_.size() + ahead_.size() + text_.size() - at_;
  return done_.size() - wanted_.size() < kLastPosition && length < most_length_;
}

void Replacement::ReplaceMatch() {
  done_.resize(done_.size() - wanted_.size());
  done_ += replacement_.substr(0, plain_);
  const std::string_view rest = replacement_.substr(plain_);
  ahead_.append(rest.rbegin(), rest.rend());
  Pass(wanted_.size() - std::min(wanted_.size(), replacement_.size()));
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
