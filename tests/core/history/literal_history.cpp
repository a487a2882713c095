#include "core/history/literal_history.h"

#include <utility>

namespace tavrel::test {

void LiteralHistory::Add(Step step, DocumentCopy after) {
  if (saved_ && *saved_ > done_) saved_.reset();
  steps_.resize(done_, {});
  states_.resize(done_ + 1);
  steps_.push_back(std::move(step));
  states_.push_back(std::move(after));
  ++done_;
  now_ = states_.back();
}

void LiteralHistory::AddEdit(const Typing& before, const std::string& stored, std::size_t showing) {
  DocumentCopy after = now_;
  after.SetPage(before.Page, stored);
  if (after == now_) return;
  Add({"Edit page " + std::to_string(before.Page), before.Page, before.Page, showing}, std::move(after));
}

void LiteralHistory::AddCommand(const std::string& name, const Typing& before, const DocumentCopy& after,
                                const Typing& shown, const std::optional<std::string>& with_redo) {
  const std::size_t done = done_;
  const bool has_redo = steps_.size() > done_;
  AddSteps(name, before, after, shown);
  if (done_ == done && !has_redo && with_redo && before.Showing != shown.Showing)
    AddUndone(before, *with_redo);
}

void LiteralHistory::AddUndone(const Typing& before, const std::string& with_redo) {
  DocumentCopy redone = now_;
  redone.SetPage(before.Page, with_redo);
  if (redone == now_) return;
  steps_.push_back({"Edit page " + std::to_string(before.Page), before.Page, before.Page, 0});
  states_.push_back(std::move(redone));
}

void LiteralHistory::AddSteps(const std::string& name, const Typing& before, const DocumentCopy& after,
                              const Typing& shown) {
  DocumentCopy rewritten = now_;
  if (before.Rewritten) rewritten.SetPage(before.Page, *before.Rewritten);
  if (after == rewritten && !(after == now_)) return Rewrite(before);
  if (before.Showing != shown.Showing) {
    AddEdit(before, before.Typed, 0);
  } else if (before.Rewritten != after.Page(before.Page)) {
    AddEdit(before, after.Page(before.Page), shown.Showing);
  }
  if (!(after == now_)) Add({name, before.Page, shown.Page, 0}, after);
}

/// The document has the page so from now on, also after steps that are made again, until one changes it.
/// Before the first step it stays as it was.
void LiteralHistory::Rewrite(const Typing& before) {
  const std::string earlier = now_.Page(before.Page);
  now_.SetPage(before.Page, *before.Rewritten);
  for (std::size_t state = done_ > 0 ? done_ : 1; state < states_.size(); ++state) {
    if (states_[state].Page(before.Page) != earlier) break;
    states_[state].SetPage(before.Page, *before.Rewritten);
  }
}

/// So many storings of this showing, and nothing else, have happened since the page was as it is typed.
std::size_t LiteralHistory::StoringsSince(const Typing& shown) const {
  const auto is_storing = [&](std::size_t step) {
    return step > 0 && steps_[step - 1].Showing == shown.Showing;
  };
  for (std::size_t step = done_; is_storing(step); --step) {
    if (states_[step - 1].Page(shown.Page) == shown.Typed) return done_ - step + 1;
    if (states_[step - 1].Page(shown.Page) == shown.RecordAtFirst && shown.AtFirst == shown.Typed)
      return done_ - step + 1;
  }
  return 0;
}

void LiteralHistory::TakeBack() {
  --done_;
  now_ = states_[done_];
}

std::optional<LiteralHistory::Taken> LiteralHistory::Undo(const Typing& shown, const std::string& with_redo) {
  std::optional<Taken> taken;
  const auto take = [&] {
    TakeBack();
    taken = {steps_[done_].Name, steps_[done_].PageBefore};
  };
  if (!IsTyped(shown) && done_ == 0) return taken;
  const bool has_only_gone_back = with_redo == now_.Page(shown.Page);
  if (IsTyped(shown)) {
    const std::size_t storings = StoringsSince(shown);
    const bool is_of_showing = done_ > 0 && steps_[done_ - 1].Showing == shown.Showing;
    if (storings == 0 && has_only_gone_back && is_of_showing) {
      take();
      return taken;
    }
    if (storings == 0) AddEdit(shown, shown.Typed, 0);
    for (std::size_t storing = 0; storing < storings; ++storing) take();
    if (storings > 0 && has_only_gone_back) {
      if (done_ > 0) take();
      return taken;
    }
  }
  // What the field could make again becomes a step that is taken back.
  if (with_redo != shown.Typed) {
    AddEdit(shown, with_redo, 0);
    take();
  }
  if (done_ > 0) take();
  return taken;
}

std::optional<LiteralHistory::Taken> LiteralHistory::Redo(const Typing& shown) {
  if (done_ == steps_.size() || IsTyped(shown)) return std::nullopt;
  ++done_;
  now_ = states_[done_];
  return Taken{steps_[done_ - 1].Name, steps_[done_ - 1].PageAfter};
}

}  // namespace tavrel::test
