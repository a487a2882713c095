#pragma once

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "support/window_test.h"

namespace tavrel::test {

/// The commands of Edit > Text on the clipboard, chosen from the menu.
class TextCommandsTest : public WindowTest {
 protected:
  void SetUp() override {
    OpenDocument("Trio.dat", kTrio);
    SetClipboard("zz");
  }

  void SetClipboard(const QString& text) { QApplication::clipboard()->setText(text); }
  QString Clipboard() const { return QApplication::clipboard()->text(); }
  bool ClipboardHoldsText() const {
    const QMimeData* held = QApplication::clipboard()->mimeData();
    return held != nullptr && held->hasText();
  }

  /// Puts the caret into the body and moves it with the arrow keys to the right, selecting the last steps.
  void SelectWithKeys(int steps, int selected) {
    Click(*Body().viewport());
    PressKey(Body(), Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < steps; ++i) PressKey(Body(), Qt::Key_Right);
    for (int i = 0; i < selected; ++i) PressKey(Body(), Qt::Key_Right, Qt::ShiftModifier);
  }

  void SelectAllWithKeys() {
    Click(*Body().viewport());
    PressKey(Body(), Qt::Key_A, Qt::ControlModifier);
  }

  /// What Paste makes of a text that replaces the whole body.
  std::string Pasted(const QString& text) {
    SetClipboard(text);
    SelectAllWithKeys();
    Choose("EditPaste");
    return Body().Bytes();
  }
};

}  // namespace tavrel::test
