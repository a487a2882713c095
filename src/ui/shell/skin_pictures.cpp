#include "ui/shell/skin_pictures.h"

#include <QFile>
#include <QImage>
#include <QImageReader>

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

/// An empty picture if there is no such file or it holds none. Read past the toolkit's cache, which would
/// miss a picture that was just replaced; a huge one is made smaller while it is read.
QPixmap LoadPicture(const QString& file) {
  constexpr int kMostPixels = 4096;
  if (!QFile::exists(file)) return {};
  QImageReader reader(file);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  const bool huge = size.width() > kMostPixels || size.height() > kMostPixels;
  if (huge)
    reader.setScaledSize(size.scaled(kMostPixels, kMostPixels, Qt::KeepAspectRatio).expandedTo({1, 1}));
  return QPixmap::fromImage(reader.read());
}

}  // namespace

QPixmap BackupSkin() {
  return LoadPicture(kBackupSkin);
}

SkinPictures::SkinPictures(const Global& global, PictureArea& cover, PictureArea& background)
    : global_(global), cover_(cover), background_(background) {}

void SkinPictures::LoadAtStart() {
  if (!global_.UseSkin) return;
  cover_.SetPicture(LoadPicture(SkinFile(global_, kCoverSkin)));
  background_.SetPicture(LoadPicture(SkinFile(global_, kBackgroundSkin)));
}

void SkinPictures::ApplySetting() {
  if (!global_.UseSkin) {
    cover_.SetPicture({});
    background_.SetPicture({});
    return;
  }
  const QString cover = SkinFile(global_, kCoverSkin);
  const QString background = SkinFile(global_, kBackgroundSkin);
  if (QFile::exists(cover)) cover_.SetPicture(LoadPicture(cover));
  if (QFile::exists(background)) background_.SetPicture(LoadPicture(background));
}

}  // namespace tavrel
