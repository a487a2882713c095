#include "ui/view/hit_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <utility>

#include "ui/view/hit_model.h"

namespace tavrel {
namespace {

QColor TextColour(const QStyleOptionViewItem& option) {
  const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
  const auto role = option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
  return option.palette.color(group, role);
}

void LayOut(QTextLayout& layout, const QModelIndex& index) {
  QTextLayout::FormatRange hit{
      index.data(HitModel::kStartRole).toInt(), index.data(HitModel::kLengthRole).toInt(), {}};
  hit.format.setFontWeight(QFont::Bold);
  layout.setFormats({hit});
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
}

}  // namespace

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QString text = std::exchange(cell.text, QString());
  const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

  QTextLayout layout(text, cell.font);
  LayOut(layout, index);
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  const QRect area = cell.rect.adjusted(margin, 0, -margin, 0);
  painter->save();
  painter->setClipRect(area);
  painter->setPen(TextColour(cell));
  const QSize words = layout.boundingRect().size().toSize();
  const QRect place = QStyle::alignedRect(cell.direction, Qt::AlignLeft | Qt::AlignVCenter, words, area);
  layout.draw(painter, place.topLeft());
  painter->restore();
}

}  // namespace tavrel
