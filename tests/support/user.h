#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include <stdexcept>
#include <string>
#include <vector>

#include "core/shell/messages.h"

class QAction;
class QComboBox;
class QListWidget;
class QMainWindow;

namespace tavrel {
class Grid;
}

/// What a person does with a window: finds things by looking, clicks and types.
namespace tavrel::test {

/// A readable list of the named things below `parent`.
std::string NamesBelow(const QObject& parent);

/// The child with this object name; throws with the names that there are if it is missing.
template <typename Child>
Child& Find(const QObject& parent, const QString& name) {
  if (auto* child = parent.findChild<Child*>(name)) return *child;
  throw std::runtime_error("no '" + name.toStdString() + "' in: " + NamesBelow(parent));
}

/// The window with this object name that stands by itself, shown or hidden; throws if there is none.
QWidget& TopWindow(const QString& name);

void Click(QWidget& widget);
/// Clicks the child with this name.
void Click(const QWidget& window, const QString& name);

/// Puts the focus into a field with a click, selects what it holds and types over it. "\n" presses Enter.
void TypeInto(QWidget& field, const QString& text);
void TypeInto(const QWidget& window, const QString& name, const QString& text);

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Makes a window the active one, as a window manager does when a dialog over it closes.
void ActivateWindow(QWidget& window);

/// Opens the menus down to an item with real clicks and clicks it.
void ChooseMenu(QMainWindow& window, const QString& action);

/// Clicks a row of a grid, numbered from 1, in its middle column.
void ClickRow(Grid& grid, int row);

/// Selects the list's row that begins with `text`.
void ClickListRow(QListWidget& list, const QString& text);
void DoubleClickListRow(QListWidget& list, const QString& text);

/// Messages as a person sees them: "title|icon|text|buttons". Blanks and line ends stay as they are.
std::vector<std::string> Seen(const std::vector<Message>& messages);

/// The names of the controls that take the focus, in the order of the Tab key from the one that has it.
std::vector<std::string> TabOrder(QWidget& window);

/// The controls that the keyboard reaches but that a screen reader has no name for.
std::vector<std::string> NamelessControls(const QWidget& window);

/// Lets pending events run.
void Settle();

}  // namespace tavrel::test
