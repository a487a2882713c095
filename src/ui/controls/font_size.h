#pragma once

#include <QWidget>

namespace tavrel {

/// Makes a widget's font larger or smaller than the one that it would have, so that it follows the user's
/// choice.
inline void ScaleFont(QWidget& widget, qreal factor) {
  QFont font = widget.font();
  font.setPointSizeF(font.pointSizeF() * factor);
  widget.setFont(font);
}

}  // namespace tavrel
