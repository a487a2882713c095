#include "core/ipod/anchor_cutter.h"

#include <algorithm>
#include <iterator>

#include "core/text/characters.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

constexpr std::string_view kAnchorOpening = "<a href=";
constexpr std::string_view kAnchorClosing = "</a>";
[[noreturn]] void ThrowUnclosed() {
  throw RunTimeError(
      "The target of a link has no closing quote.\nCorrect it in a text editor and import again.");
}

}  // namespace

std::optional<std::string> AnchorCutter::CutNext() {
  if (!PassThroughOpening()) return std::nullopt;
  opening_ = PlaceOfLastPassed();
  passed_.resize(passed_.size() - kAnchorOpening.size());
  std::string target = TakeTarget();
  CutClosing();
  return target;
}

bool AnchorCutter::PassThroughOpening() {
  while (PassThrough(kAnchorOpening.back())) {
    if (passed_.ends_with(kAnchorOpening)) return true;
  }
  return false;
}

std::string AnchorCutter::TakeTarget() {
  constexpr char kQuote = '"';
  if (ahead_at_ == ahead_.size()) return TakeTargetOfNote();
  Take();  // the opening quote
  std::string target;
  for (std::optional<char> c = Take(); c != kQuote; c = Take()) {
    if (!c) ThrowUnclosed();
    target += *c;
  }
  Take();  // the bracket behind the closing quote
  return target;
}

/// The same where nothing has been read ahead, as in nearly all notes.
std::string AnchorCutter::TakeTargetOfNote() {
  const std::size_t start = std::min(at_ + 1, note_.size());
  const std::size_t quote = note_.find('"', start);
  if (quote == kNotFound) ThrowUnclosed();
  at_ = std::min(quote + 2, note_.size());
  return std::string(note_.substr(start, quote - start));
}

void AnchorCutter::CutClosing() {
  while (true) {
    const std::size_t bracket = note_.find(kAnchorClosing.back(), at_);
    if (bracket == kNotFound)
      throw RunTimeError("A link has no </a> at its end.\nCorrect it in a text editor and import again.");
    const std::string_view part = note_.substr(at_, bracket + 1 - at_);
    if (ahead_.empty() && part.ends_with(kAnchorClosing) && part.find(kAnchorOpening.back()) == kNotFound) {
      // No anchor begins within this one: its text need not be looked at again.
      passed_ += part.substr(0, part.size() - kAnchorClosing.size());
      at_ = bracket + 1;
      return;
    }
    ReadAhead(part);
    if (std::string_view(ahead_).substr(ahead_at_).ends_with(kAnchorClosing)) break;
  }
  ahead_.resize(ahead_.size() - kAnchorClosing.size());
}

/// Goes on to the end of a part of the note, which is passed later.
void AnchorCutter::ReadAhead(std::string_view part) {
  while (!origins_.empty() && origins_.back().first >= ahead_.size()) origins_.pop_back();
  origins_.emplace_back(ahead_.size(), at_);
  ahead_ += part;
  at_ += part.size();
}

/// The place in the note of the byte that was passed last.
std::size_t AnchorCutter::PlaceOfLastPassed() const {
  if (ahead_.empty()) return at_ - 1;
  const std::size_t last = ahead_at_ - 1;
  const auto behind = std::upper_bound(origins_.begin(), origins_.end(), last,
                                       [](std::size_t at, const auto& part) { return at < part.first; });
  const auto& [in_ahead, in_note] = *std::prev(behind);
  return in_note + last - in_ahead;
}

/// Passes everything through the next `last`; all of it, and false, if there is none.
bool AnchorCutter::PassThrough(char last) {
  const std::size_t in_ahead = ahead_.find(last, ahead_at_);
  if (in_ahead != kNotFound) {
    passed_.append(ahead_, ahead_at_, in_ahead + 1 - ahead_at_);
    ahead_at_ = in_ahead + 1;
    return true;
  }
  passed_.append(ahead_, ahead_at_);
  ahead_.clear();
  origins_.clear();
  ahead_at_ = 0;

  const std::size_t in_note = note_.find(last, at_);
  const std::size_t end = in_note == kNotFound ? note_.size() : in_note + 1;
  passed_.append(note_, at_, end - at_);
  at_ = end;
  return in_note != kNotFound;
}

std::optional<char> AnchorCutter::Take() {
  if (ahead_at_ < ahead_.size()) return ahead_[ahead_at_++];
  if (at_ < note_.size()) return note_[at_++];
  return std::nullopt;
}

}  // namespace tavrel
