#pragma once

#include <QStyledItemDelegate>

namespace tavrel {

/// Paints the words around a hit with the hit itself in bold letters.
class HitDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tavrel
