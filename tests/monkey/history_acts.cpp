#include <QAction>
#include <QStatusBar>
#include <QTest>

#include <algorithm>

#include "monkey/monkey.h"
#include "support/user.h"

// Undo and Redo, and what has to hold of them.

namespace tavrel::test {
namespace {

constexpr int kMostSteps = 100'000;

}  // namespace

/// Mostly one step, now and then several on end.
void Monkey::StepsThroughHistory(bool back) {
  for (int left = dice_.OneIn(3) ? dice_.Between(1, 5) : 0; left > 0; --left) {
    StepThroughHistory(back);
    EndAct();
    BeginAct();
    Activate(stage_->Window());
  }
  StepThroughHistory(back);
}

void Monkey::StepThroughHistory(bool back) {
  auto& item = Find<QAction>(stage_->Window(), back ? "EditUndo" : "EditRedo");
  const int kind = dice_.Below(10);
  if (kind == 0) {
    Note(item.objectName().toStdString() + " in its menu");
    by_ = By::Menu;
    ChooseByMouse(item);
  } else if (kind < 4 || stage_->Window().focusWidget() == nullptr) {
    Note(item.objectName().toStdString());
    by_ = By::Menu;
    item.trigger();
  } else {
    const bool shifted = !back && kind < 7;
    Note(item.objectName().toStdString() + " by its key in " + focus_);
    by_ = By::Keys;
    by_step_key_ = true;
    QTest::keyClick(stage_->Window().focusWidget(), back || shifted ? Qt::Key_Z : Qt::Key_Y,
                    shifted ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
  }
}

/// Takes everything back, and makes everything again.
void Monkey::Replay() {
  Note("go through the history");
  ++counts_.Replays;
  auto& undo = Find<QAction>(stage_->Window(), "EditUndo");
  auto& redo = Find<QAction>(stage_->Window(), "EditRedo");
  const auto step = [this](QAction& item) {
    BeginAct();
    by_ = By::Menu;
    item.trigger();
    EndAct();
  };
  int left = kMostSteps;
  const int undone = counts_.Undone;
  for (; left > 0 && (!screen_->FieldToUndo().empty() || model_->HasUndo()); --left) step(undo);
  step(undo);
  Expect(counts_.Undone == undone || model_->IsAsOpened(),
         "everything taken back, the document is as it was opened");
  for (; left > 0 && HasRedo(); --left) step(redo);
  step(redo);
  Expect(left > 0, "the history has an end");
  BeginAct();
}

bool Monkey::HasRedo() const {
  if (!screen_->FieldToRedo().empty()) return true;
  return model_->HasRedo() && screen_->FieldWithUnheldWords().empty();
}

void Monkey::FollowHistory(bool back) {
  const std::string& field = back ? field_to_undo_ : field_to_redo_;
  if (!field.empty()) {
    if (field != focus_) model_->LeaveField(focus_);
    ExpectSame(screen_->Focus(), field, "the field with the focus");
    model_->Observe(field, *screen_);
    return;
  }
  const std::optional<LiteralStep> step = back ? model_->Undo(with_redo_) : model_->Redo(has_unheld_words_);
  if (!step) return;
  Remember((back ? "undone: " : "made again: ") + step->Name);
  ++(back ? counts_.Undone : counts_.Redone);
  CheckTold(back, step->Name);
  CheckPlace(back ? step->From : step->To);
}

void Monkey::CheckTold(bool back, const std::string& step) const {
  if (step.empty()) return;
  const std::string told = (back ? "Undone: " : "Redone: ") + step +
                           (model_->Steps().IsSaved() ? ". The project is as you saved it." : "");
  ExpectSame(stage_->Window().statusBar()->currentMessage().toStdString(), told, "the status bar");
}

/// A field whose undo has gone back and which has not been written to since could bring all of it again.
void Monkey::FollowRedo() {
  for (const std::string& field : Screen::FieldNames()) {
    if (!screen_->HasRedo(field)) {
      with_redo_.erase(field);
    } else {
      with_redo_.emplace(field, texts_.at(field));
    }
  }
}

void Monkey::CheckPlace(const LiteralPlace& place) const {
  ExpectSame(screen_->Focus(), place.Field, "the field with the focus");
  // A menu that takes the focus from a link field for a moment has that field's own row selected.
  const bool was_left = player_.Popups > popups_ && (place.Field == "Text5" || place.Field == "Combo1");
  if (!was_left || screen_->Links.Row() != place.Link)
    ExpectSame(std::to_string(screen_->Links.Row()), std::to_string(place.Row), "the row in the links grid");
  ExpectSame(std::to_string(screen_->Pages.Row()), std::to_string(place.Page), "the row in the pages grid");
  const LiteralPlace shown = screen_->PlaceIn(place.Field);
  const int last = screen_->LastCaret(place.Field);
  const auto caret = [](int anchor, int position) {
    return std::to_string(anchor) + " to " + std::to_string(position);
  };
  ExpectSame(caret(shown.Anchor, shown.Caret),
             caret(std::min(place.Anchor, last), std::min(place.Caret, last)),
             "the selection in " + place.Field);
}

void Monkey::CheckCaptions() const {
  const auto check = [this](const QString& name, bool has_typing, const std::optional<std::string>& step) {
    const auto& item = Find<QAction>(stage_->Window(), name);
    const std::string command = name == "EditUndo" ? "Undo" : "Redo";
    const std::optional<std::string> caption = has_typing ? command + " typing" : step;
    if (!caption) return;
    ExpectSame(item.text().toStdString(), *caption, "the caption of " + name.toStdString());
    Expect(item.isEnabled() == (*caption != command),
           name.toStdString() + " can be chosen if it would do something");
  };
  check("EditUndo", !field_to_undo_.empty(), model_->UndoCaption());
  check("EditRedo", !field_to_redo_.empty(), has_unheld_words_ ? "Redo" : model_->RedoCaption());
}

}  // namespace tavrel::test
