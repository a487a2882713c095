#pragma once

#include <QPlainTextEdit>

#include <string>
#include <string_view>

#include "core/text/code_page.h"
#include "ui/controls/text_field.h"

namespace tavrel {

/// The many-line text field over bytes of the code page. Line breaks are CR LF in the bytes and count as two
/// characters; every other byte, also a lone CR or LF, comes back as it went in. What enters is made fit as
/// in LineField.
class BodyField : public QPlainTextEdit, public TextField {
  Q_OBJECT

 public:
  explicit BodyField(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page) { code_page_ = &code_page; }

  std::string Bytes() const override;
  void SetBytes(std::string_view bytes);

  /// The number of bytes, without building them.
  int Length() const;

  /// Selects `length` bytes from the byte `position` on, counted from 0, and brings them into view.
  void Select(std::size_t position, std::size_t length);

  /// The selected text as other programs take it, with single line feeds.
  QString SelectedText() const;

  /// Puts a text, made fit for the field, in place of the selection or in at the caret.
  void ReplaceSelection(const QString& text);

  bool HasUndo() const override { return document()->isUndoAvailable(); }
  bool HasRedo() const override { return document()->isRedoAvailable(); }
  void Undo() override { undo(); }
  void Redo() override { redo(); }
  int Anchor() const override { return textCursor().anchor(); }
  int Caret() const override { return textCursor().position(); }
  void SetCaret(int anchor, int caret) override;

 signals:
  /// Characters that the code page does not hold became "?". If nobody listens, the field tells it itself.
  void CharactersReplaced(int count);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  int CursorPosition(std::size_t byte) const;
  void TellReplaced(int count);

  const CodePage* code_page_;
};

}  // namespace tavrel
