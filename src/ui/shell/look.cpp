#include "ui/shell/look.h"

#include <QApplication>

#include "ui/controls/readable_style.h"

// The resources of a static library have to be asked for, outside any namespace.
static void InitLibraryResources() {
  Q_INIT_RESOURCE(tavrel);
}

namespace tavrel {

void InitResources() {
  InitLibraryResources();
}

QIcon ProgramIcon() {
  InitResources();
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QString(":/icons/tavrel-%1.png").arg(size));
  return icon;
}

void SetUpLook() {
  InitResources();
  QApplication::setStyle(new ReadableStyle);
  QApplication::setWindowIcon(ProgramIcon());
}

}  // namespace tavrel
