#include "ui/main/field_notices.h"

#include <QLabel>

#include "ui/controls/text_conversion.h"
#include "ui_main_window.h"

namespace tavrel {
namespace {

constexpr int kNoticeTime = 15000;

}  // namespace

FieldNotices::FieldNotices(Ui::Main& ui) : ui_(ui), tag_notice_(new QLabel(ui.StatusBar)) {
  tag_notice_->setObjectName("TagNotice");
  ui_.StatusBar->addPermanentWidget(tag_notice_);
  const auto watch = [this](LineField* field, const QStringList& closing_tags) {
    connect(field, &LineField::CharactersReplaced, this, &FieldNotices::TellReplaced);
    connect(field, &LineField::textChanged, this,
            [this, field, closing_tags](const QString& text) { CheckTags(field, text, closing_tags); });
  };
  watch(ui_.Text3, {"</title>"});
  watch(ui_.Text4, {"</note>"});
  watch(ui_.Text5, {"</linktext>", "</link>"});
  watch(&ui_.Combo1->Field(), {"</linkto>", "</link>"});
  watch(ui_.Text6, {"</music>"});
  watch(&ui_.Combo2->Field(), {"</music>"});
  connect(ui_.Text1, &BodyField::CharactersReplaced, this, &FieldNotices::TellReplaced);
  connect(ui_.Text1, &BodyField::textChanged, this,
          [this] { CheckTags(ui_.Text1, ui_.Text1->toPlainText(), {"</text>"}); });
}

void FieldNotices::TellReplaced(int count) {
  ui_.StatusBar->showMessage(ReplacedNotice(count), kNoticeTime);
}

void FieldNotices::CheckTags(const QObject* field, const QString& text, const QStringList& closing_tags) {
  found_tags_.remove(field);
  for (const QString& tag : closing_tags) {
    if (text.contains(tag)) found_tags_[field] = tag;
  }
  tag_notice_->setText(
      found_tags_.isEmpty()
          ? QString()
          : QString("A page cannot keep what follows \"%1\" in this field.").arg(found_tags_.first()));
}

}  // namespace tavrel
