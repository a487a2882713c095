#include "core/history/random_editor.h"

#include <gtest/gtest.h>
#include <utility>

#include "core/editing/random_pages.h"

namespace tavrel::test {

RandomEditor::RandomEditor(std::mt19937& random, const std::vector<std::string>& records)
    : random_(random), literal_(DocumentCopy(Filled(editor_, random, records))) {}

/// The pages are among the first and the last, and so are most of their links.
Global& RandomEditor::Filled(RecordedEditor& editor, std::mt19937& random,
                             const std::vector<std::string>& records) {
  Global& global = editor.State;
  for (const int first : {0, 992}) {
    for (int page = first; page <= first + 8; ++page) {
      if (random() % 3 != 0) global.Page(page) = AnyOf(random, records);
    }
  }
  for (int left = Any(random, 0, 3); left > 0; --left)
    global.MusicLink(Any(random, 0, 100)) = "<song>s</song>";
  editor.LoadPage(Any(random, 0, 1) * 991 + Any(random, 1, 8));
  editor.Steps.Start();
  return global;
}

void RandomEditor::DoAnything() {
  switch (random_() % 14) {
    case 0:
    case 1:
      return TypeAnything();
    case 2:
      return StoreAndGoBack();
    case 3:
      return Undo();
    case 4:
      return random_() % 2 == 0 ? Undo() : Redo();
    case 5:
    case 6:
    case 7:
    case 8:
      return RunAnyPageCommand();
    case 9:
    case 10:
    case 11:
      return RunAnyBlockCommand();
    default:
      return RunAnyOtherCommand();
  }
}

void RandomEditor::GoThroughAllSteps() {
  // What is typed becomes a step, and so does what the field could make again.
  if (editor_.IsTyped() || editor_.FieldRedo) Undo();
  Redo(literal_.Steps() - literal_.Done());
  const std::size_t steps = literal_.Steps();
  for (std::size_t count = 1; count <= steps && !testing::Test::HasFailure(); ++count) {
    Undo(count);
    EXPECT_EQ(HasUndo(), count < steps) << done_;
    Redo(count);
    EXPECT_FALSE(HasRedo()) << done_;
  }
}

void RandomEditor::Undo(std::size_t count) {
  for (; count > 0; --count) Undo();
}

void RandomEditor::Redo(std::size_t count) {
  for (; count > 0; --count) Redo();
}

bool RandomEditor::HasUndo() const {
  return editor_.Steps.UndoName(editor_.State, editor_.Now()).has_value();
}

bool RandomEditor::HasRedo() const {
  return editor_.Steps.RedoName(editor_.State, editor_.Now()).has_value();
}

void RandomEditor::Undo() {
  done_ += "undo; ";
  const auto expected = literal_.Undo(Now(), editor_.TypedWithRedo());
  const auto name = editor_.Undo();
  EXPECT_EQ(name.value_or("none"), expected ? expected->Name : "none") << done_;
  if (expected) {
    EXPECT_EQ(editor_.State.CurrentPage, expected->Page) << done_;
  }
  ExpectSame("undo");
}

void RandomEditor::Redo() {
  done_ += "redo; ";
  const auto expected = literal_.Redo(Now());
  const auto name = editor_.Redo();
  EXPECT_EQ(name.value_or("none"), expected ? expected->Name : "none") << done_;
  if (expected) {
    EXPECT_EQ(editor_.State.CurrentPage, expected->Page) << done_;
  }
  ExpectSame("redo");
}

void RandomEditor::ExpectSame(const char* after) {
  EXPECT_EQ(editor_.Steps.IsSaved(), literal_.IsSaved()) << after << "\n" << done_;
  if (literal_.Document().IsIn(editor_.State)) return;
  ADD_FAILURE() << literal_.Document().Others(editor_.State) << after << "\n" << done_;
}

Typing RandomEditor::Now() const {
  const Shown shown = editor_.Now();
  return {shown.At.Page, shown.Typed, shown.Showing, shown.Rewritten, shown.AtFirst, shown.RecordAtFirst};
}

std::string RandomEditor::NameOf(const std::string& command) const {
  return command + " page " + std::to_string(editor_.State.CurrentPage);
}

std::string RandomEditor::AnyWord() {
  return AnyOf<std::string>(random_, {"cat", "dog ", "<text>cat</text>", "<linkto>998</linkto>", " "});
}

/// Typing goes on, begins anew or is taken back by the field itself.
void RandomEditor::TypeAnything() {
  switch (random_() % 4) {
    case 0:
      return Type(AnyWord());
    case 1:
      return Type(AnyOf(random_, EarlierTexts()));
    default:
      return Type(editor_.Field + AnyWord());
  }
}

/// The page is stored and stays shown, perhaps several times; then the field's own undo goes back.
void RandomEditor::StoreAndGoBack() {
  for (int left = Any(random_, 1, 3); left > 0; --left) {
    Type(editor_.Field + AnyWord());
    if (random_() % 4 != 0) RunSavePage();
  }
  const std::string typed = editor_.Field;
  Type(AnyOf(random_, EarlierTexts()));
  if (random_() % 2 == 0) editor_.FieldRedo = typed;
  if (random_() % 2 == 0) Undo();
}

void RandomEditor::Type(std::string text) {
  EarlierTexts().push_back(text);
  editor_.FieldRedo.reset();
  editor_.Field = std::move(text);
  done_ += "type [" + editor_.Field + "]; ";
}

/// What has been in the field since the page was brought there.
std::vector<std::string>& RandomEditor::EarlierTexts() {
  if (showing_ != Now().Showing) earlier_texts_ = {editor_.Field};
  showing_ = Now().Showing;
  return earlier_texts_;
}

}  // namespace tavrel::test
