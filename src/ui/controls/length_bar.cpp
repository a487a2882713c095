#include "ui/controls/length_bar.h"

#include <QPainter>

#include <algorithm>

namespace tavrel {
namespace {

constexpr qreal kTwipsPerPixel = 15;
constexpr int kHeight = 6;

}  // namespace

LengthBar::LengthBar(QWidget* parent) : QWidget(parent) {}

void LengthBar::SetWidth(int twips) {
  const int width = std::clamp(twips, 0, kFullWidth);
  if (width == width_) return;
  width_ = width;
  setAccessibleDescription(tr("%1 of %2 characters").arg(width_).arg(kFullWidth));
  update();
}

QSize LengthBar::sizeHint() const {
  return {static_cast<int>(kFullWidth / kTwipsPerPixel) + 1, kHeight};
}

void LengthBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  if (isRightToLeft()) {
    painter.translate(width(), 0);
    painter.scale(-1, 1);
  }
  const auto draw = [&](int twips, const QColor& colour) {
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(0, 0, twips / kTwipsPerPixel, kHeight), kHeight / 2.0, kHeight / 2.0);
  };
  QColor track = palette().color(QPalette::WindowText);
  track.setAlphaF(0.15F);
  draw(kFullWidth, track);
  if (width_ > 0) draw(width_, palette().color(QPalette::Highlight));
}

}  // namespace tavrel
