#include "ui/shell/window_memory.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QMainWindow>
#include <QSettings>
#include <QSplitter>
#include <QWidget>

namespace tavrel {
namespace {

QString Key(const QWidget& window, const QString& part) {
  return window.objectName() + "/" + part;
}

/// Whether two states of a splitter, as the toolkit writes them, are alike but for where its parts end. The
/// toolkit would take cut-off and foreign bytes for a state.
bool OnlyPositionsDiffer(const QByteArray& state, const QByteArray& designed, int parts) {
  constexpr qsizetype kHead = 12;  // mark, version and number of parts
  const qsizetype tail = kHead + 4 * parts;
  return state.size() == designed.size() && state.left(kHead) == designed.left(kHead) &&
         state.mid(tail) == designed.mid(tail);
}

void RestoreSplitter(QSplitter& splitter, const QByteArray& state) {
  if (OnlyPositionsDiffer(state, splitter.saveState(), splitter.count())) splitter.restoreState(state);
}

/// Choices that are about nothing but how the window looks.
QList<QWidget*> RememberedChoices(const QWidget& window) {
  QList<QWidget*> choices;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (control->property("remembered").toBool()) choices << control;
  }
  return choices;
}

QVariant ChoiceOf(const QWidget& control) {
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) return list->currentIndex();
  const auto* box = qobject_cast<const QAbstractButton*>(&control);
  return box != nullptr && box->isChecked();
}

void Choose(QWidget& control, const QVariant& choice) {
  if (!choice.isValid()) return;
  if (auto* list = qobject_cast<QComboBox*>(&control)) {
    bool is_number = false;
    const int index = choice.toString().toInt(&is_number);
    if (is_number && index >= 0 && index < list->count()) list->setCurrentIndex(index);
  }
  if (auto* box = qobject_cast<QAbstractButton*>(&control)) {
    if (choice == "true" || choice == "false") box->setChecked(choice.toBool());
  }
}

}  // namespace

void RememberWindow(const QWidget& window, QSettings& memory) {
  memory.setValue(Key(window, "geometry"), window.saveGeometry());
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    memory.setValue(Key(window, splitter->objectName()), splitter->saveState());
  }
  if (const auto* main = qobject_cast<const QMainWindow*>(&window))
    memory.setValue(Key(window, "panels"), main->saveState());
  for (const QWidget* choice : RememberedChoices(window))
    memory.setValue(Key(window, choice->objectName()), ChoiceOf(*choice));
  // The program may end right after this.
  memory.sync();
}

void RestoreWindow(QWidget& window, const QSettings& memory) {
  window.restoreGeometry(memory.value(Key(window, "geometry")).toByteArray());
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    RestoreSplitter(*splitter, memory.value(Key(window, splitter->objectName())).toByteArray());
  }
  if (auto* main = qobject_cast<QMainWindow*>(&window))
    main->restoreState(memory.value(Key(window, "panels")).toByteArray());
  for (QWidget* choice : RememberedChoices(window))
    Choose(*choice, memory.value(Key(window, choice->objectName())));
}

}  // namespace tavrel
