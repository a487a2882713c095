#pragma once

#include <QByteArray>

#include "core/document/global.h"

namespace tavrel {

class PictureArea;

/// The bytes of the Backup dialog's background, "SkinBackup.jpg" in the current folder, whether skins are on
/// or off; none if there is no such file.
QByteArray BackupSkin();

/// The background pictures of the main window: "Skin1.jpg" covers it while no document is open, "Skin2.jpg"
/// lies behind the editor.
class SkinPictures {
 public:
  SkinPictures(const Global& global, PictureArea& cover, PictureArea& background);

  /// With skins on, shows both; a missing file gives an empty picture.
  void LoadAtStart();

  /// With skins off, clears both. With skins on, shows those that exist; a missing file leaves what is shown.
  void ApplySetting();

 private:
  const Global& global_;
  PictureArea& cover_;
  PictureArea& background_;
};

}  // namespace tavrel
