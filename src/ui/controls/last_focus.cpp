#include "ui/controls/last_focus.h"

#include <QApplication>
#include <QMenuBar>

namespace tavrel {

LastFocus::LastFocus(QWidget& window) {
  connect(qApp, &QApplication::focusChanged, this, [this, &window](QWidget* /*old*/, QWidget* now) {
    const bool is_in_window = now != nullptr && window.isAncestorOf(now) && now->window() == &window;
    if (is_in_window && qobject_cast<QMenuBar*>(now) == nullptr) control_ = now;
  });
}

}  // namespace tavrel
