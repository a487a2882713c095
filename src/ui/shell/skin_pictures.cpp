#include "ui/shell/skin_pictures.h"

#include <QFile>
#include <QPixmap>

#include "ui/controls/picture_area.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

QString SkinFile(const Global& global, const char* name) {
  return ToText(global.ProgramFolder / name);
}

}  // namespace

SkinPictures::SkinPictures(const Global& global, PictureArea& cover, PictureArea& background)
    : global_(global), cover_(cover), background_(background) {}

void SkinPictures::LoadAtStart() {
  if (!global_.UseSkin) return;
  cover_.SetPicture(QPixmap(SkinFile(global_, "Skin1.jpg")));
  background_.SetPicture(QPixmap(SkinFile(global_, "Skin2.jpg")));
}

void SkinPictures::ApplySetting() {
  if (!global_.UseSkin) {
    cover_.SetPicture({});
    background_.SetPicture({});
    return;
  }
  const auto show = [](PictureArea& area, const QString& file) {
    if (QFile::exists(file)) area.SetPicture(QPixmap(file));
  };
  show(cover_, SkinFile(global_, "Skin1.jpg"));
  show(background_, SkinFile(global_, "Skin2.jpg"));
}

}  // namespace tavrel
