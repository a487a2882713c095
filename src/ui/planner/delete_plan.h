#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class DeletePlan;
}

namespace tavrel {

/// Deletes a plan file, without a question. `PlanPath` keeps its name.
class DeletePlan : public Dialog {
  Q_OBJECT

 public:
  DeletePlan(App& app, QWidget* parent);
  ~DeletePlan() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();

  /// Cancel, by whatever way the dialog is left.
  void reject() override;

 private:
  std::unique_ptr<Ui::DeletePlan> ui_;
};

}  // namespace tavrel
