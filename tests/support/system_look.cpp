#include "support/system_look.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QFontDatabase>

namespace tavrel::test {

void TakeSystemFont() {
#ifdef Q_OS_WIN
  constexpr int kMessageSize = 9;
  const QDir fonts(qEnvironmentVariable("WINDIR") + "/Fonts");
  for (const char* name : {"segoeui", "segoeuib", "tahoma", "tahomabd", "consola"})
    QFontDatabase::addApplicationFont(fonts.filePath(QString(name) + ".ttf"));
  QFont font;
  font.setFamilies({"Segoe UI", "Tahoma"});
  font.setPointSize(kMessageSize);
  QApplication::setFont(font);
#endif
}

}  // namespace tavrel::test
