#include "ui/document/save_as.h"

#include "ui/controls/file_question.h"
#include "ui/controls/program_control.h"
#include "ui/document/save_document.h"
#include "ui_save_as.h"

namespace tavrel {

SaveAs::SaveAs(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::SaveAs>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  Form_Load();
}

SaveAs::~SaveAs() = default;

void SaveAs::Form_Load() {
  ui_->List1->Fill(app_.State.ProgramFolder, ".dat", app_.CodePageInUse());
}

void SaveAs::Command1_Click() {
  const std::filesystem::path file = AskForFile(app_, this, ui_->Text1->Bytes(), ".dat");
  if (file.empty()) return;
  app_.State.DocPath = file;
  SaveDoc(app_);
  accept();
}

void SaveAs::Command2_Click() {
  reject();
}

}  // namespace tavrel
