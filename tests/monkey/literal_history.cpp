#include "monkey/literal_history.h"

#include <utility>

namespace tavrel::test {
namespace {

template <typename Records>
std::size_t ChangedBytes(const Records& before, const Records& after) {
  constexpr std::size_t kAround = 1000;
  std::size_t bytes = 0;
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i] != after[i]) bytes += before[i].size() + after[i].size() + kAround;
  }
  return bytes;
}

}  // namespace

void LiteralHistory::Add(LiteralStep step) {
  if (saved_ > static_cast<int>(Done.size())) saved_ = -1;
  Undone.clear();
  bytes_ += ChangedBytes(step.Before->Pages, step.After->Pages) +
            ChangedBytes(step.Before->Music, step.After->Music);
  Done.push_back(std::move(step));
}

LiteralStep LiteralHistory::Undo() {
  Undone.push_back(Done.back());
  Done.pop_back();
  return Undone.back();
}

LiteralStep LiteralHistory::Redo() {
  Done.push_back(Undone.back());
  Undone.pop_back();
  return Done.back();
}

}  // namespace tavrel::test
