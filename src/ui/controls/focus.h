#pragma once

#include <QApplication>
#include <QFocusEvent>

namespace tavrel {

/// Whether a control has lost the focus to another one. Opening a menu or a list and going to another window
/// only borrow it.
inline bool IsFocusLost(const QFocusEvent& event) {
  return QApplication::activePopupWidget() == nullptr && event.reason() != Qt::PopupFocusReason &&
         event.reason() != Qt::MenuBarFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace tavrel
