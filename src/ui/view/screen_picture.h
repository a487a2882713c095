#pragma once

#include <QFont>
#include <QImage>

#include "core/preview/note_screen.h"
#include "core/preview/pod_browser.h"

namespace tavrel {

/// How a screen is divided. The devices' fonts are not documented, so this comes near and no more.
struct ScreenLook {
  explicit ScreenLook(const ScreenModel& model);

  ScreenModel Model;
  QFont Font;
  int LineHeight;   ///< also of the title
  int LinesHeight;  ///< of what is below the title
  int TextWidth;    ///< of a line

  ScreenLayout Layout() const;
};

/// The screen, one point for each of the device's.
QImage PictureOf(const PodBrowser::Screen& screen, const ScreenLook& look);

}  // namespace tavrel
