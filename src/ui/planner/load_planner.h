#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class LoadPlanner;
}

namespace tavrel {

/// Chooses the plan to load into the planner. Only `PlanPath` is set: to the chosen file, or to nothing.
class LoadPlanner : public Dialog {
  Q_OBJECT

 public:
  LoadPlanner(App& app, QWidget* parent);
  ~LoadPlanner() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void List1_DblClick();

  /// Cancel, by whatever way the dialog is left.
  void reject() override;

 private:
  std::unique_ptr<Ui::LoadPlanner> ui_;
};

}  // namespace tavrel
