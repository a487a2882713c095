#include "ui/shell/help_page.h"

#include <QFile>
#include <QRegularExpression>

#include <system_error>

#include "core/shell/program_info.h"
#include "core/text/run_time_error.h"
#include "ui/controls/text_conversion.h"
#include "ui/shell/look.h"

namespace tavrel {
namespace {

/// The page's first line. It names the version that it describes.
std::string FirstLine() {
  return "<!DOCTYPE html><!-- Tavrel Writer " + VersionNumber() + " -->";
}

/// Whether a file is this program's page for another version. A page of the user's own is not.
bool IsOutdated(const std::filesystem::path& file) {
  std::error_code error;
  QFile page(ToText(file));
  if (!std::filesystem::is_regular_file(file, error) || !page.open(QIODevice::ReadOnly)) return false;
  const std::string first_line = page.readLine().trimmed().toStdString();
  return first_line.starts_with("<!DOCTYPE html><!-- Tavrel Writer ") && first_line != FirstLine();
}

QByteArray Resource(const QString& name) {
  QFile resource(":/help/" + name);
  if (!resource.open(QIODevice::ReadOnly)) qFatal("the help page lacks %s", qPrintable(name));
  return resource.readAll();
}

}  // namespace

std::string HelpPage() {
  InitResources();
  QString page = QString::fromUtf8(Resource(kHelpPage));
  page.replace(0, page.indexOf('\n'), QString::fromStdString(FirstLine()));
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
  if (std::filesystem::exists(file, error) && !IsOutdated(file)) return;
  try {
    platform.WriteWholeFile(file, HelpPage());
  } catch (const FileError&) {
    // The browser will say that the page is missing.
  }
}

}  // namespace tavrel
