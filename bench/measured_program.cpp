#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <cstdlib>

#include "first_paint.h"
#include "ui/shell/start.h"

namespace {

template <typename Child>
Child& Find(const QObject& parent, const QString& name) {
  auto* child = parent.findChild<Child*>(name);
  if (child == nullptr) std::exit(EXIT_FAILURE);
  return *child;
}

void ChooseFirstProject() {
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr) std::exit(EXIT_FAILURE);
  Find<QListWidget>(*dialog, "List1").setCurrentRow(0);
  Find<QPushButton>(*dialog, "Command1").click();
}

/// File > Open project with the first project of the list, until it is on the screen.
void OpenFirstProject(QWidget& window) {
  QTimer::singleShot(0, &window, ChooseFirstProject);
  Find<QAction>(window, "FileOpen").trigger();
  window.repaint();
  QCoreApplication::processEvents();
}

}  // namespace

/// The real program. It ends when its main window is painted, or with the argument "open" when it shows the
/// first project of its folder.
int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  const bool open = QCoreApplication::arguments().contains("open");
  tavrel::bench::FirstPaint painted([open](QWidget& window) {
    if (open) OpenFirstProject(window);
    tavrel::bench::ReportAndEnd();
  });
  return tavrel::RunTavrelWriter(application);
}
