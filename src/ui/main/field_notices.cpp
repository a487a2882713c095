#include "ui/main/field_notices.h"

#include "core/document/spoiling_tags.h"
#include "ui/controls/tag_notice.h"
#include "ui/controls/text_conversion.h"
#include "ui_main_window.h"

namespace tavrel {
namespace {

constexpr int kNoticeTime = 15000;

QStringList TagsIn(Field field) {
  QStringList tags;
  for (const std::string_view tag : SpoilingTags(field))
    tags << QString::fromLatin1(tag.data(), static_cast<qsizetype>(tag.size()));
  return tags;
}

}  // namespace

FieldNotices::FieldNotices(Ui::Main& ui) : ui_(ui) {
  auto* tags = new TagNotice(ui.StatusBar);
  tags->setObjectName("TagNotice");
  tags->SetOwner(tr("A page"));
  ui_.StatusBar->addPermanentWidget(tags);
  const auto watch = [this, tags](LineField& line, Field field) {
    connect(&line, &LineField::CharactersReplaced, this, &FieldNotices::TellReplaced);
    tags->Watch(line, TagsIn(field));
  };
  watch(*ui_.Text3, Field::Title);
  watch(*ui_.Text4, Field::Note);
  watch(*ui_.Text5, Field::LinkText);
  watch(ui_.Combo1->Field(), Field::LinkTarget);
  watch(*ui_.Text6, Field::MusicText);
  watch(ui_.Combo2->Field(), Field::MusicLink);
  connect(ui_.Text1, &BodyField::CharactersReplaced, this, &FieldNotices::TellReplaced);
  tags->Watch(*ui_.Text1, TagsIn(Field::Text));
}

void FieldNotices::TellReplaced(int count) {
  ui_.StatusBar->showMessage(ReplacedNotice(count), kNoticeTime);
}

}  // namespace tavrel
