#pragma once

#include <string>
#include <vector>

#include "core/document/page_record.h"
#include "monkey/literal_history.h"
#include "ui/controls/body_field.h"
#include "ui/controls/grid.h"
#include "ui/controls/line_field.h"
#include "ui/controls/target_list.h"
#include "ui/main/main_window.h"

namespace tavrel::test {

/// The main window as a person sees it.
class Screen {
 public:
  explicit Screen(Main& window);

  Main& Window;
  LineField& Title;
  LineField& Note;
  BodyField& Body;
  LineField& LinkText;
  TargetList& LinkTarget;
  LineField& MusicText;
  TargetList& MusicLink;
  Grid& Links;
  Grid& Pages;
  LineField& FindWhat;

  /// Everything but the links.
  PageFields Fields() const;
  Link Entry() const;
  Link LinkAt(int row) const;
  bool IsCovered() const;

  /// The name of the control that has the focus in the main window, whichever window is active; empty if none
  /// has it.
  std::string Focus() const;

  /// Where the caret is in a field; for any other control, in the body.
  LiteralPlace PlaceIn(const std::string& field) const;
  QString SelectedIn(const std::string& field) const;
  /// How many places there are for the caret of that field.
  int LastCaret(const std::string& field) const;

  /// Whether a field has typing to take back, or to make again.
  bool HasUndo(const std::string& field) const;
  bool HasRedo(const std::string& field) const;
  /// A field with words that no record can hold yet and that its own undo can take back; empty: none.
  std::string FieldWithUnheldWords() const;

  /// The field whose own undo is next: the one with the focus, or else one with words that no record can
  /// hold, those of a link without a target or of music without a text. Empty if there is none.
  std::string FieldToUndo() const;
  /// The field whose own redo is next: the one with the focus, or else any.
  std::string FieldToRedo() const;

  static const std::vector<std::string>& FieldNames();

 private:
  /// One of the fields of one line; null for any other name.
  LineField* Line(const std::string& field) const;
};

}  // namespace tavrel::test
