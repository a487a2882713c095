#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

#include "first_paint.h"

/// The least that a program with a main window can be. With the argument "menu" it has a menu bar with one
/// word, for which the toolkit sets up its fonts and picture formats.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tavrel::bench::FirstPaint painted([](QWidget&) { tavrel::bench::ReportAndEnd(); });
  QMainWindow window;
  if (QCoreApplication::arguments().contains("menu")) window.menuBar()->addMenu("File");
  window.show();
  return QApplication::exec();
}
