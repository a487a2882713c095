#include "ui/shell/skin_pictures.h"

#include <QFile>
#include <QImage>

#include "ui/controls/picture_area.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

constexpr const char* kCoverSkin = "Skin1.jpg";
constexpr const char* kBackgroundSkin = "Skin2.jpg";
constexpr const char* kBackupSkin = "SkinBackup.jpg";

QString SkinFile(const Global& global, const char* name) {
  return ToText(global.ProgramFolder / name);
}

/// An empty picture if there is no such file. Read past the toolkit's cache, which would miss a picture that
/// was just replaced.
QPixmap LoadPicture(const QString& file) {
  return QFile::exists(file) ? QPixmap::fromImage(QImage(file)) : QPixmap();
}

}  // namespace

QPixmap BackupSkin(const Global& global) {
  return LoadPicture(SkinFile(global, kBackupSkin));
}

SkinPictures::SkinPictures(const Global& global, PictureArea& cover, QWidget& cover_text,
                           PictureArea& background)
    : global_(global), cover_(cover), cover_text_(cover_text), background_(background) {}

void SkinPictures::LoadAtStart() {
  if (!global_.UseSkin) return;
  ShowOnCover(LoadPicture(SkinFile(global_, kCoverSkin)));
  background_.SetPicture(LoadPicture(SkinFile(global_, kBackgroundSkin)));
}

void SkinPictures::ApplySetting() {
  if (!global_.UseSkin) {
    ShowOnCover({});
    background_.SetPicture({});
    return;
  }
  const QString cover = SkinFile(global_, kCoverSkin);
  const QString background = SkinFile(global_, kBackgroundSkin);
  if (QFile::exists(cover)) ShowOnCover(LoadPicture(cover));
  if (QFile::exists(background)) background_.SetPicture(LoadPicture(background));
}

void SkinPictures::ShowOnCover(const QPixmap& picture) {
  cover_.SetPicture(picture);
  cover_text_.setVisible(picture.isNull());
}

}  // namespace tavrel
