#pragma once

#include <QProxyStyle>

namespace tavrel {

/// The toolkit's own style where the system has none: with the program's own message icons, and tick boxes
/// that can be seen on a dark background.
class ReadableStyle : public QProxyStyle {
  Q_OBJECT

 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

 private:
  bool IsSystemStyle() const;
};

}  // namespace tavrel
