#pragma once

#include <filesystem>
#include <system_error>

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

  /// Shows a folder in all three lists, with the drives that there are now. Of a folder that cannot be read
  /// nothing is shown.
  void Show(const std::filesystem::path& folder);

  /// The folder shown.
  const std::filesystem::path& Folder() const;

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
