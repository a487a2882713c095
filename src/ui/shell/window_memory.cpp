#include "ui/shell/window_memory.h"

#include <QSettings>
#include <QSplitter>
#include <QWidget>

namespace tavrel {
namespace {

QString Key(const QWidget& window, const QString& part) {
  return window.objectName() + "/" + part;
}

}  // namespace

void RememberWindow(const QWidget& window, QSettings& memory) {
  memory.setValue(Key(window, "geometry"), window.saveGeometry());
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    memory.setValue(Key(window, splitter->objectName()), splitter->saveState());
  }
}

void RestoreWindow(QWidget& window, const QSettings& memory) {
  window.restoreGeometry(memory.value(Key(window, "geometry")).toByteArray());
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    splitter->restoreState(memory.value(Key(window, splitter->objectName())).toByteArray());
  }
}

}  // namespace tavrel
