#include "ui/ipod/manage.h"

#include <QListWidget>

#include <algorithm>
#include <optional>
#include <string>

#include "core/ipod/find_pod.h"
#include "core/ipod/folder_store.h"
#include "core/shell/messages.h"
#include "core/shell/program_folder.h"
#include "core/text/run_time_error.h"
#include "ui/controls/hourglass.h"
#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"
#include "ui/controls/text_conversion.h"
#include "ui_manage.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// The number of the selected row; nothing if none is selected.
std::optional<std::size_t> SelectedRow(const QListWidget& list) {
  const QModelIndexList rows = list.selectionModel()->selectedRows();
  if (rows.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(rows.first().row());
}

/// The topmost folder of the system's own volume.
fs::path SystemRoot(const Platform& platform) {
  const std::vector<Volume> volumes = platform.Volumes();
  const auto found = std::find_if(volumes.begin(), volumes.end(),
                                  [&](const Volume& volume) { return platform.IsSystemVolume(volume); });
  return found == volumes.end() ? fs::current_path().root_path() : found->Root;
}

}  // namespace

Manage::Manage(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::Manage>()) {
  ui_->setupUi(this);
  PrepareControls();
  local_ = std::unique_ptr<Side>(
      new Side{FolderSide(app_, this, *ui_->Drive1, *ui_->Dir1, *ui_->File1), *ui_->List1});
  remote_ = std::unique_ptr<Side>(
      new Side{FolderSide(app_, this, *ui_->Drive2, *ui_->Dir2, *ui_->File2), *ui_->List2});
  ConnectControls();
  Form_Load();
}

Manage::~Manage() = default;

void Manage::ConnectControls() {
  ProgramControl& control = app_.Control;
  On(control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(control, ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  On(control, ui_->Command5, &QPushButton::clicked, this, [this] { Command5_Click(); });
  On(control, ui_->Command6, &QPushButton::clicked, this, [this] { Command6_Click(); });
  On(control, ui_->Drive1, &DriveList::Change, this, [this] { Drive1_Change(); });
  On(control, ui_->Drive2, &DriveList::Change, this, [this] { Drive2_Change(); });
  On(control, ui_->Dir1, &FolderList::Change, this, [this] { Dir1_Change(); });
  On(control, ui_->Dir2, &FolderList::Change, this, [this] { Dir2_Change(); });
}

void Manage::Form_Load() {
  ui_->File1->SetExtension(".txt");
  ui_->File2->SetExtension(".txt");
  local_->Browser.Show(app_.State.ProgramFolder);
  FindPod();
  RefreshFolders();
}

void Manage::FindPod() {
  const std::optional<Pod> pod = tavrel::FindPod(app_.System, app_.System.Volumes());
  if (pod && remote_->Browser.Show(pod->Notes)) {
    ShowRemote(tr(" iPod folders: "), tr("iPod folders"), *ui_->ManagerTab);
  } else {
    remote_->Browser.Show(SystemRoot(app_.System));
    ShowRemote(tr(" Remote folders:"), tr("Remote folders"), *ui_->BrowserTab);
  }
}

void Manage::ShowRemote(const QString& caption, const QString& spoken_name, QWidget& tab) {
  ui_->Label1_1->setText(caption);
  ui_->List2->setAccessibleName(spoken_name);
  ui_->SSTab1->setCurrentWidget(&tab);
}

void Manage::RefreshFolders() {
  Refresh(*local_);
  Refresh(*remote_);
}

void Manage::Refresh(Side& side) {
  side.Browser.Refresh();
  side.Projects.clear();
  for (const fs::path& name : side.Browser.Subfolders()) side.Projects.addItem(ToText(name));
}

void Manage::Command1_Click() {
  Copy(*remote_, *local_);
}

void Manage::Command2_Click() {
  Copy(*local_, *remote_);
}

void Manage::Command4_Click() {
  reject();
}

void Manage::Command5_Click() {
  Delete(*local_);
}

void Manage::Command6_Click() {
  Delete(*remote_);
}

void Manage::Drive1_Change() {
  local_->Browser.ChangeDrive();
  RefreshFolders();
}

void Manage::Drive2_Change() {
  remote_->Browser.ChangeDrive();
  RefreshFolders();
}

void Manage::Dir1_Change() {
  local_->Browser.ChangeFolder();
  RefreshFolders();
}

void Manage::Dir2_Change() {
  remote_->Browser.ChangeFolder();
  RefreshFolders();
}

void Manage::Copy(const Side& from, const Side& to) {
  const std::optional<std::size_t> row = SelectedRow(from.Projects);
  if (!row) return;
  const fs::path& name = from.Browser.Subfolders().at(*row);
  const fs::path target = to.Browser.Folder() / name;
  std::error_code error;
  if (!IsWritable(fs::is_directory(target, error) ? target : to.Browser.Folder())) return;
  const Hourglass hourglass;
  CopyFolder(from.Browser.Folder() / name, target, app_.System,
             [this](int done, int all) { ui_->Progress->Tell(done, all); });
  RefreshFolders();
  ReturnToProgramFolder(app_.State);
  ui_->Progress->hide();
}

/// Says so if nothing can be written to a folder, before a copy ends the program half way. A folder that has
/// gone is left to the copy.
bool Manage::IsWritable(const fs::path& folder) {
  const std::error_code error = app_.System.WhyNotWritable(folder);
  if (!error || error == std::errc::no_such_file_or_directory) return true;
  const FileError problem(folder, "cannot be written to", error);
  app_.Messages.Show(this, {problem.what(), Buttons::Ok, Icon::Exclamation, windowTitle().toStdString()});
  return false;
}

void Manage::Delete(const Side& side) {
  const std::optional<std::size_t> row = SelectedRow(side.Projects);
  if (!row) return;
  const fs::path& parent = side.Browser.Folder();
  const fs::path& name = side.Browser.Subfolders().at(*row);
  const std::string shown_path =
      PathText(parent) + static_cast<char>(fs::path::preferred_separator) + PathText(name);
  if (!app_.Messages.Show(this, messages::DeleteFolderQuestion(shown_path))) return;
  const Hourglass hourglass;
  if (!DeleteFolder(parent / name, app_.System)) app_.Messages.Show(this, messages::DeleteFolderFailed());
  RefreshFolders();
}

}  // namespace tavrel
