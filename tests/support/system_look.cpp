#include "support/system_look.h"

#include <QApplication>
#include <QFont>

namespace tavrel::test {

void TakeSystemFont() {
#ifdef Q_OS_WIN
  constexpr int kMessageSize = 9;
  QFont font;
  font.setFamilies({"Segoe UI", "Tahoma"});
  font.setPointSize(kMessageSize);
  QApplication::setFont(font);
#endif
}

}  // namespace tavrel::test
