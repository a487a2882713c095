#include "ui/shell/first_start.h"

#include <QDir>
#include <QFile>

#include <system_error>

#include "ui/controls/text_conversion.h"
#include "ui/shell/look.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFirstFiles = ":/first";

void Install(const QString& resource, const fs::path& file, Platform& platform) {
  std::error_code error;
  if (fs::exists(file, error)) return;
  QFile content(resource);
  if (!content.open(QIODevice::ReadOnly)) qFatal("a file that the program carries cannot be read");
  platform.WriteWholeFile(file, content.readAll().toStdString());
}

}  // namespace

void InstallFirstFiles(const fs::path& program_folder, Platform& platform) {
  InitResources();
  for (const QFileInfo& resource : QDir(kFirstFiles).entryInfoList(QDir::Files)) {
    Install(resource.filePath(), program_folder / ToPath(resource.fileName()), platform);
  }
}

}  // namespace tavrel
