#include "ui/controls/replaced_notice.h"

#include <QToolTip>

#include "ui/controls/text_conversion.h"

namespace tavrel {

void ShowReplacedNotice(QWidget& field, int count) {
  QToolTip::showText(field.mapToGlobal(field.rect().bottomLeft()), ReplacedNotice(count), &field);
}

}  // namespace tavrel
