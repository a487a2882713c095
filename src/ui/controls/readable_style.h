#pragma once

#include <QProxyStyle>

namespace tavrel {

/// The toolkit's own style, with tick boxes that can be seen on a dark background.
class ReadableStyle : public QProxyStyle {
  Q_OBJECT

 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace tavrel
