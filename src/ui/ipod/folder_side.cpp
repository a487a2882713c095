#include "ui/ipod/folder_side.h"

#include <QWidget>

#include "core/shell/messages.h"
#include "core/text/run_time_error.h"
#include "ui/controls/drive_list.h"
#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"

namespace tavrel {

FolderSide::FolderSide(App& app, QWidget* window, DriveList& drives, FolderList& folders, FileList& files)
    : app_(app), window_(window), drives_(drives), folders_(folders), files_(files) {
  On(app_.Control, &folders_, &FolderList::OpenFailed, window_,
     [this](const std::filesystem::path& folder, const std::error_code& error) {
       ShowOpenFailed(folder, error);
     });
}

bool FolderSide::Show(const std::filesystem::path& folder) {
  drives_.SetVolumes(app_.System.Volumes());
  drives_.SetDriveOf(folder);
  if (folders_.SetPath(folder)) return false;
  files_.SetPath(folder);
  return true;
}

void FolderSide::Refresh() {
  folders_.Refresh();
}

const std::vector<std::filesystem::path>& FolderSide::Subfolders() const {
  return folders_.Subfolders();
}

const std::filesystem::path& FolderSide::Folder() const {
  return folders_.Path();
}

void FolderSide::ChangeDrive() {
  const Volume& drive = drives_.Drive();
  if (app_.System.IsReady(drive) && !folders_.SetPath(drive.Root)) {
    files_.SetPath(drive.Root);
    return;
  }
  app_.Messages.Show(window_, messages::DriveNotAvailable(drive.Name));
  drives_.SetDriveOf(files_.Path());
}

void FolderSide::ChangeFolder() {
  files_.SetPath(folders_.Path());
}

void FolderSide::ShowOpenFailed(const std::filesystem::path& folder, const std::error_code& error) {
  const FileError problem(folder, "could not be opened", error);
  app_.Messages.Show(window_,
                     {problem.what(), Buttons::Ok, Icon::Exclamation, window_->windowTitle().toStdString()});
}

}  // namespace tavrel
