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
#include "ui/shell/program_place.h"
#include "ui/shell/recovery_keeper.h"
#include "ui/shell/recovery_notice.h"
#include "ui/shell/running_program.h"
#include "ui/shell/window_memory.h"

namespace tavrel {
namespace {

/// Gives what earlier programs left unsaved.
FoundAtStart OpenProgramFolder(Global& global, Platform& platform, ProgramPlace& place) {
  global.ProgramFolder =
      FindProgramFolder(ToPath(QCoreApplication::applicationDirPath()),
                        ToPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
  EnterProgramFolder(global.ProgramFolder, platform);
  FoundAtStart found = place.Enter(global.ProgramFolder, platform);
  if (IsFirstStart(global.ProgramFolder)) InstallFirstFiles(global.ProgramFolder, platform);
  InstallHelpPage(global.ProgramFolder, platform);
  return found;
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
  ProgramPlace place;
  std::unique_ptr<RecoveryKeeper> keeper;
  int status = 0;
  program.Run([&] {
    const FoundAtStart found = OpenProgramFolder(global, *platform, place);
    window = std::make_unique<Main>(app);
    window->TellRecovered(RecoveryNotice(found));
    keeper = std::make_unique<RecoveryKeeper>(app, place.RecoveryFile(),
                                              [&window] { return window->TypedPage(); });
    QObject::connect(keeper.get(), &RecoveryKeeper::Failed, window.get(), &Main::TellNotKept);
    program.SetStoreTyped([&window] { window->StoreTyped(); });
    program.SetWhenSettled([&keeper] { keeper->Look(); });
    program.SetAfterRescue([&keeper] { keeper->Forget(); });
    QObject::connect(window.get(), &Main::Closed, &application, [] { QCoreApplication::exit(); });
    window->Form_Load();
    RestoreWindow(*window, memory);
    program.SetBeforeEnd([&] {
      RememberWindow(*window, memory);
      keeper->Forget();
      place.Leave();
    });
    window->show();
    keeper->Start();
    status = QApplication::exec();
    RememberWindow(*window, memory);
    // The close box asks nothing, nor does the end of the computer's session: what was not saved waits for
    // the next start.
    keeper->KeepLast();
  });
  return status;
}

}  // namespace tavrel
