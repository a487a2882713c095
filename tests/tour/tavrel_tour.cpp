#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include <exception>
#include <iostream>

#include "support/system_look.h"
#include "tour/tour.h"
#include "ui/controls/text_conversion.h"
#include "ui/shell/look.h"

namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(45, 45, 48));
  palette.setColor(QPalette::Base, QColor(30, 30, 30));
  palette.setColor(QPalette::AlternateBase, QColor(45, 45, 48));
  palette.setColor(QPalette::Highlight, QColor(38, 110, 190));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

}  // namespace

/// tavrel_tour --out FOLDER [--dark] [--mirrored]
int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = QApplication::arguments();
  const qsizetype out = arguments.indexOf("--out");
  if (out < 0 || out + 1 >= arguments.size()) {
    std::cerr << "usage: tavrel_tour --out FOLDER [--dark] [--mirrored]\n";
    return 2;
  }
  tavrel::test::TakeSystemFont();
  tavrel::SetUpLook();
  if (arguments.contains("--dark")) QApplication::setPalette(DarkPalette());
  if (arguments.contains("--mirrored")) QApplication::setLayoutDirection(Qt::RightToLeft);

  try {
    tavrel::test::Tour tour(tavrel::ToPath(arguments[out + 1]));
    return tour.Play() ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "the tour broke off: " << error.what() << '\n';
    return 1;
  }
}
