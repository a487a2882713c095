#pragma once

#include <QListWidget>

#include <filesystem>
#include <string_view>
#include <vector>

#include "core/text/code_page.h"

namespace tavrel {

/// What a list shows of file names.
enum class ListedAs { Name, NameWithExtension };

/// A list of the program's own files: each as its name, padded or cut to 25 characters, and its date, in a
/// fixed-pitch font so that the dates line up.
class DatedFileList : public QListWidget {
  Q_OBJECT

 public:
  explicit DatedFileList(QWidget* parent = nullptr);

  /// Lists the files of a folder whose names end in `extension`, sorted as shown, without letter case.
  void Fill(const std::filesystem::path& folder, std::string_view extension, const CodePage& code_page,
            ListedAs listed_as = ListedAs::Name);

  /// The bare name of the selected file; empty if none is. Names cut to the same 25 characters stay apart.
  std::filesystem::path SelectedFile() const;

  QSize minimumSizeHint() const override;

 signals:
  void DblClick();

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::vector<std::filesystem::path> files_;
};

}  // namespace tavrel
