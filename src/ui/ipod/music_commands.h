#pragma once

#include <QObject>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class Editor;

/// The ways to the music link editor: the Edit menu and the button beside the page's music link.
class MusicCommands : public QObject {
  Q_OBJECT

 public:
  MusicCommands(App& app, Editor& editor, QWidget* window);

 public slots:
  void EditMusic_Click();
  void Command4_Click();

 private:
  App& app_;
  Editor& editor_;
  QWidget* window_;
};

}  // namespace tavrel
