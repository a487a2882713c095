#include "ui/view/field_names.h"

#include <QCoreApplication>

#include "core/text/numbers.h"

namespace tavrel {
namespace {

QString Translated(const char* name) {
  return QCoreApplication::translate("FieldNames", name);
}

}  // namespace

QString FieldName(const FieldPart& part) {
  switch (part.Where) {
    case Field::Project:
      return Translated("Project");
    case Field::Page:
      return Translated("Page");
    case Field::Title:
      return Translated("Title");
    case Field::Note:
      return Translated("Note");
    case Field::Text:
      return Translated("Text");
    case Field::LinkText:
      return Translated("Link text %1").arg(part.Link);
    case Field::LinkTarget:
      return Translated("Link to %1").arg(part.Link);
    case Field::MusicText:
      return Translated("Music text");
    case Field::MusicLink:
      return Translated("Music link");
  }
  return {};
}

QString PageName(const FieldPart& part) {
  return part.Page == 0 ? QString() : QString::fromStdString(FormatPage(part.Page));
}

}  // namespace tavrel
