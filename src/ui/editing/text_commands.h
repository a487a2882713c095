#pragma once

#include <QObject>

#include "ui/controls/body_field.h"

namespace tavrel {

/// The commands of Edit > Text and Edit > Font that act on the page's text in the editor, the clipboard's
/// among them. No page changes until it is stored.
class TextCommands : public QObject {
  Q_OBJECT

 public:
  explicit TextCommands(BodyField& body);

 public slots:
  /// Without a selection the clipboard is emptied all the same.
  void EditCut_Click();
  void EditCopy_Click();
  /// An empty clipboard, or one that holds no text, deletes the selection.
  void EditPaste_Click();
  /// "Clear".
  void EditDeleteText_Click();

  void EditFontSmall_Click();
  void EditFontNormal_Click();
  void EditFontLarge_Click();

 private:
  void SetFontSize(int points);

  BodyField& body_;
};

}  // namespace tavrel
