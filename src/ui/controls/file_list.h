#pragma once

#include <QListWidget>

#include <filesystem>

#include "core/text/code_page.h"

namespace tavrel {

/// Shows the ordinary files of one folder, in alphabetical order.
class FileList : public QListWidget {
  Q_OBJECT

 public:
  explicit FileList(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page) { code_page_ = &code_page; }

  const std::filesystem::path& Path() const { return path_; }
  void SetPath(const std::filesystem::path& path);

 private:
  const CodePage* code_page_;
  std::filesystem::path path_;
};

}  // namespace tavrel
