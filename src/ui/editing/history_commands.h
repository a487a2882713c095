#pragma once

#include <QObject>

#include <optional>
#include <string>

#include "ui/app.h"

class QAction;
class QMenu;
class QStatusBar;
class QWidget;

namespace tavrel {

class Editor;

/// Undo and Redo: of what is typed in the field with the focus, and else of what the commands have done.
class HistoryCommands : public QObject {
  Q_OBJECT

 public:
  HistoryCommands(App& app, Editor& editor, QStatusBar& status_bar);

  /// Has the menu say, whenever it opens, what the two would do.
  void NameIn(const QMenu& menu, QAction& undo, QAction& redo);

 public slots:
  void EditUndo_Click();
  void EditRedo_Click();

 private:
  QWidget* FieldToUndo() const;
  std::optional<QString> UndoName() const;
  std::optional<QString> RedoName() const;
  void Show(const Place& place, const QString& told);

  App& app_;
  Editor& editor_;
  QStatusBar& status_bar_;
};

}  // namespace tavrel
