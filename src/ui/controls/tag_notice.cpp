#include "ui/controls/tag_notice.h"

#include "ui/controls/body_field.h"
#include "ui/controls/line_field.h"

namespace tavrel {

TagNotice::TagNotice(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

void TagNotice::Watch(LineField& field, const QStringList& closing_tags) {
  connect(&field, &LineField::textChanged, this,
          [this, &field, closing_tags](const QString& text) { Check(&field, text, closing_tags); });
}

void TagNotice::Watch(BodyField& field, const QStringList& closing_tags) {
  connect(&field, &BodyField::textChanged, this,
          [this, &field, closing_tags] { Check(&field, field.toPlainText(), closing_tags); });
}

void TagNotice::Check(const QObject* field, const QString& text, const QStringList& closing_tags) {
  found_tags_.remove(field);
  for (const QString& tag : closing_tags) {
    if (text.contains(tag)) found_tags_[field] = tag;
  }
  setText(
      found_tags_.isEmpty()
          ? QString()
          : QString("%1 cannot keep what follows \"%2\" in this field.").arg(owner_, found_tags_.first()));
}

}  // namespace tavrel
