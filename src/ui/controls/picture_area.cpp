#include "ui/controls/picture_area.h"

#include <QPainter>

namespace tavrel {

PictureArea::PictureArea(QWidget* parent) : QWidget(parent) {}

void PictureArea::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  scaled_ = QPixmap();
  update();
}

void PictureArea::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (picture_.isNull()) return;
  const qreal ratio = devicePixelRatioF();
  const QSize wanted = picture_.size().scaled(size() * ratio, Qt::KeepAspectRatioByExpanding);
  if (scaled_.size() != wanted) {
    scaled_ = picture_.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled_.setDevicePixelRatio(ratio);
  }
  QRectF target(QPointF(0, 0), QSizeF(wanted) / ratio);
  target.moveCenter(QRectF(rect()).center());
  QPainter(this).drawPixmap(target.topLeft(), scaled_);
}

}  // namespace tavrel
