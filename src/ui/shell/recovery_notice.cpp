#include "ui/shell/recovery_notice.h"

#include <QCoreApplication>
#include <QStringList>

#include "core/text/file_names.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

constexpr int kMostLines = 8;
constexpr int kLongestName = 60;

QString Translated(const char* text) {
  return QCoreApplication::translate("RecoveryNotice", text);
}

/// A name that fits on the cover.
QString ShortName(const std::filesystem::path& name) {
  const QString text = ToText(name);
  return text.size() <= kLongestName ? text : text.left(kLongestName) + "...";
}

QString Paragraph(const QString& heading, QStringList lines) {
  if (lines.isEmpty()) return {};
  const auto more = lines.size() - kMostLines;
  if (more > 0) {
    lines = lines.mid(0, kMostLines);
    lines << Translated("and %1 more").arg(more);
  }
  return heading + "\n" + lines.join("\n");
}

}  // namespace

QString RecoveryNotice(const FoundAtStart& found) {
  QStringList documents;
  QStringList damaged;
  for (const Recovered& recovered : found.Documents) {
    if (!recovered.Document.empty()) documents << ShortName(WithoutExtension(recovered.Document.filename()));
    if (!recovered.Damaged.empty()) damaged << ShortName(recovered.Damaged.filename());
  }
  QStringList troubles;
  for (const std::string& trouble : found.Troubles) troubles << QString::fromStdString(trouble);

  QStringList paragraphs{
      Paragraph(Translated("What was not saved last time is a project of its own now "
                           "(File\u00A0>\u00A0Open\u00A0project):"),
                documents),
      Paragraph(Translated("What was kept is damaged. The program's folder holds it as it is:"), damaged),
      Paragraph(Translated("Something was left from last time that could not be put in order:"), troubles)};
  if (!found.IsPlaceFree) {
    paragraphs << Translated(
        "What you type is kept only when you save: the program's folder cannot be written to.");
  }
  paragraphs.removeAll(QString());
  return paragraphs.join("\n\n");
}

}  // namespace tavrel
