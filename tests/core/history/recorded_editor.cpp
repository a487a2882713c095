#include "core/history/recorded_editor.h"

#include <gtest/gtest.h>

#include "core/editing/page_commands.h"

namespace tavrel::test {
namespace {

std::string Stored(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

void RecordedEditor::Open() {
  LoadPage(1);
  Steps.Start();
}

void RecordedEditor::SavePage() {
  State.Page(State.CurrentPage).Update(Stored(Field));
  shown_ = Stored(Field);
}

void RecordedEditor::LoadPage(int page) {
  State.CurrentPage = static_cast<std::int16_t>(page);
  Field = State.Page(page);
  FieldRedo.reset();
  first_ = shown_ = Stored(Field);
  loaded_ = State.Page(page);
  ++showing_;
}

void RecordedEditor::TypeAndStore(const std::string& text) {
  Field = text;
  Run({}, [this] { SavePage(); });
}

void RecordedEditor::MoveTo(int page) {
  Run({}, [this, page] {
    SavePage();
    LoadPage(page);
  });
}

void RecordedEditor::Clear() {
  Run("Clear page " + std::to_string(State.CurrentPage), [this] {
    ClearPage(State);
    LoadPage(State.CurrentPage);
  });
}

std::optional<std::string> RecordedEditor::Undo() {
  const std::optional<std::string> said = Steps.UndoName(State, Now());
  Steps.Begin(State, Now());
  const Step* step = Steps.Undo(State, TypedWithRedo());
  const std::optional<std::string> name = Show(step, step == nullptr ? Place() : step->Before);
  Steps.End(State, Now());
  EXPECT_EQ(name, said);
  return name;
}

std::optional<std::string> RecordedEditor::Redo() {
  const std::optional<std::string> said = Steps.RedoName(State, Now());
  Steps.Begin(State, Now());
  const Step* step = Steps.Redo(State);
  const std::optional<std::string> name = Show(step, step == nullptr ? Place() : step->After);
  Steps.End(State, Now());
  EXPECT_EQ(name, said);
  return name;
}

/// Nothing is shown anew if there was no step.
std::optional<std::string> RecordedEditor::Show(const Step* step, const Place& place) {
  if (step == nullptr) return std::nullopt;
  LoadPage(place.Page);
  Caret = place;
  return step->Name;
}

/// The record itself if storing would only write it anew.
std::string RecordedEditor::TypedAs(const std::string& text) const {
  const std::string typed = Stored(text);
  return typed == shown_ ? State.Page(State.CurrentPage).Bytes() : typed;
}

std::optional<std::string> RecordedEditor::RedoRecord() const {
  return FieldRedo ? std::optional(TypedWithRedo()) : std::nullopt;
}

std::string RecordedEditor::TypedWithRedo() const {
  return TypedAs(FieldRedo.value_or(Field));
}

Shown RecordedEditor::Now() const {
  Place place = Caret;
  place.Page = State.CurrentPage;
  const std::string& record = State.Page(State.CurrentPage);
  const bool is_rewritten = Stored(Field) == shown_ && shown_ != record;
  return {.At = place,
          .Typed = TypedAs(Field),
          .Showing = showing_,
          .Rewritten = is_rewritten ? std::optional(shown_) : std::nullopt,
          .AtFirst = first_,
          .RecordAtFirst = loaded_};
}

}  // namespace tavrel::test
