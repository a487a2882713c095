#include "ui/controls/file_list.h"

#include "core/text/file_names.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {

FileList::FileList(QWidget* parent) : QListWidget(parent), code_page_(&CodePage::Windows1252()) {}

void FileList::SetPath(const std::filesystem::path& path) {
  path_ = path;
  clear();
  for (const FolderFile& file : ListFiles(path, "", *code_page_)) {
    const QString name = ToText(file.Name);
    const bool hidden = name.startsWith('.');
    if (!hidden) addItem(name);
  }
}

}  // namespace tavrel
