#include "ui/main/page_editor.h"

#include <QApplication>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "core/editing/shown_part.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "ui_main_window.h"

namespace tavrel {

PageEditor::PageEditor(App& app, Ui::Main& ui) : app_(app), ui_(ui), last_field_(ui.Text1) {
  for (LineField* field : {ui_.Text3, ui_.Text4, ui_.Text5, ui_.Text6})
    field->SetCodePage(app_.CodePageInUse());
  ui_.Text1->SetCodePage(app_.CodePageInUse());
  ui_.Combo1->SetCodePage(app_.CodePageInUse());
  ui_.Combo2->SetCodePage(app_.CodePageInUse());
  FollowFocus();
}

void PageEditor::FollowFocus() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
    for (const QWidget* control : {old, now}) {
      if (QWidget* field = FieldAmong(control)) last_field_ = field;
    }
  });
}

void PageEditor::ShowFields(const PageFields& fields) {
  ui_.Text1->SetBytes(fields.Body);
  ui_.Text3->SetBytes(fields.Title);
  ui_.Text4->SetBytes(fields.Note);
  ui_.Text6->SetBytes(fields.MusicText);
  last_field_ = ui_.Text1;
}

void PageEditor::ShowMusicLink(const PageFields& fields) {
  ui_.Combo2->SetBytes(fields.MusicLink);
}

void PageEditor::ShowLink(const Link& link) {
  ui_.Text5->SetBytes(link.Text);
  ui_.Combo1->SetBytes(link.Target);
}

void PageEditor::FillTargets() {
  QStringList pages;
  for (int page = 1; page <= kLastPage; ++page) {
    if (!app_.State.Page(page).empty()) pages << QString::fromStdString(FormatPage(page));
  }
  ui_.Combo1->SetItems(pages);
  RefreshMusicTargets();
}

void PageEditor::RefreshMusicTargets() {
  QStringList targets;
  for (const QString& target : ui_.Combo1->Items()) {
    if (!IsMusicTarget(target.toStdString())) targets << target;
  }
  QStringList music_links;
  for (int link = 1; link <= kLastMusicLink; ++link) {
    if (!app_.State.MusicLink(link).empty()) music_links << QString::fromStdString(MusicLinkName(link));
  }
  ui_.Combo1->SetItems(targets + music_links);
  ui_.Combo2->SetItems(music_links);
}

Place PageEditor::CaretPlace(const QWidget* control_with_focus) const {
  QWidget* field_with_focus = FieldAmong(control_with_focus);
  QWidget* field_with_caret = field_with_focus == nullptr ? last_field_ : field_with_focus;
  const TextField& field = *FieldOf(field_with_caret);
  return {app_.State.CurrentPage, app_.State.CurrentLink, field_with_caret->objectName().toStdString(),
          field.Anchor(),         field.Caret(),          ui_.MSFlexGrid1->Row()};
}

void PageEditor::FocusOn(const Place& place) {
  FieldAt(place).setFocus();
}

void PageEditor::ShowCaret(const Place& place) {
  FieldOf(&FieldAt(place))->SetCaret(place.Anchor, place.Caret);
}

Place PageEditor::PlaceOf(const FieldPart& part) const {
  const int row = std::clamp(part.Link, 1, kLastLink);
  return {part.Page, row, ControlOf(part.Where).objectName().toStdString(), 0, 0, row};
}

FieldPart PageEditor::PartInField(const FieldPart& part, std::string_view content) const {
  return part.Where == Field::Page ? part
                                   : ShownPart(part, content, FieldOf(&ControlOf(part.Where))->Bytes());
}

void PageEditor::Select(const FieldPart& part) {
  QWidget& control = ControlOf(part.Where);
  if (part.Where == Field::Page) return;
  if (&control == ui_.Text1) {
    ui_.Text1->Select(part.Position, part.Length);
    return;
  }
  // A field that is shorter than it was selects up to its end; no length means all of it.
  const auto start = static_cast<int>(part.Position);
  const int end = part.Length == 0 ? std::numeric_limits<int>::max() : start + static_cast<int>(part.Length);
  FieldOf(&control)->SetCaret(start, end);
}

QWidget& PageEditor::ControlOf(Field field) const {
  switch (field) {
    case Field::Title:
      return *ui_.Text3;
    case Field::Note:
      return *ui_.Text4;
    case Field::LinkText:
      return *ui_.Text5;
    case Field::LinkTarget:
      return *ui_.Combo1;
    case Field::MusicText:
      return *ui_.Text6;
    case Field::MusicLink:
      return *ui_.Combo2;
    case Field::Project:
    case Field::Page:
    case Field::Text:
      break;
  }
  return *ui_.Text1;
}

void PageEditor::WithRedo(const std::function<void()>& look) {
  struct Changed {
    TextField* Field;
    int Anchor;
    int Caret;
    int Redos = 0;
  };
  std::vector<Changed> fields;
  for (QWidget* control : Fields()) {
    TextField* field = FieldOf(control);
    Changed& changed = fields.emplace_back(Changed{field, field->Anchor(), field->Caret()});
    for (; field->HasRedo(); ++changed.Redos) field->Redo();
  }
  look();
  for (const Changed& changed : fields) {
    if (changed.Redos == 0) continue;
    for (int redo = 0; redo < changed.Redos; ++redo) changed.Field->Undo();
    changed.Field->SetCaret(changed.Anchor, changed.Caret);
  }
}

QWidget* PageEditor::FieldWithUnheldWords() const {
  const Link link = TypedLink();
  if (!link.Text.empty() && link.Target.empty() && ui_.Text5->HasUndo()) return ui_.Text5;
  const bool lacks_text = TrimBlanks(ui_.Text6->Bytes()).empty();
  const bool has_music = !TrimBlanks(ui_.Combo2->Bytes()).empty();
  return has_music && lacks_text && ui_.Combo2->Field().HasUndo() ? ui_.Combo2 : nullptr;
}

QWidget* PageEditor::FieldWithRedo(QWidget* first) const {
  const auto has_redo = [](QWidget* control) {
    const TextField* field = FieldOf(control);
    return field != nullptr && field->HasRedo();
  };
  if (has_redo(first)) return first;
  const auto fields = Fields();
  const auto found = std::find_if(fields.begin(), fields.end(), has_redo);
  return found == fields.end() ? nullptr : *found;
}

QWidget& PageEditor::FieldAt(const Place& place) const {
  for (QWidget* control : Fields()) {
    if (control->objectName().toStdString() == place.Field) return *control;
  }
  return *ui_.Text1;
}

std::array<QWidget*, 7> PageEditor::Fields() const {
  return {ui_.Text1, ui_.Text3, ui_.Text4, ui_.Text5, ui_.Text6, ui_.Combo1, ui_.Combo2};
}

QWidget* PageEditor::FieldAmong(const QWidget* control) const {
  const auto fields = Fields();
  const auto found = std::find(fields.begin(), fields.end(), control);
  return found == fields.end() ? nullptr : *found;
}

PageFields PageEditor::TypedFields() const {
  PageFields fields;
  fields.Title = ui_.Text3->Bytes();
  fields.Note = ui_.Text4->Bytes();
  fields.Body = ui_.Text1->Bytes();
  fields.MusicText = ui_.Text6->Bytes();
  fields.MusicLink = ui_.Combo2->Bytes();
  return fields;
}

Link PageEditor::TypedLink() const {
  return {std::string(TrimBlanks(ui_.Text5->Bytes())), std::string(TrimBlanks(ui_.Combo1->Bytes()))};
}

}  // namespace tavrel
