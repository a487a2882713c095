#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QSettings>
#include <QSplitter>
#include <QTest>
#include <QTimer>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <new>
#include <utility>

#include "support/robot.h"
#include "support/system_look.h"
#include "support/user.h"
#include "ui/shell/start.h"

namespace {

using namespace tavrel::test;
namespace fs = std::filesystem;

constexpr int kKilled = 9;

QMainWindow* MainWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "Main" && window->isVisible()) return qobject_cast<QMainWindow*>(window);
  }
  return nullptr;
}

/// Prints every message and answers it with OK.
void AnswerMessages(Robot& robot) {
  robot.Expect("MessageBox", [&robot](QWidget& widget) {
    auto& box = dynamic_cast<QMessageBox&>(widget);
    std::cout << "message: " << box.windowTitle().toStdString() << ": " << box.text().toStdString()
              << std::endl;
    AnswerMessages(robot);
    Click(*box.button(QMessageBox::Ok));
  });
}

/// Plays a step on a dialog as soon as it is up.
void PlayWhenUp(QWidget& window, const QString& name, const std::function<void(QWidget&)>& step) {
  auto* waiting = new QTimer(&window);
  QObject::connect(waiting, &QTimer::timeout, [waiting, name, step] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog->objectName() != name) return;
    waiting->stop();
    QMetaObject::invokeMethod(
        dialog, [dialog, step] { step(*dialog); }, Qt::QueuedConnection);
  });
  waiting->start(10);
}

/// Plays one command of the command line: open=NAME, title=TEXT, save, exit, close; block=FILE puts a folder
/// in a file's place and vanish moves the program's folder away; size=WIDTHxHEIGHT, panes=LEFT resizes the
/// window and its list of pages, and tell-size prints how large they are; wait-for=FILE and
/// wait-until-gone=FILE wait for a file to come and go, tell-cover prints what was brought back, and kill
/// ends the program as from outside.
void Play(QMainWindow& window, const QString& command) {
  const QString argument = command.section('=', 1);
  if (command.startsWith("open=")) {
    PlayWhenUp(window, "OpenDoc", [argument](QWidget& dialog) {
      ClickListRow(Find<QListWidget>(dialog, "List1"), argument);
      Click(dialog, "Command1");
    });
    ChooseMenu(window, "FileOpen");
  } else if (command.startsWith("title=")) {
    TypeInto(window, "Text3", argument);
  } else if (command == "save") {
    ChooseMenu(window, "FileSave");
  } else if (command.startsWith("block=")) {
    fs::remove(argument.toStdString());
    fs::create_directory(argument.toStdString());
  } else if (command.startsWith("save-as=")) {
    PlayWhenUp(window, "SaveAs", [argument](QWidget& dialog) {
      TypeInto(dialog, "Text1", argument);
      Click(dialog, "Command1");
    });
    ChooseMenu(window, "FileSaveAs");
  } else if (command == "run-out-of-memory") {
    throw std::bad_alloc();
  } else if (command == "vanish-home") {
    const fs::path home = fs::current_path().parent_path().parent_path();
    fs::rename(home, home.parent_path() / "vanished");
  } else if (command == "vanish") {
    fs::rename(fs::current_path(), fs::current_path().parent_path() / "vanished");
  } else if (command.startsWith("size=")) {
    window.resize(argument.section('x', 0, 0).toInt(), argument.section('x', 1).toInt());
  } else if (command.startsWith("panes=")) {
    auto& panes = Find<QSplitter>(window, "Panes");
    const int width = panes.sizes().value(0) + panes.sizes().value(1);
    panes.setSizes({argument.toInt(), width - argument.toInt()});
  } else if (command == "tell-size") {
    std::cout << "size: " << window.width() << "x" << window.height()
              << " panes: " << Find<QSplitter>(window, "Panes").sizes().value(0) << std::endl;
  } else if (command.startsWith("wait-for=")) {
    while (!fs::exists(argument.toStdString())) QTest::qWait(10);
  } else if (command.startsWith("wait-until-gone=")) {
    while (fs::exists(argument.toStdString())) QTest::qWait(1);
  } else if (command == "tell-cover") {
    const auto& notice = Find<QLabel>(window, "CoverRecovered");
    if (notice.isVisible()) std::cout << "cover: " << notice.text().toStdString() << std::endl;
  } else if (command == "kill") {
    // The end that no program hears of.
    std::_Exit(kKilled);
  } else if (command == "exit") {
    ChooseMenu(window, "FileExit");
  } else if (command == "close") {
    window.close();
  }
}

/// Not every system lets the environment say where programs keep what they remember.
void KeepSettingsApart() {
  const QString folder = qEnvironmentVariable("DRIVEN_WRITER_SETTINGS");
  if (!folder.isEmpty()) QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

}  // namespace

/// The program itself, with a user who plays the commands given as arguments once the main window is up.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  TakeSystemFont();
  KeepSettingsApart();
  Robot robot;
  AnswerMessages(robot);

  QStringList commands = QApplication::arguments().mid(1);
  // A command's menus and dialogs run event loops of their own; the next command waits for their end.
  bool playing = false;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    QMainWindow* window = MainWindow();
    if (window == nullptr || commands.isEmpty() || std::exchange(playing, true)) return;
    const QString command = commands.takeFirst();
    QMetaObject::invokeMethod(
        window,
        [window, command, &playing] {
          Play(*window, command);
          playing = false;
        },
        Qt::QueuedConnection);
  });
  user.start(50);
  return tavrel::RunTavrelWriter(application);
}
