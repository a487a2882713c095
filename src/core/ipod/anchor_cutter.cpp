#include "core/ipod/anchor_cutter.h"

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

constexpr std::string_view kOpening = "<a href=";
constexpr std::string_view kClosing = "</a>";
constexpr auto kNotFound = std::string_view::npos;

}  // namespace

std::optional<std::string> AnchorCutter::CutNext() {
  if (!PassThroughOpening()) return std::nullopt;
  passed_.resize(passed_.size() - kOpening.size());
  std::string target = TakeTarget();
  CutClosing();
  return target;
}

bool AnchorCutter::PassThroughOpening() {
  while (PassThrough(kOpening.back())) {
    if (passed_.ends_with(kOpening)) return true;
  }
  return false;
}

std::string AnchorCutter::TakeTarget() {
  constexpr char kQuote = '"';
  Take();  // the opening quote
  std::string target;
  for (std::optional<char> c = Take(); c != kQuote; c = Take()) {
    if (!c) throw RunTimeError("The target of a link has no closing quote.");
    target += *c;
  }
  Take();  // the bracket behind the closing quote
  return target;
}

void AnchorCutter::CutClosing() {
  while (true) {
    const std::size_t bracket = note_.find(kClosing.back(), at_);
    if (bracket == kNotFound) throw RunTimeError("A link has no </a> at its end.");
    ahead_.append(note_, at_, bracket + 1 - at_);
    at_ = bracket + 1;
    if (std::string_view(ahead_).substr(ahead_at_).ends_with(kClosing)) break;
  }
  ahead_.resize(ahead_.size() - kClosing.size());
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
