#include "ui/shell/sample_project.h"

#include <QFile>

#include <system_error>

// The resources of a static library have to be asked for, outside any namespace.
static void InitResources() {
  Q_INIT_RESOURCE(tavrel);
}

namespace tavrel {

void InstallSampleProject(const std::filesystem::path& program_folder, Platform& platform) {
  constexpr const char* kName = "Writing for the iPod.dat";
  InitResources();
  QFile sample(QString(":/sample/") + kName);
  if (!sample.open(QIODevice::ReadOnly)) qFatal("the sample project is not compiled in");
  std::error_code error;
  if (std::filesystem::exists(program_folder / kName, error)) return;
  platform.WriteWholeFile(program_folder / kName, sample.readAll().toStdString());
}

}  // namespace tavrel
