#pragma once

#include <QListWidget>

#include <filesystem>
#include <string>
#include <vector>

#include "core/platform.h"

namespace tavrel {

/// Shows the ordinary files of one folder that are not hidden, in alphabetical order.
class FileList : public QListWidget {
  Q_OBJECT

 public:
  explicit FileList(QWidget* parent = nullptr);

  void SetPlatform(const Platform& platform) { platform_ = &platform; }

  /// Shows only files whose names end so, such as ".txt"; letter case does not matter.
  void SetExtension(std::string extension) { extension_ = std::move(extension); }

  const std::filesystem::path& Path() const { return path_; }
  void SetPath(const std::filesystem::path& path);

  /// The names of the files shown, in their order.
  const std::vector<std::filesystem::path>& Files() const { return files_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  const Platform* platform_ = nullptr;
  std::string extension_;
  std::filesystem::path path_;
  std::vector<std::filesystem::path> files_;
};

}  // namespace tavrel
