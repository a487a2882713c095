#include "first_paint.h"

#include <QApplication>
#include <QMainWindow>

/// The least that a program with a main window can be.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tavrel::bench::FirstPaint painted([](QWidget&) { tavrel::bench::ReportAndEnd(); });
  QMainWindow window;
  window.show();
  return QApplication::exec();
}
