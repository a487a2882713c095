#include "ui/shell/help_page.h"

#include <QFile>
#include <QRegularExpression>

#include <system_error>

#include "core/shell/program_info.h"
#include "ui/shell/look.h"

namespace tavrel {
namespace {

QByteArray Resource(const QString& name) {
  QFile resource(":/help/" + name);
  if (!resource.open(QIODevice::ReadOnly)) qFatal("the help page lacks %s", qPrintable(name));
  return resource.readAll();
}

}  // namespace

std::string HelpPage() {
  InitResources();
  const QString page = QString::fromUtf8(Resource(kHelpPage));
  static const QRegularExpression picture(R"re(src="help/([^"]+)")re");
  QString result;
  qsizetype copied = 0;
  for (const QRegularExpressionMatch& match : picture.globalMatch(page)) {
    result += page.mid(copied, match.capturedStart() - copied);
    result += "src=\"data:image/png;base64," + Resource(match.captured(1)).toBase64() + '"';
    copied = match.capturedEnd();
  }
  return (result + page.mid(copied)).toStdString();
}

void InstallHelpPage(const std::filesystem::path& program_folder, Platform& platform) {
  const std::filesystem::path file = program_folder / kHelpPage;
  std::error_code error;
  if (!std::filesystem::exists(file, error)) platform.WriteWholeFile(file, HelpPage());
}

}  // namespace tavrel
