#include <QApplication>

#include "ui/shell/start.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  return tavrel::RunTavrelWriter(application);
}
