#pragma once

#include <filesystem>
#include <system_error>
#include <vector>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class DriveList;
class FileList;
class FolderList;

/// A drive list, a folder list and a file list that belong together: each follows the one before it.
class FolderSide {
 public:
  FolderSide(App& app, QWidget* window, DriveList& drives, FolderList& folders, FileList& files);

  /// Shows a folder in all three lists, with the drives that there are now. False if it cannot be read.
  bool Show(const std::filesystem::path& folder);

  /// Reads the folder's sub-folders anew.
  void Refresh();

  /// The folder shown.
  const std::filesystem::path& Folder() const;
  /// The names of its sub-folders, in the list's order.
  const std::vector<std::filesystem::path>& Subfolders() const;

  /// The user has chosen another drive: goes to its root. If that cannot be read, says so and goes back.
  void ChangeDrive();
  /// The user has opened another folder.
  void ChangeFolder();

 private:
  void ShowOpenFailed(const std::filesystem::path& folder, const std::error_code& error);

  App& app_;
  QWidget* window_;
  DriveList& drives_;
  FolderList& folders_;
  FileList& files_;
};

}  // namespace tavrel
