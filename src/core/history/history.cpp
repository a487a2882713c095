#include "core/history/history.h"

#include <algorithm>
#include <utility>

namespace tavrel {
namespace {

template <typename RecordArray>
std::vector<Change> Changes(const RecordArray& before, const RecordArray& after) {
  std::vector<Change> changes;
  for (std::size_t number = 0; number < before.size(); ++number) {
    if (before[number] == after[number]) continue;
    changes.push_back({static_cast<int>(number), before[number], after[number]});
  }
  changes.shrink_to_fit();
  return changes;
}

/// A record is kept before or after the change; what the document holds itself is not counted.
std::size_t BytesOf(const std::vector<Change>& changes) {
  std::size_t bytes = 0;
  for (const Change& change : changes)
    bytes += sizeof change + std::max(change.Before.size(), change.After.size());
  return bytes;
}

std::size_t BytesOf(const Step& step) {
  return sizeof step + BytesOf(step.Pages) + BytesOf(step.MusicLinks);
}

}  // namespace

Records RecordsOf(const Global& global) {
  return {global.Pages, global.MusicLinks};
}

Step Difference(const Records& before, const Global& now) {
  Step step;
  step.Pages = Changes(before.Pages, now.Pages);
  step.MusicLinks = Changes(before.MusicLinks, now.MusicLinks);
  return step;
}

void History::Start() {
  *this = {};
}

void History::Add(Step step) {
  ForgetUndone();
  bytes_ += BytesOf(step);
  steps_.push_back(std::move(step));
  ++done_;
  while (bytes_ > kMostBytes && steps_.size() > 1) ForgetOldest();
}

void History::ForgetUndone() {
  if (saved_ > static_cast<std::ptrdiff_t>(done_)) saved_ = -1;
  while (steps_.size() > done_) {
    bytes_ -= BytesOf(steps_.back());
    steps_.pop_back();
  }
}

void History::ForgetOldest() {
  bytes_ -= BytesOf(steps_.front());
  steps_.pop_front();
  --done_;
  --saved_;
}

const Step* History::StepBack(std::size_t count) const {
  return count < done_ ? &steps_[done_ - 1 - count] : nullptr;
}

const Step& History::Undo(Global& global) {
  const Step& step = steps_.at(--done_);
  for (const Change& change : step.Pages) global.Page(change.Number) = change.Before;
  for (const Change& change : step.MusicLinks) global.MusicLink(change.Number) = change.Before;
  return step;
}

const Step& History::Redo(Global& global) {
  const Step& step = steps_.at(done_++);
  for (const Change& change : step.Pages) global.Page(change.Number) = change.After;
  for (const Change& change : step.MusicLinks) global.MusicLink(change.Number) = change.After;
  return step;
}

}  // namespace tavrel
