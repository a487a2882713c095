#include "monkey/screen.h"

#include "monkey/texts.h"
#include "support/user.h"

// The fields are asked as the toolkit's own, not by what the program has made of them.

namespace tavrel::test {

Screen::Screen(Main& window)
    : Window(window),
      Title(Find<LineField>(window, "Text3")),
      Note(Find<LineField>(window, "Text4")),
      Body(Find<BodyField>(window, "Text1")),
      LinkText(Find<LineField>(window, "Text5")),
      LinkTarget(Find<TargetList>(window, "Combo1")),
      MusicText(Find<LineField>(window, "Text6")),
      MusicLink(Find<TargetList>(window, "Combo2")),
      Links(Find<Grid>(window, "MSFlexGrid1")),
      Pages(Find<Grid>(window, "MSFlexGrid2")),
      FindWhat(Find<LineField>(window, "FindWhat")) {}

PageFields Screen::Fields() const {
  PageFields fields;
  fields.Title = Title.Bytes();
  fields.Note = Note.Bytes();
  fields.Body = Body.Bytes();
  fields.MusicText = MusicText.Bytes();
  fields.MusicLink = MusicLink.Bytes();
  return fields;
}

Link Screen::Entry() const {
  return {LinkText.Bytes(), LinkTarget.Bytes()};
}

Link Screen::LinkAt(int row) const {
  return {Links.TextMatrix(row, 0), Links.TextMatrix(row, 1)};
}

bool Screen::IsCovered() const {
  return !Body.isVisibleTo(&Window);
}

std::string Screen::Focus() const {
  const QWidget* focus = Window.focusWidget();
  if (focus == nullptr) return "";
  if (focus == &LinkTarget.Field()) return "Combo1";
  if (focus == &MusicLink.Field()) return "Combo2";
  return focus->objectName().toStdString();
}

LineField* Screen::Line(const std::string& field) const {
  if (field == "Text3") return &Title;
  if (field == "Text4") return &Note;
  if (field == "Text5") return &LinkText;
  if (field == "Combo1") return &LinkTarget.Field();
  if (field == "Text6") return &MusicText;
  return field == "Combo2" ? &MusicLink.Field() : nullptr;
}

LiteralPlace Screen::PlaceIn(const std::string& field) const {
  const QLineEdit* line = Line(field);
  if (line == nullptr) {
    const QTextCursor cursor = Body.textCursor();
    return {.Row = Links.Row(), .Anchor = cursor.anchor(), .Caret = cursor.position()};
  }
  LiteralPlace place{
      .Row = Links.Row(), .Field = field, .Anchor = line->cursorPosition(), .Caret = line->cursorPosition()};
  // The toolkit may leave a selection from -1 on.
  if (line->hasSelectedText() && line->selectionStart() >= 0) {
    const bool backwards = line->selectionStart() == place.Caret;
    place.Anchor = backwards ? line->selectionEnd() : line->selectionStart();
  }
  return place;
}

QString Screen::SelectedIn(const std::string& field) const {
  const QLineEdit* line = Line(field);
  return line == nullptr ? Body.SelectedText() : line->selectedText();
}

int Screen::LastCaret(const std::string& field) const {
  const QLineEdit* line = Line(field);
  return line == nullptr ? Body.document()->characterCount() - 1 : static_cast<int>(line->text().size());
}

bool Screen::HasUndo(const std::string& field) const {
  const QLineEdit* line = field == "FindWhat" ? &FindWhat : Line(field);
  if (line != nullptr) return line->isUndoAvailable();
  return field == "Text1" && Body.document()->isUndoAvailable();
}

bool Screen::HasRedo(const std::string& field) const {
  const QLineEdit* line = field == "FindWhat" ? &FindWhat : Line(field);
  if (line != nullptr) return line->isRedoAvailable();
  return field == "Text1" && Body.document()->isRedoAvailable();
}

std::string Screen::FieldToUndo() const {
  return HasUndo(Focus()) ? Focus() : FieldWithUnheldWords();
}

std::string Screen::FieldWithUnheldWords() const {
  const auto is_blank = [](const std::string& bytes) { return Trimmed(bytes).empty(); };
  if (!is_blank(LinkText.Bytes()) && is_blank(LinkTarget.Bytes()) && HasUndo("Text5")) return "Text5";
  return !is_blank(MusicLink.Bytes()) && is_blank(MusicText.Bytes()) && HasUndo("Combo2") ? "Combo2" : "";
}

std::string Screen::FieldToRedo() const {
  if (HasRedo(Focus())) return Focus();
  for (const std::string& field : FieldNames()) {
    if (HasRedo(field)) return field;
  }
  return "";
}

const std::vector<std::string>& Screen::FieldNames() {
  static const std::vector<std::string> names = {"Text1", "Text3",  "Text4", "Text5",
                                                 "Text6", "Combo1", "Combo2"};
  return names;
}

}  // namespace tavrel::test
