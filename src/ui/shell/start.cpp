#include "ui/shell/start.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

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

void OpenProgramFolder(Global& global, Platform& platform) {
  global.ProgramFolder =
      FindProgramFolder(ToPath(QCoreApplication::applicationDirPath()),
                        ToPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
  EnterProgramFolder(global.ProgramFolder, platform);
  if (IsFirstStart(global.ProgramFolder)) InstallFirstFiles(global.ProgramFolder, platform);
  InstallHelpPage(global.ProgramFolder, platform);
}

/// What keeps drafts while the program runs.
struct Keeping {
  ProgramPlace Place;
  std::unique_ptr<RecoveryKeeper> Keeper;
};

/// Brings back what earlier programs left unsaved, and keeps drafts from now on.
void StartKeeping(Keeping& keeping, App& app, RunningProgram& program, Main& window) {
  window.TellRecovered(RecoveryNotice(keeping.Place.Enter(app.State.ProgramFolder, app.System)));
  keeping.Keeper = std::make_unique<RecoveryKeeper>(app, keeping.Place.RecoveryFile(),
                                                    [&window] { return window.TypedPage(); });
  RecoveryKeeper* keeper = keeping.Keeper.get();
  QObject::connect(keeper, &RecoveryKeeper::Failed, &window, &Main::TellNotKept);
  program.SetWhenSettled([keeper] { keeper->Look(); });
  program.SetAfterRescue([keeper] { keeper->Forget(); });
  keeper->Start();
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
  Keeping keeping;
  int status = 0;
  program.Run([&] {
    OpenProgramFolder(global, *platform);
    window = std::make_unique<Main>(app);
    program.SetStoreTyped([&window] { window->StoreTyped(); });
    QObject::connect(window.get(), &Main::Closed, &application, [] { QCoreApplication::exit(); });
    window->Form_Load();
    RestoreWindow(*window, memory);
    program.SetBeforeEnd([&] {
      RememberWindow(*window, memory);
      if (keeping.Keeper) keeping.Keeper->Forget();
      keeping.Place.Leave();
    });
    window->show();
    // Locks are flushed to the disk, which the window need not wait for.
    QTimer::singleShot(0, window.get(),
                       [&] { program.Run([&] { StartKeeping(keeping, app, program, *window); }); });
    status = QApplication::exec();
    RememberWindow(*window, memory);
    // The close box asks nothing, nor does the end of the computer's session: what was not saved waits for
    // the next start.
    if (keeping.Keeper) keeping.Keeper->KeepLast();
  });
  return status;
}

}  // namespace tavrel
