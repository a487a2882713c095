#pragma once

#include <QListWidget>

#include <filesystem>
#include <system_error>
#include <vector>

#include "core/platform.h"

namespace tavrel {

/// Shows one folder: the folders above it, itself and its sub-folders. A double click or Enter on a row opens
/// that folder; a row that is only highlighted changes nothing.
class FolderList : public QListWidget {
  Q_OBJECT

 public:
  explicit FolderList(QWidget* parent = nullptr);

  void SetPlatform(const Platform& platform) { platform_ = &platform; }

  /// The opened folder.
  const std::filesystem::path& Path() const { return path_; }

  /// Opens a folder; gives the error, with nothing changed, if it cannot be read.
  std::error_code SetPath(const std::filesystem::path& path);

  /// Reads the sub-folders anew.
  void Refresh();

  /// The names of the sub-folders, in the list's order.
  const std::vector<std::filesystem::path>& Subfolders() const { return subfolders_; }

 signals:
  /// The user has opened another folder.
  void Change();
  /// The user wanted to open a folder that cannot be read.
  void OpenFailed(const std::filesystem::path& folder, const std::error_code& error);

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddFolder(const std::filesystem::path& folder, const std::filesystem::path& name, int depth,
                 bool open);
  void Open(int row);

  const Platform* platform_ = nullptr;
  std::filesystem::path path_;
  std::vector<std::filesystem::path> subfolders_;
  std::vector<std::filesystem::path> folders_;  ///< the full path of each row
};

}  // namespace tavrel
