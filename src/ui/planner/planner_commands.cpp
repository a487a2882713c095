#include "ui/planner/planner_commands.h"

#include "ui/main/editor.h"
#include "ui/planner/planner.h"

namespace tavrel {

PlannerCommands::PlannerCommands(App& app, Editor& editor, QWidget* window)
    : app_(app), editor_(editor), window_(window) {}

PlannerCommands::~PlannerCommands() = default;

void PlannerCommands::EditProjectPlanner_Click() {
  editor_.SavePage();
  if (!planner_) planner_ = std::make_unique<Planner>(app_, editor_, window_);
  planner_->setWindowState(planner_->windowState() & ~Qt::WindowMinimized);
  planner_->show();
  planner_->raise();
  planner_->activateWindow();
}

}  // namespace tavrel
