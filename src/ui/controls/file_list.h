#pragma once

#include <QListWidget>

#include <filesystem>
#include <string>

#include "core/text/code_page.h"

namespace tavrel {

/// Shows the ordinary files of one folder, in alphabetical order.
class FileList : public QListWidget {
  Q_OBJECT

 public:
  explicit FileList(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page) { code_page_ = &code_page; }

  /// Lists only files whose names end so, such as ".txt"; empty lists all. Counts from the next SetPath.
  void SetExtension(std::string extension) { extension_ = std::move(extension); }

  const std::filesystem::path& Path() const { return path_; }
  void SetPath(const std::filesystem::path& path);

 private:
  const CodePage* code_page_;
  std::string extension_;
  std::filesystem::path path_;
};

}  // namespace tavrel
