#pragma once

#include <QListWidget>

#include <filesystem>

namespace tavrel {

/// Shows one folder: the folders above it, itself and its sub-folders. A double click or Enter on a row opens
/// that folder; a row that is only highlighted changes nothing.
class FolderList : public QListWidget {
  Q_OBJECT

 public:
  explicit FolderList(QWidget* parent = nullptr);

  /// The opened folder.
  const std::filesystem::path& Path() const { return path_; }

  /// Opens a folder; false, with nothing changed, if it cannot be read.
  bool SetPath(const std::filesystem::path& path);

 signals:
  /// The user has opened another folder.
  void Change();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddFolder(const std::filesystem::path& folder, const QString& name, int depth, bool open);
  void Open(const QListWidgetItem* item);

  std::filesystem::path path_;
};

}  // namespace tavrel
