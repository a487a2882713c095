#include <QApplication>

#include <gtest/gtest.h>

#include "support/system_look.h"

/// Runs the tests inside a toolkit application that needs no display.
int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tavrel::test::TakeSystemFont();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
