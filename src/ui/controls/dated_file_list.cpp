#include "ui/controls/dated_file_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <map>
#include <string>
#include <utility>

#include "core/text/file_names.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

std::string ShownName(const FolderFile& file, ListedAs listed_as, const CodePage& code_page) {
  const bool whole = listed_as == ListedAs::NameWithExtension;
  return NameInCodePage(whole ? file.Name : WithoutExtension(file.Name), code_page);
}

}  // namespace

DatedFileList::DatedFileList(QWidget* parent) : QListWidget(parent) {
  QFont fixed_pitch("Courier New");
  fixed_pitch.setStyleHint(QFont::TypeWriter);
  fixed_pitch.setPointSizeF(font().pointSizeF());
  setFont(fixed_pitch);
}

void DatedFileList::Fill(const std::filesystem::path& folder, std::string_view extension,
                         const CodePage& code_page, ListedAs listed_as) {
  clear();
  files_.clear();
  std::map<std::string, std::vector<FolderFile>> by_name;
  for (FolderFile& file : ListFiles(folder, extension, code_page)) {
    by_name[code_page.Lower(ShownName(file, listed_as, code_page))].push_back(std::move(file));
  }
  for (const auto& [key, files] : by_name) {
    for (const FolderFile& file : files) {
      addItem(ToText(FileListEntry(ShownName(file, listed_as, code_page), file.Modified), code_page));
      files_.push_back(file.Name);
    }
  }
}

QSize DatedFileList::minimumSizeHint() const {
  constexpr int kRowLength = kListedNameLength + 10;  // the name, the date and some air
  const int row = fontMetrics().horizontalAdvance(QString(kRowLength, 'x'));
  const int scroll_bar = verticalScrollBar()->sizeHint().width();
  return {row + scroll_bar + 2 * frameWidth(), QListWidget::minimumSizeHint().height()};
}

void DatedFileList::mouseDoubleClickEvent(QMouseEvent* event) {
  QListWidget::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint()) != nullptr) emit DblClick();
}

void DatedFileList::keyPressEvent(QKeyEvent* event) {
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (arrow && selectedItems().isEmpty()) {
    setCurrentRow(0);
  } else {
    QListWidget::keyPressEvent(event);
  }
}

std::filesystem::path DatedFileList::SelectedFile() const {
  const QList<QListWidgetItem*> selected = selectedItems();
  return selected.isEmpty() ? std::filesystem::path()
                            : files_.at(static_cast<std::size_t>(row(selected.first())));
}

}  // namespace tavrel
