#include "ui/controls/picture_area.h"

#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace tavrel {
namespace {

/// The middle part of a picture that has the shape of an area.
QPixmap FillingPart(const QPixmap& picture, const QSize& area) {
  QRect part(QPoint(), area.scaled(picture.size(), Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  part.moveCenter(picture.rect().center());
  return picture.copy(part);
}

/// A form sets this property on a widget whose parts share one plate.
bool HasOwnPlate(const QWidget& widget) {
  return widget.property("plate").toBool();
}

bool NeedsPlate(const QWidget& widget) {
  const bool is_text =
      qobject_cast<const QLabel*>(&widget) != nullptr || qobject_cast<const QCheckBox*>(&widget) != nullptr;
  return widget.isVisible() && (HasOwnPlate(widget) || (is_text && !HasOwnPlate(*widget.parentWidget())));
}

/// The part of a widget that has to be read: of a label only its text.
QRect Covered(const QWidget& widget) {
  const auto* label = qobject_cast<const QLabel*>(&widget);
  if (label == nullptr) return widget.rect();
  const QSize text = label->sizeHint().boundedTo(label->size());
  const auto direction = label->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
  return QStyle::alignedRect(direction, label->alignment(), text, label->rect());
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
  QPainter painter(this);
  painter.drawPixmap(0, 0, scaled_);
  PaintPlates(painter);
}

void PictureArea::PaintPlates(QPainter& painter) const {
  constexpr int kMargin = 4;
  constexpr qreal kCorner = 5;
  QColor plate = palette().color(QPalette::Window);
  plate.setAlphaF(0.85F);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(plate);
  for (const QWidget* child : findChildren<QWidget*>()) {
    if (!NeedsPlate(*child)) continue;
    const QRect place = Covered(*child).translated(child->mapTo(this, QPoint()));
    painter.drawRoundedRect(place.adjusted(-kMargin, -kMargin / 2, kMargin, kMargin / 2), kCorner, kCorner);
  }
}

}  // namespace tavrel
