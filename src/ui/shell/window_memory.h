#pragma once

class QSettings;
class QWidget;

namespace tavrel {

/// Where a window stood when the program last ended, and where its splitters were. Kept by the system for the
/// user, apart from the program's own settings.
void RememberWindow(const QWidget& window, QSettings& memory);

/// Puts a window and its splitters back there. What is not remembered, or makes no sense, stays as designed.
void RestoreWindow(QWidget& window, const QSettings& memory);

}  // namespace tavrel
