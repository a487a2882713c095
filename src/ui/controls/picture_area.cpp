#include "ui/controls/picture_area.h"

#include <QPainter>

namespace tavrel {
namespace {

/// The middle part of a picture that has the shape of an area.
QPixmap FillingPart(const QPixmap& picture, const QSize& area) {
  QRect part(QPoint(), area.scaled(picture.size(), Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  part.moveCenter(picture.rect().center());
  return picture.copy(part);
}

}  // namespace

PictureArea::PictureArea(QWidget* parent) : QWidget(parent) {}

void PictureArea::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  scaled_ = QPixmap();
  update();
}

void PictureArea::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (picture_.isNull()) return;
  const QSize wanted = size() * devicePixelRatioF();
  if (scaled_.size() != wanted) {
    scaled_ = FillingPart(picture_, wanted).scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter(this).drawPixmap(0, 0, scaled_);
}

}  // namespace tavrel
