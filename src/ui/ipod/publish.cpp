#include "ui/ipod/publish.h"

#include <string>

#include "core/ipod/note_writer.h"
#include "core/shell/messages.h"
#include "core/shell/program_folder.h"
#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "ui/controls/hourglass.h"
#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"
#include "ui_publish.h"

namespace tavrel {

Publish::Publish(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::Publish>()) {
  ui_->setupUi(this);
  PrepareControls();
  side_ = std::make_unique<FolderSide>(app_, this, *ui_->Drive1, *ui_->Dir1, *ui_->File1);
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(app_.Control, ui_->Drive1, &DriveList::Change, this, [this] { Drive1_Change(); });
  On(app_.Control, ui_->Dir1, &FolderList::Change, this, [this] { Dir1_Change(); });
  Form_Load();
}

Publish::~Publish() = default;

void Publish::Form_Load() {
  side_->Show(app_.State.ProgramFolder);
  ui_->Text1->SetBytes(NameInCodePage(DocumentName(app_.State), app_.CodePageInUse()));
}

void Publish::Drive1_Change() {
  side_->ChangeDrive();
}

void Publish::Dir1_Change() {
  side_->ChangeFolder();
}

void Publish::Command1_Click() {
  reject();
}

void Publish::Command2_Click() {
  std::string name = CleanName(ui_->Text1->Bytes());
  std::erase(name, '\0');
  if (name.empty()) return;
  const PublishOptions options{.NotesMenuLink = ui_->Check1->isChecked(),
                               .BackgroundMusic = ui_->Check2->isChecked()};
  try {
    const Hourglass hourglass;
    PublishNotes(app_.State, app_.System, side_->Folder() / PathFromTypedName(name, app_.System), options);
  } catch (const FileError& error) {
    ShowError(error);
    return;
  }
  ReturnToProgramFolder(app_.State);
  app_.Messages.Show(this, messages::PublishFinished());
  accept();
}

void Publish::ShowError(const FileError& error) {
  app_.Messages.Show(this, {error.what(), Buttons::Ok, Icon::Exclamation, "Publish"});
}

}  // namespace tavrel
