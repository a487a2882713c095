#include "ui/controls/elided_label.h"

#include <QHelpEvent>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>

namespace tavrel {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? text() : toolTip(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  // As the toolkit's own label does, by the direction of the text and not of the window.
  const auto direction = text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
  const int flags = static_cast<int>(QStyle::visualAlignment(direction, alignment()) | Qt::AlignAbsolute);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  painter.drawItemText(contentsRect(), flags, palette(), isEnabled(), shown, foregroundRole());
}

}  // namespace tavrel
