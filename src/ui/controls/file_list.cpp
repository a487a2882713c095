#include "ui/controls/file_list.h"

#include "core/text/file_names.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {

FileList::FileList(QWidget* parent) : QListWidget(parent) {}

void FileList::SetPath(const std::filesystem::path& path) {
  path_ = path;
  files_.clear();
  clear();
  for (const FolderFile& file : ListFiles(path, extension_, platform_->SystemCodePage())) {
    if (platform_->IsHidden(path / file.Name)) continue;
    files_.push_back(file.Name);
    addItem(ToText(file.Name));
  }
}

}  // namespace tavrel
