#include "core/history/step_recorder.h"

namespace tavrel {
namespace {

std::string EditName(int page) {
  return "Edit page " + std::to_string(page);
}

/// What a step is called that the command has not named.
std::string NameAfterChange(const Step& step) {
  if (step.Pages.empty()) return "Music links";
  return step.Pages.size() == 1 ? EditName(step.Pages.front().Number) : "Edit pages";
}

/// Whether something typed on the page is not stored.
bool IsTyped(const Global& global, const Shown& shown) {
  return !(global.Page(shown.At.Page) == shown.Typed);
}

/// Whether a step has stored the page that is still in the fields.
bool IsShown(const Step* step, const Shown& shown) {
  return step != nullptr && step->Showing == shown.Showing;
}

}  // namespace

void StepRecorder::Start() {
  history_.Start();
  document_ = {};
  before_.reset();
}

void StepRecorder::Begin(const Global& global, Shown shown, const std::optional<std::string>& with_redo) {
  Follow(global, document_);
  before_ = std::move(shown);
  name_.clear();
  is_saved_ = false;
  with_redo_ = with_redo;
}

void StepRecorder::End(const Global& global, const Shown& shown) {
  if (!before_) return;
  const Shown before = std::move(*before_);
  before_.reset();
  const Step* last = history_.NextUndo();
  Step changed = Difference(document_, global);
  if (IsOnlyRewritten(before, changed, shown.Showing)) {
    history_.Amend(changed.Pages.front());
  } else {
    if (AddTyped(before, global, shown.Showing)) changed = Difference(document_, global);
    AddCommand(std::move(changed), before.At, shown.At);
  }
  const bool has_looked_only = history_.NextUndo() == last && shown.Showing != before.Showing;
  if (has_looked_only && with_redo_) KeepTakenBack(global, before.At, *with_redo_);
  if (is_saved_) history_.MarkSaved();
}

/// The fields have forgotten what they had taken back.
void StepRecorder::KeepTakenBack(const Global& global, const Place& place, const std::string& with_redo) {
  if (history_.NextRedo() == nullptr && !(global.Page(place.Page) == with_redo))
    AddTakenBack(global, place, with_redo);
}

/// Whether all that the command did was to store a page as the editor writes it, without anything typed.
bool StepRecorder::IsOnlyRewritten(const Shown& editor, const Step& changed, std::size_t showing) const {
  if (changed.Pages.size() != 1 || !changed.MusicLinks.empty()) return false;
  const Change& change = changed.Pages.front();
  // To clear a page of which nothing would be stored is a command all the same.
  const bool is_cleared = change.After.empty() && !name_.empty() && showing != editor.Showing;
  return change.Number == editor.At.Page && editor.Rewritten && change.After == *editor.Rewritten &&
         !is_cleared;
}

/// Makes a step of its own of what was typed on the page, whether the command has stored it or dropped it.
/// False if there was nothing.
bool StepRecorder::AddTyped(const Shown& editor, const Global& global, std::size_t showing) {
  const Record& now = global.Page(editor.At.Page);
  const bool is_rewritten = editor.Rewritten && now == *editor.Rewritten;
  if (showing != editor.Showing) {
    // What was stored is shared with the document, not kept twice.
    return AddStored(editor, now == editor.Typed ? now : Record(editor.Typed), 0);
  }
  return !is_rewritten && AddStored(editor, now, showing);
}

bool StepRecorder::AddStored(const Shown& editor, const Record& stored, std::size_t showing) {
  const int number = editor.At.Page;
  Record& page = document_.Pages.at(static_cast<std::size_t>(number));
  if (page == stored) return false;
  history_.Add({.Name = EditName(number),
                .Pages = {{number, page, stored}},
                .MusicLinks = {},
                .Before = editor.At,
                .After = editor.At,
                .Showing = showing});
  page = stored;
  return true;
}

void StepRecorder::AddCommand(Step step, const Place& before, const Place& after) {
  if (step.IsEmpty()) return;
  step.Name = name_.empty() ? NameAfterChange(step) : std::move(name_);
  step.Before = before;
  step.After = after;
  history_.Add(std::move(step));
}

const Step* StepRecorder::Undo(Global& global, const std::optional<std::string>& with_redo) {
  if (!before_ || !UndoName(global, *before_)) return nullptr;
  const Shown before = std::move(*before_);
  before_.reset();
  const Step* undone = nullptr;
  bool has_gone_back = false;  // what the fields could make again is all stored: nothing is typed
  if (IsTyped(global, before)) {
    const std::size_t steps = StepsSinceTyped(before);
    const bool is_stored = with_redo && global.Page(before.At.Page) == *with_redo;
    has_gone_back = is_stored && (steps > 0 || IsShown(history_.NextUndo(), before));
    for (std::size_t step = 0; step < steps; ++step) undone = &history_.Undo(global);
    if (steps == 0 && !has_gone_back) AddStored(before, global.Page(before.At.Page) = before.Typed, 0);
  }
  if (!has_gone_back && with_redo && *with_redo != before.Typed)
    undone = &AddTakenBack(global, before.At, *with_redo);
  return history_.NextUndo() == nullptr ? undone : &history_.Undo(global);
}

/// Keeps typing that a field has taken back, as a step that is taken back.
const Step& StepRecorder::AddTakenBack(const Global& global, const Place& place,
                                       const std::string& with_redo) {
  return history_.AddUndone({.Name = EditName(place.Page),
                             .Pages = {{place.Page, global.Page(place.Page), with_redo}},
                             .MusicLinks = {},
                             .Before = place,
                             .After = place});
}

const Step* StepRecorder::Redo(Global& global) {
  if (!before_ || !RedoName(global, *before_)) return nullptr;
  before_.reset();
  return &history_.Redo(global);
}

std::optional<std::string> StepRecorder::UndoName(const Global& global, const Shown& shown) const {
  std::size_t followed = 0;
  if (IsTyped(global, shown)) {
    followed = StepsSinceTyped(shown);
    if (followed == 0) return EditName(shown.At.Page);
  }
  const Step* next = history_.StepBack(followed);
  const Step* step = next == nullptr && followed > 0 ? history_.StepBack(followed - 1) : next;
  return step == nullptr ? std::nullopt : std::optional(step->Name);
}

std::optional<std::string> StepRecorder::RedoName(const Global& global, const Shown& shown) const {
  const Step* step = history_.NextRedo();
  return step == nullptr || IsTyped(global, shown) ? std::nullopt : std::optional(step->Name);
}

/// If the fields' own undo has gone back behind what was stored meanwhile, so many steps have to follow it.
std::size_t StepRecorder::StepsSinceTyped(const Shown& shown) const {
  for (std::size_t count = 0;; ++count) {
    const Step* step = history_.StepBack(count);
    if (!IsShown(step, shown)) return 0;
    const Record& stored = step->Pages.front().Before;
    if (stored == shown.Typed) return count + 1;
    // Brought into the fields, the page was written in another order.
    if (stored == shown.RecordAtFirst && shown.AtFirst == shown.Typed) return count + 1;
  }
}

}  // namespace tavrel
