#include "ui/controls/dated_file_list.h"

#include "core/text/file_names.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {

DatedFileList::DatedFileList(QWidget* parent) : QListWidget(parent) {
  QFont fixed_pitch("Courier New");
  fixed_pitch.setStyleHint(QFont::TypeWriter);
  fixed_pitch.setPointSizeF(font().pointSizeF());
  setFont(fixed_pitch);
  connect(this, &QListWidget::itemDoubleClicked, this, &DatedFileList::DblClick);
}

void DatedFileList::Fill(const std::filesystem::path& folder, std::string_view extension,
                         const CodePage& code_page) {
  clear();
  files_.clear();
  for (const FolderFile& file : ListFiles(folder, extension, code_page)) {
    const std::string name = NameInCodePage(WithoutExtension(file.Name), code_page);
    addItem(ToText(FileListEntry(name, file.Modified), code_page));
    files_.push_back(file.Name);
  }
}

std::filesystem::path DatedFileList::SelectedFile() const {
  const QList<QListWidgetItem*> selected = selectedItems();
  return selected.isEmpty() ? std::filesystem::path()
                            : files_.at(static_cast<std::size_t>(row(selected.first())));
}

}  // namespace tavrel
