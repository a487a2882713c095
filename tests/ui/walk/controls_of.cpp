#include "ui/walk/controls_of.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>

#include "ui/controls/link_label.h"
#include "ui/controls/picture_button.h"

namespace tavrel::test {
namespace {

template <typename... Kinds>
bool IsOneOf(const QWidget* widget) {
  return (... || (qobject_cast<const Kinds*>(widget) != nullptr));
}

/// Widgets whose children are their own business.
bool IsWhole(const QWidget* widget) {
  return IsOneOf<QAbstractButton, QAbstractScrollArea, QComboBox, QLineEdit, QMenuBar, QStatusBar, QTabBar>(
      widget);
}

void Collect(const QWidget& parent, QList<QWidget*>& controls) {
  for (QObject* object : parent.children()) {
    auto* child = qobject_cast<QWidget*>(object);
    if (child == nullptr || child->isWindow() || !child->isVisible()) continue;
    controls << child;
    if (!IsWhole(child)) Collect(*child, controls);
  }
}

}  // namespace

QList<QWidget*> ControlsOf(const QWidget& window) {
  QList<QWidget*> controls;
  Collect(window, controls);
  return controls;
}

QList<QWidget*> ControlsToReach(const QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* control : ControlsOf(window)) {
    const bool acts =
        IsOneOf<QAbstractButton, QAbstractItemView, QComboBox, QLineEdit, QPlainTextEdit, QTabBar, LinkLabel>(
            control);
    if (acts && control->isEnabled() && !IsOneOf<PictureButton>(control)) controls << control;
  }
  return controls;
}

std::string NameOf(const QWidget& control) {
  return (control.objectName() + " (" + control.metaObject()->className() + ")").toStdString();
}

}  // namespace tavrel::test
