#pragma once

#include <string>

class QKeyEvent;
class QWidget;

namespace tavrel {

/// What the fields for text have in common.
class TextField {
 public:
  virtual ~TextField() = default;

  /// What stands in it, in the code page.
  virtual std::string Bytes() const = 0;

  /// Whether there is typing to take back, or to make again.
  virtual bool HasUndo() const = 0;
  virtual bool HasRedo() const = 0;
  virtual void Undo() = 0;
  virtual void Redo() = 0;

  /// The characters, from 0, at which the selection began and in front of which the caret stands. Beyond the
  /// text means at its end.
  virtual int Anchor() const = 0;
  virtual int Caret() const = 0;
  virtual void SetCaret(int anchor, int caret) = 0;
};

/// The field that a control is, or that a list has; null if there is none.
TextField* FieldOf(QWidget* control);

/// Whether a key is one for Undo or Redo. Fields leave it to the window that has such a command.
bool IsUndoOrRedo(const QKeyEvent& key);

}  // namespace tavrel
