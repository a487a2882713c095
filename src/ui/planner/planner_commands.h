#pragma once

#include <QObject>

#include <memory>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class Editor;
class Planner;

/// The command that shows the planner, which is made at its first use and kept until the program ends.
class PlannerCommands : public QObject {
  Q_OBJECT

 public:
  PlannerCommands(App& app, Editor& editor, QWidget* window);
  ~PlannerCommands() override;

 public slots:
  void EditProjectPlanner_Click();

 private:
  App& app_;
  Editor& editor_;
  QWidget* window_;
  std::unique_ptr<Planner> planner_;
};

}  // namespace tavrel
