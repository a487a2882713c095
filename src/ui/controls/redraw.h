#pragma once

#include <QCoreApplication>

namespace tavrel {

/// Lets pending events run once, so that windows are redrawn. Keys and clicks wait, so that no second command
/// starts inside the one that runs.
inline void LetWindowsRedraw() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace tavrel
