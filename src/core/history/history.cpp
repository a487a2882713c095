#include "core/history/history.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <numeric>
#include <string>
#include <utility>

namespace tavrel {
namespace {

template <typename RecordArray>
std::vector<Change> Changes(const RecordArray& before, const RecordArray& after) {
  std::vector<Change> changes;
  const auto shares = [](const Record& one, const Record& other) { return one.Shares(other); };
  const auto sharing =
      std::inner_product(before.begin(), before.end(), after.begin(), std::size_t{0}, std::plus<>(), shares);
  changes.reserve(before.size() - sharing);
  for (std::size_t number = 0; number < before.size(); ++number) {
    if (before[number] == after[number]) continue;
    changes.push_back({static_cast<int>(number), before[number], after[number]});
  }
  return changes;
}

using Side = Record Change::*;

/// Knows records by where their bytes are. A step may have a thousand, and is counted after each command.
class Places {
 public:
  explicit Places(std::size_t most) : slots_(std::bit_ceil(2 * most + 1)) {}

  void Add(const std::string* bytes) { slots_[SlotOf(bytes)] = bytes; }
  bool Has(const std::string* bytes) const { return slots_[SlotOf(bytes)] == bytes; }

 private:
  std::size_t SlotOf(const std::string* bytes) const {
    constexpr std::size_t kApart = 16;  // bytes, at least
    std::size_t slot = std::hash<const std::string*>()(bytes) / kApart;
    while (true) {
      slot &= slots_.size() - 1;
      if (slots_[slot] == nullptr || slots_[slot] == bytes) return slot;
      ++slot;
    }
  }

  std::vector<const std::string*> slots_;
};

/// The bytes of the records of one side that the other does not have. Records that have only moved are the
/// document's own.
std::size_t BytesOfSide(const std::vector<Change>& changes, Side side, Side other) {
  Places others(changes.size());
  for (const Change& change : changes) others.Add(&(change.*other).Bytes());
  std::size_t bytes = 0;
  for (const Change& change : changes) {
    const std::string& record = (change.*side).Bytes();
    if (!others.Has(&record)) bytes += record.size();
  }
  return bytes;
}

/// While a step is done it keeps the records from before; while it is taken back, those from after.
std::size_t BytesOf(const std::vector<Change>& changes) {
  return changes.size() * sizeof(Change) + std::max(BytesOfSide(changes, &Change::Before, &Change::After),
                                                    BytesOfSide(changes, &Change::After, &Change::Before));
}

std::size_t BytesOf(const Step& step) {
  return sizeof step + BytesOf(step.Pages) + BytesOf(step.MusicLinks);
}

template <typename RecordArray>
void FollowAll(const RecordArray& now, RecordArray& records) {
  for (std::size_t number = 0; number < now.size(); ++number)
    if (!records[number].Shares(now[number])) records[number] = now[number];
}

std::vector<Change>::iterator Find(std::vector<Change>& changes, int number) {
  return std::find_if(changes.begin(), changes.end(),
                      [number](const Change& change) { return change.Number == number; });
}

/// Makes a change that was made before or after the others of a step one of them.
void PutBefore(const Change& earlier, std::vector<Change>& changes) {
  const auto found = Find(changes, earlier.Number);
  if (found == changes.end()) {
    changes.push_back(earlier);
  } else {
    found->Before = earlier.Before;
  }
}

void PutBehind(const Change& later, std::vector<Change>& changes) {
  const auto found = Find(changes, later.Number);
  if (found == changes.end()) {
    changes.push_back(later);
  } else {
    found->After = later.After;
  }
}

}  // namespace

void Follow(const Global& global, Records& records) {
  FollowAll(global.Pages, records.Pages);
  FollowAll(global.MusicLinks, records.MusicLinks);
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
  for (const Change& change : std::exchange(head_, {})) PutBefore(change, step.Pages);
  step.Bytes = BytesOf(step);
  bytes_ += step.Bytes;
  steps_.push_back(std::move(step));
  ++done_;
  while (bytes_ > kMostBytes && steps_.size() > 1) ForgetOldest();
}

const Step& History::AddUndone(Step step) {
  ForgetUndone();
  // The first step leads back to the document as it was opened.
  if (done_ == 0)
    for (const Change& change : head_) PutBefore(change, step.Pages);
  step.Bytes = BytesOf(step);
  bytes_ += step.Bytes;
  steps_.push_back(std::move(step));
  while (bytes_ > kMostBytes && done_ > 0) ForgetOldest();
  return steps_.back();
}

void History::Amend(const Change& change) {
  if (done_ == 0) PutBehind(change, head_);
  if (steps_.empty()) return;
  Step& step = done_ > 0 ? steps_[done_ - 1] : steps_.front();
  const bool is_changed_again = done_ == 0 && Find(step.Pages, change.Number) != step.Pages.end();
  bytes_ -= step.Bytes;
  if (done_ > 0) {
    PutBehind(change, step.Pages);
  } else {
    PutBefore(change, step.Pages);
  }
  step.Bytes = BytesOf(step);
  bytes_ += step.Bytes;
  if (!is_changed_again) LetUndoneStepsBeginWith(change);
}

/// The first undone step that changes the page finds it as it is now.
void History::LetUndoneStepsBeginWith(const Change& change) {
  for (std::size_t undone = std::max<std::size_t>(done_, 1); undone < steps_.size(); ++undone) {
    std::vector<Change>& pages = steps_[undone].Pages;
    const auto found = Find(pages, change.Number);
    if (found == pages.end()) continue;
    found->Before = change.After;
    return;
  }
}

void History::ForgetUndone() {
  if (saved_ > static_cast<std::ptrdiff_t>(done_)) saved_ = -1;
  while (steps_.size() > done_) {
    bytes_ -= steps_.back().Bytes;
    steps_.pop_back();
  }
}

void History::ForgetOldest() {
  bytes_ -= steps_.front().Bytes;
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
  if (done_ == 0) head_.clear();  // the first step has taken it in
  const Step& step = steps_.at(done_++);
  for (const Change& change : step.Pages) global.Page(change.Number) = change.After;
  for (const Change& change : step.MusicLinks) global.MusicLink(change.Number) = change.After;
  return step;
}

}  // namespace tavrel
