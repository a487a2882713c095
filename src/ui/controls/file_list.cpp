#include "ui/controls/file_list.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

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

void FileList::paintEvent(QPaintEvent* event) {
  QListWidget::paintEvent(event);
  if (!hasFocus() || count() > 0) return;
  // With no row to show the focus on, the list itself does.
  QPainter painter(viewport());
  QStyleOptionFocusRect focus;
  focus.initFrom(viewport());
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void FileList::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  viewport()->update();
}

void FileList::focusOutEvent(QFocusEvent* event) {
  QListWidget::focusOutEvent(event);
  viewport()->update();
}

}  // namespace tavrel
