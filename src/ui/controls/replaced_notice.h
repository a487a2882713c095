#pragma once

#include <QWidget>

namespace tavrel {

/// Tells at a field, for some seconds, how many characters the code page does not hold became "?".
void ShowReplacedNotice(QWidget& field, int count);

}  // namespace tavrel
