#pragma once

class QSettings;
class QWidget;

namespace tavrel {

/// Where a window stood when the program last ended, where its splitters and panels were, and what was chosen
/// in the controls that have the property "remembered". Kept by the system for the user, apart from the
/// program's own settings.
void RememberWindow(const QWidget& window, QSettings& memory);

/// Puts all of it back. What is not remembered, or makes no sense, stays as designed.
void RestoreWindow(QWidget& window, const QSettings& memory);

}  // namespace tavrel
