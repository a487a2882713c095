#include "ui/controls/picture_area.h"

#include <QCheckBox>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include "ui/controls/picture_file.h"

namespace tavrel {
namespace {

/// The middle part of a picture that has the shape of an area.
QRect FillingPart(const QSize& picture, const QSize& area) {
  QRect part(QPoint(), area.scaled(picture, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  part.moveCenter(QRect(QPoint(), picture).center());
  return part;
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
  const auto direction = label->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
  const int flags = static_cast<int>(QStyle::visualAlignment(direction, label->alignment())) |
                    (label->wordWrap() ? Qt::TextWordWrap : 0);
  const QRect text = label->fontMetrics().boundingRect(label->contentsRect(), flags, label->text());
  return text.intersected(label->rect());
}

}  // namespace

PictureArea::PictureArea(QWidget* parent) : QWidget(parent) {}

const QPixmap& PictureArea::Picture() {
  if (picture_.isNull() && !file_bytes_.isEmpty()) {
    picture_ = DecodePicture(file_bytes_);
    if (picture_.isNull()) file_bytes_.clear();
  }
  return picture_;
}

void PictureArea::SetPicture(const QByteArray& file_bytes) {
  file_bytes_ = file_bytes;
  picture_ = QPixmap();
  update();
}

void PictureArea::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  // A picture takes many times the memory of its file.
  picture_ = QPixmap();
}

void PictureArea::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (Picture().isNull()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(rect(), picture_, FillingPart(picture_.size(), size()));
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
    if (place.isEmpty()) continue;
    painter.drawRoundedRect(place.adjusted(-kMargin, -kMargin / 2, kMargin, kMargin / 2), kCorner, kCorner);
  }
}

}  // namespace tavrel
