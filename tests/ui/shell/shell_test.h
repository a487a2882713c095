#pragma once

#include <QColor>

#include <string>
#include <vector>

#include "support/window_test.h"
#include "ui/controls/picture_area.h"

namespace tavrel::test {

using Texts = std::vector<std::string>;

/// What a first start writes.
inline const std::string kDefaultSettings =
    "&H000000&\r\n&H000000&\r\n&H800000&\r\n&H000080&\r\n"
    "\r\n\r\n\r\n\r\n\r\n1\r\n"
    "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";

/// Works with the settings file, the pictures and Help > Customise.
class ShellTest : public WindowTest {
 protected:
  /// Writes a settings file with the defaults but for line 10, the skin flag. Its date lies in the past.
  void WriteSettings(const std::string& skin_flag);
  /// Writes a settings file whose date lies in the past.
  void WriteSettingsFile(const std::string& bytes);
  /// Whether the file has been written since WriteSettingsFile.
  bool SettingsWereWritten() const;

  /// Help > Customise.
  void Customise(const Robot::Step& step);
  /// Help > Customise: leaves the box ticked or unticked and clicks OK.
  void CustomiseWith(bool enable);

  /// Saves a picture of one colour as a JPEG file in the program's folder.
  void WritePicture(const std::string& name, const QColor& colour);

  PictureArea& Cover() { return Find<PictureArea>(Window(), "Picture1"); }
  PictureArea& Background() { return Find<PictureArea>(Window(), "Background"); }

  /// "red", "green" or "blue" by the picture's middle; "empty" without a picture.
  static std::string Shown(PictureArea& area);

 private:
  int pictures_written_ = 0;
};

/// "red", "green" or "blue", as far as a compressed picture can be trusted; else "other".
std::string ColourName(const QColor& colour);

}  // namespace tavrel::test
