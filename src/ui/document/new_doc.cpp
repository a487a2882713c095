#include "ui/document/new_doc.h"

#include "core/document/default_pages.h"
#include "ui/controls/file_question.h"
#include "ui/controls/program_control.h"
#include "ui/document/save_document.h"
#include "ui_new_doc.h"

namespace tavrel {

NewDoc::NewDoc(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::NewDoc>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->Text1, &LineField::returnPressed, this, [this] { Text1_KeyPress(); });
  Form_Load();
}

NewDoc::~NewDoc() = default;

void NewDoc::Form_Load() {
  ui_->List1->Fill(app_.State.ProgramFolder, ".dat", app_.CodePageInUse());
  app_.State.DocPath.clear();
  ClearDocument(app_.State);
  app_.Control.DocumentSettled();
}

void NewDoc::Command1_Click() {
  const std::filesystem::path file = AskForFile(app_, this, ui_->Text1->Bytes(), ".dat");
  if (file.empty()) return;
  app_.State.DocPath = file;
  MakeDefaultPages(app_.State, {.Title = ui_->Check1->isChecked(),
                                .Contents = ui_->Check2->isChecked(),
                                .About = ui_->Check3->isChecked()});
  SaveDoc(app_);
  accept();
}

void NewDoc::Command2_Click() {
  reject();
}

void NewDoc::Text1_KeyPress() {
  Command1_Click();
}

}  // namespace tavrel
