#pragma once

#include <QProxyStyle>

namespace tavrel {

/// The system's style with splitters that hide nothing of the picture behind them. Where the system has no
/// style, the toolkit's own with the program's message icons and with tick boxes that can be seen on a dark
/// background.
class ReadableStyle : public QProxyStyle {
  Q_OBJECT

 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

 private:
  bool IsSystemStyle() const;
};

}  // namespace tavrel
