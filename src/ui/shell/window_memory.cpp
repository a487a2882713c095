#include "ui/shell/window_memory.h"

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

}  // namespace

void RememberWindow(const QWidget& window, QSettings& memory) {
  memory.setValue(Key(window, "geometry"), window.saveGeometry());
  for (const QSplitter* splitter : window.findChildren<QSplitter*>()) {
    memory.setValue(Key(window, splitter->objectName()), splitter->saveState());
  }
  // The program may end right after this.
  memory.sync();
}

void RestoreWindow(QWidget& window, const QSettings& memory) {
  window.restoreGeometry(memory.value(Key(window, "geometry")).toByteArray());
  for (QSplitter* splitter : window.findChildren<QSplitter*>()) {
    RestoreSplitter(*splitter, memory.value(Key(window, splitter->objectName())).toByteArray());
  }
}

}  // namespace tavrel
