#include "ui/planner/save_planner.h"

#include "core/planner/plan_file.h"
#include "core/shell/program_folder.h"
#include "core/text/file_names.h"
#include "ui/controls/file_question.h"
#include "ui/controls/program_control.h"
#include "ui_save_planner.h"

namespace tavrel {

SavePlanner::SavePlanner(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::SavePlanner>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  Form_Load();
}

SavePlanner::~SavePlanner() = default;

void SavePlanner::Form_Load() {
  ReturnToProgramFolder(app_.State);
  ui_->List1->Fill(app_.State.ProgramFolder, kPlanExtension, app_.CodePageInUse());
  ui_->Text1->SetBytes(NameInCodePage(PlanName(app_.State), app_.CodePageInUse()));
  ui_->Text1->selectAll();
}

void SavePlanner::Command1_Click() {
  const std::filesystem::path file = AskForFile(app_, this, ui_->Text1->Bytes(), kPlanExtension);
  if (file.empty()) return;
  app_.State.PlanPath = file;
  accept();
}

void SavePlanner::Command2_Click() {
  reject();
}

void SavePlanner::reject() {
  app_.State.PlanPath.clear();
  Dialog::reject();
}

}  // namespace tavrel
