#include "ui/controls/picture_button.h"

#include <QPainter>

namespace tavrel {
namespace {

constexpr int kPadding = 4;
constexpr qreal kButtonCorner = 4;

}  // namespace

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  setIconSize(QSize(24, 24));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureButton::SetBorderStyle(int style) {
  if (style == border_style_) return;
  border_style_ = style;
  update();
}

QSize PictureButton::sizeHint() const {
  return iconSize() + QSize(2 * kPadding, 2 * kPadding);
}

void PictureButton::mouseMoveEvent(QMouseEvent* event) {
  QAbstractButton::mouseMoveEvent(event);
  emit MouseMove();
  // Accepted: the form below must not take it for a move over its own background.
  event->accept();
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor highlight = palette().color(QPalette::Highlight);
  if (isDown()) {
    QColor pressed = highlight;
    pressed.setAlphaF(0.3F);
    painter.setBrush(pressed);
  }
  painter.setPen(border_style_ == 0 ? QPen(Qt::NoPen) : QPen(highlight));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kButtonCorner, kButtonCorner);
  icon().paint(&painter, rect().adjusted(kPadding, kPadding, -kPadding, -kPadding));
}

}  // namespace tavrel
