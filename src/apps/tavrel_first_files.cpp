#include <QCoreApplication>

#include <exception>
#include <iostream>

#include "core/document/global.h"
#include "core/shell/program_folder.h"
#include "core/shell/settings.h"
#include "platform/system_platform.h"
#include "ui/controls/text_conversion.h"
#include "ui/shell/first_start.h"
#include "ui/shell/help_page.h"

namespace tavrel {
namespace {

/// Puts into a folder what a portable copy has beside the program: the settings, which make it one, the help
/// page, the background pictures and the sample project.
void WriteFirstFiles(const std::filesystem::path& folder) {
  const auto platform = MakeSystemPlatform();
  Global global;
  global.ProgramFolder = folder;
  EnterProgramFolder(folder, *platform);
  InstallFirstFiles(folder, *platform);
  InstallHelpPage(folder, *platform);
  DefaultSettings(global, *platform);
}

}  // namespace
}  // namespace tavrel

int main(int argc, char* argv[]) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2) {
    std::cerr << "usage: tavrel_first_files FOLDER\n";
    return 2;
  }
  try {
    tavrel::WriteFirstFiles(std::filesystem::absolute(tavrel::ToPath(arguments.at(1))));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
