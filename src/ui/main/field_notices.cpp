#include "ui/main/field_notices.h"

#include "ui/controls/tag_notice.h"
#include "ui/controls/text_conversion.h"
#include "ui_main_window.h"

namespace tavrel {
namespace {

constexpr int kNoticeTime = 15000;

}  // namespace

FieldNotices::FieldNotices(Ui::Main& ui) : ui_(ui) {
  auto* tags = new TagNotice(ui.StatusBar);
  tags->setObjectName("TagNotice");
  tags->SetOwner(tr("A page"));
  ui_.StatusBar->addPermanentWidget(tags);
  const auto watch = [this, tags](LineField& field, const QStringList& spoiling_tags) {
    connect(&field, &LineField::CharactersReplaced, this, &FieldNotices::TellReplaced);
    tags->Watch(field, spoiling_tags);
  };
  watch(*ui_.Text3, {"</title>", "<note>", "<text>", "<link>", "<music>"});
  watch(*ui_.Text4, {"</note>", "<title>", "<text>", "<link>", "<music>"});
  watch(*ui_.Text5, {"</linktext>", "<title>", "</link>", "<linktext>", "<linkto>", "<music>"});
  watch(ui_.Combo1->Field(), {"</linkto>", "</link>", "<linktext>", "<linkto>", "<music>"});
  watch(*ui_.Text6, {"</music>", "<title>", "<music>"});
  watch(ui_.Combo2->Field(), {"</music>"});
  connect(ui_.Text1, &BodyField::CharactersReplaced, this, &FieldNotices::TellReplaced);
  tags->Watch(*ui_.Text1, {"</text>", "<title>", "<note>", "</link>", "<linktext>", "<linkto>", "<music>"});
}

void FieldNotices::TellReplaced(int count) {
  ui_.StatusBar->showMessage(ReplacedNotice(count), kNoticeTime);
}

}  // namespace tavrel
