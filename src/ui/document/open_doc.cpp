#include "ui/document/open_doc.h"

#include "ui/controls/program_control.h"
#include "ui_open_doc.h"

namespace tavrel {

OpenDoc::OpenDoc(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::OpenDoc>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->List1, &DatedFileList::DblClick, this, [this] { List1_DblClick(); });
  Form_Load();
}

OpenDoc::~OpenDoc() = default;

void OpenDoc::Form_Load() {
  ui_->List1->Fill(app_.State.ProgramFolder, ".dat", app_.CodePageInUse());
}

void OpenDoc::Command1_Click() {
  const std::filesystem::path file = ui_->List1->SelectedFile();
  if (file.empty()) return;
  ClearDocument(app_.State);
  app_.State.DocPath = file;
  accept();
}

void OpenDoc::Command2_Click() {
  reject();
}

void OpenDoc::List1_DblClick() {
  Command1_Click();
}

}  // namespace tavrel
