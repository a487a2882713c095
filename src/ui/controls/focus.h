#pragma once

#include <QApplication>
#include <QFocusEvent>

namespace tavrel {

/// Whether a control has lost the focus to another one, in its own window or in one that stands beside it.
/// Opening a menu, a list or a dialog and going to another program only borrow it.
inline bool IsFocusLost(const QFocusEvent& event) {
  if (QApplication::activePopupWidget() != nullptr) return false;
  if (event.reason() == Qt::ActiveWindowFocusReason) {
    return QApplication::activeWindow() != nullptr && QApplication::activeModalWidget() == nullptr;
  }
  return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason;
}

}  // namespace tavrel
