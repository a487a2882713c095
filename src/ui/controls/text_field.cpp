#include "ui/controls/text_field.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace tavrel {

TextField* FieldOf(QWidget* control) {
  const auto* list = qobject_cast<QComboBox*>(control);
  return dynamic_cast<TextField*>(list != nullptr ? list->lineEdit() : control);
}

bool IsUndoOrRedo(const QKeyEvent& key) {
  return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

}  // namespace tavrel
