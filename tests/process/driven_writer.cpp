#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>

#include <filesystem>
#include <iostream>

#include "support/robot.h"
#include "support/user.h"
#include "ui/shell/start.h"

namespace {

using namespace tavrel::test;
namespace fs = std::filesystem;

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

/// Chooses a document as soon as the dialog is up.
void ChooseDocument(QTimer& waiting, const QString& name) {
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr || dialog->objectName() != "OpenDoc") return;
  waiting.stop();
  QMetaObject::invokeMethod(
      dialog,
      [dialog, name] {
        ClickListRow(Find<QListWidget>(*dialog, "List1"), name);
        Click(*dialog, "Command1");
      },
      Qt::QueuedConnection);
}

/// Plays one command of the command line: open=NAME, title=TEXT, save, exit, close; block=FILE puts a folder
/// in a file's place and vanish moves the program's folder away.
void Play(QMainWindow& window, const QString& command) {
  const QString argument = command.section('=', 1);
  if (command.startsWith("open=")) {
    auto* waiting = new QTimer(&window);
    QObject::connect(waiting, &QTimer::timeout, [waiting, argument] { ChooseDocument(*waiting, argument); });
    waiting->start(10);
    ChooseMenu(window, "FileOpen");
  } else if (command.startsWith("title=")) {
    TypeInto(window, "Text3", argument);
  } else if (command == "save") {
    ChooseMenu(window, "FileSave");
  } else if (command.startsWith("block=")) {
    fs::remove(argument.toStdString());
    fs::create_directory(argument.toStdString());
  } else if (command == "vanish") {
    fs::rename(fs::current_path(), fs::current_path().parent_path() / "vanished");
  } else if (command == "exit") {
    ChooseMenu(window, "FileExit");
  } else if (command == "close") {
    window.close();
  }
}

}  // namespace

/// The program itself, with a user who plays the commands given as arguments once the main window is up.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  Robot robot;
  AnswerMessages(robot);

  QStringList commands = QApplication::arguments().mid(1);
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    QMainWindow* window = MainWindow();
    if (window == nullptr || commands.isEmpty()) return;
    const QString command = commands.takeFirst();
    QMetaObject::invokeMethod(
        window, [window, command] { Play(*window, command); }, Qt::QueuedConnection);
  });
  user.start(50);
  return tavrel::RunTavrelWriter(application);
}
