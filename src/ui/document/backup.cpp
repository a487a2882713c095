#include "ui/document/backup.h"

#include "core/document/backups.h"
#include "core/shell/program_folder.h"
#include "ui/controls/hourglass.h"
#include "ui/controls/program_control.h"
#include "ui/shell/skin_pictures.h"
#include "ui_backup.h"

namespace tavrel {

Backup::Backup(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::Backup>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
  On(app_.Control, ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  On(app_.Control, ui_->Command5, &QPushButton::clicked, this, [this] { Command5_Click(); });
  Form_Load();
}

Backup::~Backup() = default;

void Backup::Form_Load() {
  ui_->Background->SetPicture(BackupSkin());
  ReadDir();
}

void Backup::ReadDir() {
  ReturnToProgramFolder(app_.State);
  const auto list = [this](DatedFileList& files, std::string_view extension) {
    files.Fill(app_.State.ProgramFolder, extension, app_.CodePageInUse(), ListedAs::NameWithExtension);
  };
  list(*ui_->List2, ".bak");
  list(*ui_->List1, ".dat");
}

void Backup::Command1_Click() {
  const std::filesystem::path file = ui_->List1->SelectedFile();
  if (file.empty()) return;
  BackUpDocument(file, app_.State, app_.System);
  ReadDir();
}

void Backup::Command2_Click() {
  const std::filesystem::path file = ui_->List2->SelectedFile();
  if (file.empty()) return;
  RestoreDocument(file, app_.State, app_.System);
  ReadDir();
}

void Backup::Command3_Click() {
  accept();
}

void Backup::Command4_Click() {
  const Hourglass hourglass;
  const int files = ui_->List1->count();
  for (int index = 0; index < files; ++index) {
    ui_->List1->setCurrentRow(index);
    Command1_Click();
  }
}

void Backup::Command5_Click() {
  const Hourglass hourglass;
  const int files = ui_->List2->count();
  for (int index = 0; index < files; ++index) {
    ui_->List2->setCurrentRow(index);
    Command2_Click();
  }
}

}  // namespace tavrel
