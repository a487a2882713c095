#pragma once

#include <QLineEdit>

#include <string>
#include <string_view>

#include "core/text/code_page.h"
#include "ui/controls/text_field.h"

namespace tavrel {

/// A one-line text field over bytes of the code page. What is typed, pasted or dropped is made fit as it
/// enters: characters outside the code page become "?", line breaks become blanks. A line break that a
/// loaded text holds already stays.
class LineField : public QLineEdit, public TextField {
  Q_OBJECT

 public:
  explicit LineField(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page) { code_page_ = &code_page; }

  std::string Bytes() const override;
  void SetBytes(std::string_view bytes);

  /// The number that the text consists of; anything else counts as 0.
  int Number() const;

  bool HasUndo() const override { return isUndoAvailable(); }
  bool HasRedo() const override { return isRedoAvailable(); }
  void Undo() override { undo(); }
  void Redo() override { redo(); }
  int Anchor() const override;
  int Caret() const override { return cursorPosition(); }
  void SetCaret(int anchor, int caret) override;

 signals:
  /// A key was pressed in the field, whatever it did.
  void KeyPress();
  /// The focus has gone to another control (not to a menu or another window).
  void LostFocus();
  /// Characters that the code page does not hold became "?". If nobody listens, the field tells it itself.
  void CharactersReplaced(int count);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool IsFitForField(const QString& text) const;
  void InsertFitted(const QString& text);
  void PasteFitted();
  void TellReplaced(int count);

  const CodePage* code_page_;
};

}  // namespace tavrel
