#include "ui/controls/folder_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyledItemDelegate>

#include "core/ipod/folder_store.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {

namespace fs = std::filesystem;

namespace {

constexpr int kDepthRole = Qt::UserRole;

/// Draws rows further in the deeper their folder lies.
class IndentingDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    const int indent = Indent(option, index);
    const bool mirrored = option.direction == Qt::RightToLeft;
    indented.rect.adjust(mirrored ? 0 : indent, 0, mirrored ? -indent : 0, 0);
    QStyledItemDelegate::paint(painter, indented, index);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(Indent(option, index), 0);
  }

 private:
  static int Indent(const QStyleOptionViewItem& option, const QModelIndex& index) {
    return index.data(kDepthRole).toInt() * option.fontMetrics.averageCharWidth() * 2;
  }
};

}  // namespace

FolderList::FolderList(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new IndentingDelegate(this));
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  setIconSize(QSize(icon, icon));
}

std::error_code FolderList::SetPath(const fs::path& path) {
  if (const std::error_code error = platform_->WhyNotReadable(path)) return error;
  path_ = path;
  subfolders_ = tavrel::Subfolders(path, *platform_);
  folders_.clear();
  clear();

  int depth = 0;
  fs::path above = path.root_path();
  AddFolder(above, above, depth, true);
  for (const fs::path& part : path.relative_path()) {
    if (part.empty()) continue;
    above /= part;
    AddFolder(above, part, ++depth, true);
  }
  const int own_row = count() - 1;
  for (const fs::path& name : subfolders_) AddFolder(path / name, name, depth + 1, false);
  setCurrentRow(own_row);
  return {};
}

void FolderList::Refresh() {
  // A folder that has gone stays as it was shown.
  SetPath(fs::path(path_));
}

void FolderList::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && index.isValid()) Open(index.row());
}

void FolderList::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && currentRow() >= 0) {
    Open(currentRow());
  } else {
    QListWidget::keyPressEvent(event);
  }
}

void FolderList::AddFolder(const fs::path& folder, const fs::path& name, int depth, bool open) {
  auto* item = new QListWidgetItem(ToText(name), this);
  item->setData(kDepthRole, depth);
  item->setIcon(style()->standardIcon(open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon));
  folders_.push_back(folder);
}

void FolderList::Open(int row) {
  const fs::path folder = folders_.at(static_cast<std::size_t>(row));
  if (folder == path_) return;
  if (const std::error_code error = SetPath(folder)) {
    emit OpenFailed(folder, error);
  } else {
    emit Change();
  }
}

}  // namespace tavrel
