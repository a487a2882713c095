#pragma once

class QApplication;

namespace tavrel {

/// Builds the state, the platform and the main window, runs the program and gives its exit status.
int RunTavrelWriter(QApplication& application);

}  // namespace tavrel
