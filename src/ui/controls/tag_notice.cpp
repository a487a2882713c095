#include "ui/controls/tag_notice.h"

#include "ui/controls/body_field.h"
#include "ui/controls/line_field.h"

namespace tavrel {

TagNotice::TagNotice(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

void TagNotice::Watch(LineField& field, const QStringList& tags) {
  connect(&field, &LineField::textChanged, this,
          [this, &field, tags](const QString& text) { Check(&field, text, tags); });
}

void TagNotice::Watch(BodyField& field, const QStringList& tags) {
  connect(&field, &BodyField::textChanged, this,
          [this, &field, tags] { Check(&field, field.toPlainText(), tags); });
}

void TagNotice::Check(const QObject* field, const QString& text, const QStringList& tags) {
  found_tags_.remove(field);
  for (const QString& tag : tags) {
    if (text.contains(tag)) found_tags_[field] = tag;
  }
  setText(found_tags_.isEmpty() ? QString() : NoticeOf(found_tags_.first()));
}

QString TagNotice::NoticeOf(const QString& tag) const {
  const QString notice = tag.startsWith("</") ? tr("%1 cannot keep what follows \"%2\" in this field.")
                                              : tr("%1 takes \"%2\" in this field for its own markup.");
  return notice.arg(owner_, tag);
}

}  // namespace tavrel
