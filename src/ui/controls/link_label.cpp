#include "ui/controls/link_label.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace tavrel {
namespace {

constexpr int kLinkMargin = 2;

/// Many dark palettes leave links in a blue that is meant for white paper.
QColor ReadableLink(const QPalette& palette) {
  constexpr int kDark = 128;
  constexpr int kReadable = 160;
  const QColor link = palette.color(QPalette::Link);
  const bool on_dark = palette.color(QPalette::Window).lightness() < kDark;
  return on_dark && link.lightness() < kReadable
             ? QColor::fromHsl(link.hslHue(), link.hslSaturation(), kReadable + 30)
             : link;
}

}  // namespace

LinkLabel::LinkLabel(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
  QFont underlined = font();
  underlined.setUnderline(true);
  setFont(underlined);
}

QSize LinkLabel::sizeHint() const {
  return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * kLinkMargin, 2 * kLinkMargin);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  painter.setPen(ReadableLink(palette()));
  // An address is read from the left in every language.
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextForceLeftToRight, text());
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

}  // namespace tavrel
