#include "ui/ipod/publish.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/check/project_check.h"
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
  for (const QCheckBox* choice : {ui_->Check1, ui_->Check2})
    On(app_.Control, choice, &QAbstractButton::toggled, this, [this] { ShowCheck(); });
  Form_Load();
}

Publish::~Publish() = default;

void Publish::Form_Load() {
  side_->Show(app_.State.ProgramFolder);
  ui_->Text1->SetBytes(NameInCodePage(DocumentName(app_.State), app_.CodePageInUse()));
  ShowCheck();
}

PublishOptions Publish::Options() const {
  return {.NotesMenuLink = ui_->Check1->isChecked(), .BackgroundMusic = ui_->Check2->isChecked()};
}

void Publish::ShowCheck() {
  const std::vector<Finding> findings = CheckProject(app_.State, app_.CodePageInUse(), Options());
  const auto count = [&](bool Finding::*what) {
    return static_cast<int>(
        std::count_if(findings.begin(), findings.end(), [what](const Finding& f) { return f.*what; }));
  };
  QStringList troubles;
  if (const int cut = count(&Finding::CutsNote); cut > 0)
    troubles << (cut == 1 ? tr("1 note will be cut") : tr("%L1 notes will be cut").arg(cut));
  if (const int dead = count(&Finding::LeadsNowhere); dead > 0)
    troubles << (dead == 1 ? tr("1 link leads nowhere") : tr("%L1 links lead nowhere").arg(dead));
  ui_->CheckLine->setVisible(!troubles.isEmpty());
  ui_->CheckLine->setText(troubles.join(tr(", ")) + tr("; see View > Project check."));
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
  try {
    const Hourglass hourglass;
    PublishNotes(app_.State, app_.System, side_->Folder() / PathFromTypedName(name, app_.System), Options());
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
