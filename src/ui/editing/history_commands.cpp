#include "ui/editing/history_commands.h"

#include <QAction>
#include <QMenu>
#include <QStatusBar>

#include "ui/controls/program_control.h"
#include "ui/controls/text_field.h"
#include "ui/main/editor.h"

namespace tavrel {
namespace {

constexpr int kToldFor = 5000;  // milliseconds

/// A "&" in a caption would underline the letter behind it.
QString Caption(const QString& command, const std::optional<QString>& step) {
  return step ? command + " " + QString(*step).replace('&', "&&") : command;
}

std::optional<QString> ToName(const std::optional<std::string>& name) {
  return name ? std::optional(QString::fromStdString(*name)) : std::nullopt;
}

}  // namespace

HistoryCommands::HistoryCommands(App& app, Editor& editor, QStatusBar& status_bar)
    : app_(app), editor_(editor), status_bar_(status_bar) {}

void HistoryCommands::NameIn(const QMenu& menu, QAction& undo, QAction& redo) {
  On(app_.Control, &menu, &QMenu::aboutToShow, this, [this, &undo, &redo] {
    const std::optional<QString> undone = UndoName();
    const std::optional<QString> redone = RedoName();
    undo.setText(Caption(tr("Undo"), undone));
    redo.setText(Caption(tr("Redo"), redone));
    undo.setEnabled(undone.has_value());
    redo.setEnabled(redone.has_value());
  });
  // The keys work whatever the menu has said.
  On(app_.Control, &menu, &QMenu::aboutToHide, this, [&undo, &redo] {
    undo.setEnabled(true);
    redo.setEnabled(true);
  });
}

void HistoryCommands::EditUndo_Click() {
  if (QWidget* control = FieldToUndo()) {
    control->setFocus();
    FieldOf(control)->Undo();
    return;
  }
  const Step* step = UndoName() ? app_.Steps.Undo(app_.State, editor_.TypedWithRedo()) : nullptr;
  if (step != nullptr) Show(step->Before, tr("Undone: %1").arg(QString::fromStdString(step->Name)));
}

void HistoryCommands::EditRedo_Click() {
  if (QWidget* control = editor_.FieldWithRedo()) {
    control->setFocus();
    FieldOf(control)->Redo();
  } else if (const Step* step = RedoName() ? app_.Steps.Redo(app_.State) : nullptr) {
    Show(step->After, tr("Redone: %1").arg(QString::fromStdString(step->Name)));
  }
}

void HistoryCommands::Show(const Place& place, const QString& told) {
  editor_.ShowAt(place);
  status_bar_.showMessage(app_.Steps.IsSaved() ? tr("%1. The project is as you saved it.").arg(told) : told,
                          kToldFor);
}

QWidget* HistoryCommands::FieldToUndo() const {
  QWidget* control = editor_.ControlWithFocus();
  const TextField* field = FieldOf(control);
  if (field != nullptr && field->HasUndo()) return control;
  // A step that shows a page would throw such words away.
  return editor_.FieldWithUnheldWords();
}

std::optional<QString> HistoryCommands::UndoName() const {
  if (FieldToUndo() != nullptr) return tr("typing");
  return ToName(app_.Steps.UndoName(app_.State, editor_.Now()));
}

std::optional<QString> HistoryCommands::RedoName() const {
  if (editor_.FieldWithRedo() != nullptr) return tr("typing");
  // A step that shows a page would throw such words away.
  if (editor_.FieldWithUnheldWords() != nullptr) return std::nullopt;
  return ToName(app_.Steps.RedoName(app_.State, editor_.Now()));
}

}  // namespace tavrel
