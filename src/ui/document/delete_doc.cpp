#include "ui/document/delete_doc.h"

#include "core/document/document_file.h"
#include "ui/controls/program_control.h"
#include "ui_delete_doc.h"

namespace tavrel {

DeleteDoc::DeleteDoc(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::DeleteDoc>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->List1, &DatedFileList::DblClick, this, [this] { List1_DblClick(); });
  Form_Load();
}

DeleteDoc::~DeleteDoc() = default;

void DeleteDoc::Form_Load() {
  ui_->List1->Fill(app_.State.ProgramFolder, ".dat", app_.CodePageInUse());
}

void DeleteDoc::Command1_Click() {
  const std::filesystem::path file = ui_->List1->SelectedFile();
  if (file.empty()) return;
  DeleteDocument(app_.State.ProgramFolder, file);
  accept();
}

void DeleteDoc::Command2_Click() {
  reject();
}

void DeleteDoc::List1_DblClick() {
  Command1_Click();
}

}  // namespace tavrel
