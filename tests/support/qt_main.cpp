#include <QApplication>

#include <gtest/gtest.h>

#include "support/system_look.h"

namespace {

QtMessageHandler told = nullptr;

/// What the platform without a display says of each window would hide what failed.
void TellWhatMatters(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.startsWith("This plugin does not support")) told(type, context, message);
}

}  // namespace

/// Runs the tests inside a toolkit application that needs no display.
int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  told = qInstallMessageHandler(TellWhatMatters);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  tavrel::test::TakeSystemFont();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
