#include "support/user.h"

#include <QAccessible>
#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>

#include <vector>

#include "ui/controls/grid.h"

namespace tavrel::test {
namespace {

constexpr int kLoadedPatience = 30'000;  // milliseconds; a long text is laid out slowly under load

/// The menus from the menu bar down to the one that holds the action.
std::vector<QMenu*> MenusTo(QMainWindow& window, const QAction& action) {
  std::vector<QMenu*> menus;
  const QAction* wanted = &action;
  while (!window.menuBar()->actions().contains(const_cast<QAction*>(wanted))) {
    QMenu* holder = nullptr;
    for (QMenu* menu : window.findChildren<QMenu*>()) {
      if (menu->actions().contains(const_cast<QAction*>(wanted))) holder = menu;
    }
    if (holder == nullptr) throw std::runtime_error("no menu holds " + action.objectName().toStdString());
    menus.insert(menus.begin(), holder);
    wanted = holder->menuAction();
  }
  return menus;
}

QListWidgetItem& FindRow(QListWidget& list, const QString& text) {
  for (int row = 0; row < list.count(); ++row) {
    if (list.item(row)->text().startsWith(text)) return *list.item(row);
  }
  throw std::runtime_error("no row '" + text.toStdString() + "' in the list");
}

std::string IconName(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return "information";
    case Icon::Question:
      return "question";
    case Icon::Exclamation:
      return "exclamation";
    case Icon::Critical:
      return "critical";
    case Icon::None:
      break;
  }
  return "no icon";
}

QPoint Middle(QListWidget& list, QListWidgetItem& item) {
  list.scrollToItem(&item);
  return list.visualItemRect(&item).center();
}

}  // namespace

std::string NamesBelow(const QObject& parent) {
  QString names;
  for (const QObject* child : parent.findChildren<QObject*>()) {
    if (!child->objectName().isEmpty() && !child->objectName().startsWith("qt_"))
      names += child->objectName() + ' ';
  }
  return names.toStdString();
}

QWidget& TopWindow(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == name) return *window;
  }
  throw std::runtime_error("no window '" + name.toStdString() + "'");
}

void Click(QWidget& widget) {
  QTest::mouseClick(&widget, Qt::LeftButton);
}

void Click(const QWidget& window, const QString& name) {
  Click(Find<QWidget>(window, name));
}

void TypeInto(QWidget& field, const QString& text) {
  QWidget* target = &field;
  if (auto* box = qobject_cast<QPlainTextEdit*>(&field)) target = box->viewport();
  if (auto* line = field.findChild<QLineEdit*>()) target = line;
  QTest::mouseClick(target, Qt::LeftButton);
  QWidget* typing = target == &field || qobject_cast<QLineEdit*>(target) != nullptr ? target : &field;
  QTest::keySequence(typing, QKeySequence::SelectAll);
  if (text.isEmpty()) QTest::keyClick(typing, Qt::Key_Delete);
  for (const QChar c : text) {
    if (c == '\n') {
      QTest::keyClick(typing, Qt::Key_Return);
    } else {
      QTest::sendKeyEvent(QTest::Click, typing, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
  }
}

void TypeInto(const QWidget& window, const QString& name, const QString& text) {
  TypeInto(Find<QWidget>(window, name), text);
}

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&widget, key, modifiers);
}

void ChooseMenu(QMainWindow& window, const QString& name) {
  auto& action = Find<QAction>(window, name);
  const std::vector<QMenu*> menus = MenusTo(window, action);
  QMenuBar* bar = window.menuBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menus.front()->menuAction()).center());
  for (std::size_t i = 1; i < menus.size(); ++i) {
    QTest::mouseClick(menus[i - 1], Qt::LeftButton, {},
                      menus[i - 1]->actionGeometry(menus[i]->menuAction()).center());
    // A sub-menu opens a moment later.
    if (!QTest::qWaitFor([&] { return menus[i]->isVisible(); }, kLoadedPatience))
      throw std::runtime_error("the menu of " + name.toStdString() + " does not open");
  }
  QTest::mouseClick(menus.back(), Qt::LeftButton, {}, menus.back()->actionGeometry(&action).center());
  for (auto menu = menus.rbegin(); menu != menus.rend(); ++menu) (*menu)->close();
  ActivateWindow(window);
}

void ActivateWindow(QWidget& window) {
  window.activateWindow();
  if (window.isVisible() && !QTest::qWaitForWindowActive(&window, kLoadedPatience))
    throw std::runtime_error("the window is not active");
}

void ClickRow(Grid& grid, int row) {
  const QModelIndex cell = grid.model()->index(row - 1, 1);
  grid.scrollTo(cell);
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
}

void ClickListRow(QListWidget& list, const QString& text) {
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle(list, FindRow(list, text)));
}

void DoubleClickListRow(QListWidget& list, const QString& text) {
  const QPoint middle = Middle(list, FindRow(list, text));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
}

std::vector<std::string> Seen(const std::vector<Message>& messages) {
  std::vector<std::string> seen;
  for (const Message& message : messages) {
    seen.push_back(message.Title + "|" + IconName(message.Icon) + "|" + message.Text +
                   (message.Buttons == Buttons::Ok ? "|OK" : "|OK/Cancel"));
  }
  return seen;
}

std::vector<std::string> TabOrder(QWidget& window) {
  // A dialog counts as active from the start, through the window below it; its focus comes with its own
  // events.
  if (!QTest::qWaitFor([&] { return window.focusWidget() != nullptr; })) return {};
  std::vector<std::string> names;
  const QWidget* first = window.focusWidget();
  for (QWidget* control = window.focusWidget(); control != nullptr; control = window.focusWidget()) {
    names.push_back(control->objectName().toStdString());
    QTest::keyClick(control, Qt::Key_Tab);
    if (window.focusWidget() == first || window.focusWidget() == control) break;
  }
  return names;
}

std::vector<std::string> NamelessControls(const QWidget& window) {
  std::vector<std::string> nameless;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    const QString name = control->objectName();
    const bool inner = name.isEmpty() || name.startsWith("qt_");
    if (inner || control->focusPolicy() == Qt::NoFocus) continue;
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(control);
    if (spoken == nullptr || spoken->text(QAccessible::Name).isEmpty())
      nameless.push_back(name.toStdString());
  }
  return nameless;
}

void Settle() {
  QTest::qWait(20);
}

}  // namespace tavrel::test
