#include "ui/planner/load_planner.h"

#include "core/planner/plan_file.h"
#include "core/shell/program_folder.h"
#include "ui/controls/program_control.h"
#include "ui_load_planner.h"

namespace tavrel {

LoadPlanner::LoadPlanner(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::LoadPlanner>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->List1, &DatedFileList::DblClick, this, [this] { List1_DblClick(); });
  Form_Load();
}

LoadPlanner::~LoadPlanner() = default;

void LoadPlanner::Form_Load() {
  ReturnToProgramFolder(app_.State);
  ui_->List1->Fill(app_.State.ProgramFolder, kPlanExtension, app_.CodePageInUse());
}

void LoadPlanner::Command1_Click() {
  app_.State.PlanPath = ui_->List1->SelectedFile();
  accept();
}

void LoadPlanner::List1_DblClick() {
  Command1_Click();
}

void LoadPlanner::Command2_Click() {
  reject();
}

void LoadPlanner::reject() {
  app_.State.PlanPath.clear();
  Dialog::reject();
}

}  // namespace tavrel
