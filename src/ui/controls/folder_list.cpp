#include "ui/controls/folder_list.h"

#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>

#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr int kFolderRole = Qt::UserRole;

}  // namespace

FolderList::FolderList(QWidget* parent) : QListWidget(parent) {}

std::error_code FolderList::SetPath(const fs::path& path) {
  std::error_code error;
  const fs::directory_iterator readable(path, error);
  if (error) return error;
  path_ = path;
  clear();

  int depth = 0;
  fs::path above = path.root_path();
  AddFolder(above, ToText(above), depth, true);
  for (const fs::path& part : path.relative_path()) {
    if (part.empty()) continue;
    above /= part;
    AddFolder(above, ToText(part), ++depth, true);
  }
  const int own_row = count() - 1;
  const QDir folder(ToText(path));
  const QStringList names =
      folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  for (const QString& name : names) AddFolder(path / ToPath(name), name, depth + 1, false);
  setCurrentRow(own_row);
  return {};
}

void FolderList::mouseDoubleClickEvent(QMouseEvent* event) {
  const QListWidgetItem* item = itemAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && item != nullptr) Open(item);
}

void FolderList::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && currentItem() != nullptr) {
    Open(currentItem());
  } else {
    QListWidget::keyPressEvent(event);
  }
}

void FolderList::AddFolder(const fs::path& folder, const QString& name, int depth, bool open) {
  constexpr int kBlanksPerLevel = 2;
  auto* item = new QListWidgetItem(QString(depth * kBlanksPerLevel, ' ') + name, this);
  item->setIcon(style()->standardIcon(open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon));
  item->setData(kFolderRole, ToText(folder));
}

void FolderList::Open(const QListWidgetItem* item) {
  const fs::path folder = ToPath(item->data(kFolderRole).toString());
  if (folder == path_) return;
  if (const std::error_code error = SetPath(folder)) {
    emit OpenFailed(folder, error);
  } else {
    emit Change();
  }
}

}  // namespace tavrel
