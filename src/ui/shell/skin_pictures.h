#pragma once

#include <QPixmap>

#include "core/document/global.h"

class QWidget;

namespace tavrel {

class PictureArea;

/// The background of the Backup dialog, "SkinBackup.jpg", whether skins are on or off; empty if there is none.
QPixmap BackupSkin(const Global& global);

/// The background pictures of the main window: "Skin1.jpg" covers it while no document is open, "Skin2.jpg"
/// lies behind the editor.
class SkinPictures {
 public:
  /// `cover_text` stands on the cover as long as that has no picture.
  SkinPictures(const Global& global, PictureArea& cover, QWidget& cover_text, PictureArea& background);

  /// With skins on, shows both; a missing file gives an empty picture.
  void LoadAtStart();

  /// With skins off, clears both. With skins on, shows those that exist; a missing file leaves what is shown.
  void ApplySetting();

 private:
  void ShowOnCover(const QPixmap& picture);

  const Global& global_;
  PictureArea& cover_;
  QWidget& cover_text_;
  PictureArea& background_;
};

}  // namespace tavrel
