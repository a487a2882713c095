#pragma once

#include <QSettings>
#include <QTest>
#include <QVariant>

#include <memory>

#include "support/window_test.h"
#include "ui/shell/window_memory.h"

namespace tavrel::test {

/// A main window that comes up with what is remembered, in a file beside the test's own settings.
class RememberedWindowTest : public WindowTest {
 protected:
  QString MemoryFile() const { return QString::fromStdString((Folder.Path() / "windows.ini").string()); }

  std::unique_ptr<Main> NewWindow() {
    auto window = std::make_unique<Main>(Application);
    window->Form_Load();
    {
      const QSettings memory(MemoryFile(), QSettings::IniFormat);
      RestoreWindow(*window, memory);
    }
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    window->ShowControls();
    Settle();
    return window;
  }

  void Remember(const Main& window) const {
    QSettings memory(MemoryFile(), QSettings::IniFormat);
    RememberWindow(window, memory);
  }

  void SetRemembered(const QString& key, const QVariant& value) const {
    QSettings(MemoryFile(), QSettings::IniFormat).setValue(key, value);
  }

  QVariant Remembered(const QString& key) const {
    return QSettings(MemoryFile(), QSettings::IniFormat).value(key);
  }
};

}  // namespace tavrel::test
