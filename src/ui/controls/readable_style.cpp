#include "ui/controls/readable_style.h"

#include <QPainter>
#include <QStyleOption>

namespace tavrel {
namespace {

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QString MessageIcon(QStyle::StandardPixmap icon) {
  switch (icon) {
    case QStyle::SP_MessageBoxInformation:
      return ":/icons/message-information.png";
    case QStyle::SP_MessageBoxQuestion:
      return ":/icons/message-question.png";
    case QStyle::SP_MessageBoxWarning:
      return ":/icons/message-warning.png";
    case QStyle::SP_MessageBoxCritical:
      return ":/icons/message-critical.png";
    default:
      return {};
  }
}

/// A row of dots in the middle of a splitter's handle, along it.
void DrawGrip(const QStyleOption& option, QPainter& painter) {
  constexpr int kDots = 6;
  constexpr int kDistance = 3;
  const bool upright = option.rect.height() > option.rect.width();
  const QPoint step = upright ? QPoint(0, kDistance) : QPoint(kDistance, 0);
  QPoint dot = option.rect.center() - step * (kDots - 1) / 2;
  for (int i = 0; i < kDots; ++i, dot += step) {
    painter.fillRect(QRect(dot, QSize(1, 1)), option.palette.color(QPalette::Light));
    painter.fillRect(QRect(dot + QPoint(1, 1), QSize(1, 1)), option.palette.color(QPalette::Dark));
  }
}

}  // namespace

bool ReadableStyle::IsSystemStyle() const {
  return baseStyle()->name() != "fusion";
}

QIcon ReadableStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const {
  const QString own = IsSystemStyle() ? QString() : MessageIcon(icon);
  return own.isEmpty() ? QProxyStyle::standardIcon(icon, option, widget) : QIcon(own);
}

void ReadableStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  // The styles of Windows fill the whole handle.
  if (element == CE_Splitter && IsSystemStyle()) {
    DrawGrip(*option, *painter);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool box = element == PE_IndicatorCheckBox;
  if (!box || !IsDark(option->palette) || IsSystemStyle()) return;
  QColor outline = option->palette.color(QPalette::WindowText);
  outline.setAlphaF(0.55F);
  painter->save();
  painter->setPen(outline);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

}  // namespace tavrel
