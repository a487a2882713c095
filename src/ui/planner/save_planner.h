#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class SavePlanner;
}

namespace tavrel {

/// Asks for the name under which the plan is to be saved. Only `PlanPath` is set: to that file, or to
/// nothing.
class SavePlanner : public Dialog {
  Q_OBJECT

 public:
  SavePlanner(App& app, QWidget* parent);
  ~SavePlanner() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();

  /// Cancel, by whatever way the dialog is left.
  void reject() override;

 private:
  std::unique_ptr<Ui::SavePlanner> ui_;
};

}  // namespace tavrel
