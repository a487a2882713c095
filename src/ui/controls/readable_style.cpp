#include "ui/controls/readable_style.h"

#include <QPainter>
#include <QStyleOption>

namespace tavrel {
namespace {

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool box = element == PE_IndicatorCheckBox;
  if (!box || !IsDark(option->palette) || baseStyle()->name() != "fusion") return;
  QColor outline = option->palette.color(QPalette::WindowText);
  outline.setAlphaF(0.55F);
  painter->save();
  painter->setPen(outline);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

}  // namespace tavrel
