#include "ui/controls/row_list.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace tavrel {

RowList::RowList(QWidget* parent) : QTreeView(parent) {
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) { emit Clicked(index.row()); });
  connect(this, &QTreeView::doubleClicked, this,
          [this](const QModelIndex& index) { emit Chosen(index.row()); });
}

void RowList::SelectRow(int row) {
  setCurrentIndex(model()->index(row, 0));
}

int RowList::Top() const {
  return verticalScrollBar()->value();
}

void RowList::Restore(int top, int selected) {
  executeDelayedItemsLayout();
  setAutoScroll(false);
  if (selected >= 0) SelectRow(selected);
  setAutoScroll(true);
  verticalScrollBar()->setValue(top);
}

void RowList::keyPressEvent(QKeyEvent* event) {
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (is_enter && currentIndex().isValid()) {
    emit Chosen(Row());
    return;
  }
  QTreeView::keyPressEvent(event);
}

}  // namespace tavrel
