#pragma once

#include <QObject>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class Editor;

/// The commands of the File menu that concern the iPod.
class ToolsCommands : public QObject {
  Q_OBJECT

 public:
  ToolsCommands(App& app, Editor& editor, QWidget* window);

 public slots:
  void ToolsPublish_Click();
  void ToolsManage_Click();
  void ToolsImport_Click();

 private:
  App& app_;
  Editor& editor_;
  QWidget* window_;
};

}  // namespace tavrel
