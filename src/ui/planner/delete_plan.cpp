#include "ui/planner/delete_plan.h"

#include "core/planner/plan_file.h"
#include "core/shell/program_folder.h"
#include "ui/controls/program_control.h"
#include "ui_delete_plan.h"

namespace tavrel {

DeletePlan::DeletePlan(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::DeletePlan>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  Form_Load();
}

DeletePlan::~DeletePlan() = default;

void DeletePlan::Form_Load() {
  ReturnToProgramFolder(app_.State);
  ui_->List1->Fill(app_.State.ProgramFolder, kPlanExtension, app_.CodePageInUse());
}

void DeletePlan::Command1_Click() {
  app_.State.PlanPath = ui_->List1->SelectedFile();
  DeletePlanFile(app_.State);
  accept();
}

void DeletePlan::Command2_Click() {
  reject();
}

void DeletePlan::reject() {
  app_.State.PlanPath.clear();
  Dialog::reject();
}

}  // namespace tavrel
