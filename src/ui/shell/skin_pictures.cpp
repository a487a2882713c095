#include "ui/shell/skin_pictures.h"

#include <QFile>
#include <QFileInfo>

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

/// Nothing if the file cannot be read.
QByteArray ReadSkin(const QString& file) {
  // A pipe would wait for somebody to write into it.
  if (!QFileInfo(file).isFile()) return {};
  QFile skin(file);
  return skin.open(QIODevice::ReadOnly) ? skin.readAll() : QByteArray();
}

}  // namespace

QByteArray BackupSkin() {
  return ReadSkin(kBackupSkin);
}

SkinPictures::SkinPictures(const Global& global, PictureArea& cover, PictureArea& background)
    : global_(global), cover_(cover), background_(background) {}

void SkinPictures::LoadAtStart() {
  if (!global_.UseSkin) return;
  cover_.SetPicture(ReadSkin(SkinFile(global_, kCoverSkin)));
  background_.SetPicture(ReadSkin(SkinFile(global_, kBackgroundSkin)));
}

void SkinPictures::ApplySetting() {
  if (!global_.UseSkin) {
    cover_.SetPicture({});
    background_.SetPicture({});
    return;
  }
  const QString cover = SkinFile(global_, kCoverSkin);
  const QString background = SkinFile(global_, kBackgroundSkin);
  if (QFile::exists(cover)) cover_.SetPicture(ReadSkin(cover));
  if (QFile::exists(background)) background_.SetPicture(ReadSkin(background));
}

}  // namespace tavrel
