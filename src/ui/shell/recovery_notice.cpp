#include "ui/shell/recovery_notice.h"

#include <QCoreApplication>
#include <QStringList>

#include "core/text/file_names.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

QString Translated(const char* text) {
  return QCoreApplication::translate("RecoveryNotice", text);
}

QString Paragraph(const QString& heading, const QStringList& lines) {
  return lines.isEmpty() ? QString() : heading + "\n" + lines.join("\n");
}

}  // namespace

QString RecoveryNotice(const FoundAtStart& found) {
  QStringList documents;
  QStringList damaged;
  for (const Recovered& recovered : found.Documents) {
    if (!recovered.Document.empty()) documents << ToText(WithoutExtension(recovered.Document.filename()));
    if (!recovered.Damaged.empty()) damaged << ToText(recovered.Damaged.filename());
  }
  QStringList troubles;
  for (const std::string& trouble : found.Troubles) troubles << QString::fromStdString(trouble);

  QStringList paragraphs{
      Paragraph(Translated("What was not saved last time is a project of its own now (File > Open project):"),
                documents),
      Paragraph(Translated("Not all of it could be read. The file is kept in the program's folder:"),
                damaged),
      Paragraph(Translated("Something that was not saved last time could not be brought back:"), troubles)};
  paragraphs.removeAll(QString());
  return paragraphs.join("\n\n");
}

}  // namespace tavrel
