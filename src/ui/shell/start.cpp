#include "ui/shell/start.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>

#include <memory>

#include "core/shell/messages.h"
#include "core/shell/program_folder.h"
#include "platform/system_platform.h"
#include "ui/app.h"
#include "ui/controls/message_box.h"
#include "ui/controls/text_conversion.h"
#include "ui/main/main_window.h"
#include "ui/shell/first_start.h"
#include "ui/shell/help_page.h"
#include "ui/shell/look.h"
#include "ui/shell/running_program.h"
#include "ui/shell/window_memory.h"

namespace tavrel {
namespace {

void OpenProgramFolder(Global& global, Platform& platform) {
  global.ProgramFolder =
      FindProgramFolder(ToPath(QCoreApplication::applicationDirPath()),
                        ToPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
  EnterProgramFolder(global.ProgramFolder, platform);
  if (IsFirstStart(global.ProgramFolder)) InstallFirstFiles(global.ProgramFolder, platform);
  InstallHelpPage(global.ProgramFolder, platform);
}

}  // namespace

int RunTavrelWriter(QApplication& application) {
  QApplication::setApplicationName(kProgramName);
  QApplication::setQuitOnLastWindowClosed(false);
  SetUpLook();

  const auto platform = MakeSystemPlatform();
  Global global;
  MessageBoxes messages;
  RunningProgram program(global, *platform, messages);
  App app{global, *platform, messages, program};

  QSettings memory(QSettings::IniFormat, QSettings::UserScope, kProgramName, "windows");
  // The window outlives what runs in it: whatever fails, its fields can still be rescued.
  std::unique_ptr<Main> window;
  int status = 0;
  program.Run([&] {
    OpenProgramFolder(global, *platform);
    window = std::make_unique<Main>(app);
    program.SetStoreTyped([&window] { window->StoreTyped(); });
    QObject::connect(window.get(), &Main::Closed, &application, [] { QCoreApplication::exit(); });
    window->Form_Load();
    RestoreWindow(*window, memory);
    program.SetBeforeEnd([&] { RememberWindow(*window, memory); });
    window->show();
    status = QApplication::exec();
    RememberWindow(*window, memory);
  });
  return status;
}

}  // namespace tavrel
