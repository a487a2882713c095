#include "ui/ipod/import.h"

#include "core/ipod/note_reader.h"
#include "ui/controls/hourglass.h"
#include "ui/controls/program_control.h"
#include "ui_import.h"

namespace tavrel {

Import::Import(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::Import>()) {
  ui_->setupUi(this);
  PrepareControls();
  side_ = std::make_unique<FolderSide>(app_, this, *ui_->Drive1, *ui_->Dir1, *ui_->File1);
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->Drive1, &DriveList::Change, this, [this] { Drive1_Change(); });
  On(app_.Control, ui_->Dir1, &FolderList::Change, this, [this] { Dir1_Change(); });
  Form_Load();
}

Import::~Import() = default;

void Import::Form_Load() {
  ui_->File1->SetExtension(".txt");
  side_->Show(app_.State.ProgramFolder);
}

void Import::Drive1_Change() {
  side_->ChangeDrive();
}

void Import::Dir1_Change() {
  side_->ChangeFolder();
}

void Import::Command1_Click() {
  reject();
}

void Import::Command2_Click() {
  const Hourglass hourglass;
  const std::vector<std::filesystem::path>& notes = ui_->File1->Files();
  ImportNotes(app_.State, side_->Folder(), notes, app_.CodePageInUse(),
              [&](int done) { ui_->Progress->Tell(done, static_cast<int>(notes.size())); });
  accept();
}

}  // namespace tavrel
