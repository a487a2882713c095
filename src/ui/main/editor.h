#pragma once

#include <optional>
#include <string>

#include "core/document/field_part.h"
#include "core/history/step_recorder.h"

class QWidget;

namespace tavrel {

/// The editor as the commands know it.
class Editor {
 public:
  virtual ~Editor() = default;

  /// Reads the open document's file, fills the pages grid and shows page 1. Throws RunTimeError.
  virtual void LoadDoc() = 0;
  /// Shows a page, 1 to 999, in the fields; link row 1 becomes current.
  virtual void LoadPage(int page) = 0;
  /// Rebuilds the current page's record from the fields and the links grid; the focus goes to the body.
  virtual void SavePage() = 0;

  /// Empty a grid and set its headings.
  virtual void ClearGrid1() = 0;
  virtual void ClearGrid2() = 0;
  /// Copies the link entry fields into the current row of the links grid.
  virtual void UpdateGrid1() = 0;
  /// Copies title and note into the current row of the pages grid.
  virtual void UpdateGrid2() = 0;
  /// Rewrites titles and notes of all rows of the pages grid.
  virtual void RefreshGrid2() = 0;

  /// The control with the focus, also while the menu has it; null if there is none.
  virtual QWidget* ControlWithFocus() const = 0;
  /// Where the caret is, and another number each time that a page is shown.
  virtual Place At() const = 0;
  virtual std::size_t Showing() const = 0;
  /// The same with what the fields hold.
  virtual Shown Now() const = 0;
  /// The current page's record as the next storing makes it, which is the record itself if nobody has touched
  /// the page. What stands in the link entry fields is not in the grid yet and does not count.
  virtual std::string PageToStore() const = 0;
  /// The current page's record as it would be if the fields' own redo made all typing again; nothing if they
  /// have none.
  virtual std::optional<std::string> TypedWithRedo() = 0;
  /// A field with words that no record can hold yet and that its own undo can take back: those of a link
  /// without a target, or music without a text. Null if there is none.
  virtual QWidget* FieldWithUnheldWords() const = 0;
  /// A field whose own redo can make typing again, the one with the focus first; null if there is none.
  virtual QWidget* FieldWithRedo() const = 0;
  /// Shows the document as it is now, at a place in it.
  virtual void ShowAt(const Place& place) = 0;
  /// Stores the page and shows another one, 1 to 999. Does nothing if it is shown or no document is.
  virtual void ShowPage(int page) = 0;
  /// Shows a part of a field, selected, and stores the page if it stands on another one. What is no part of
  /// the pages 1 to 999 is left alone. A link that the editor has no row for leads to its page.
  virtual void ShowPart(const FieldPart& part) = 0;

  /// Renews the music links in the lists of targets, and the page's own from its record. The lists' pages and
  /// what was typed as a link's target stay.
  virtual void RefreshMusicLinks() = 0;

  /// The two states of the window: a document is open, or the cover hides the editor.
  virtual void ShowControls() = 0;
  virtual void HideControls() = 0;
  /// Writes the open document's name above the pages grid.
  virtual void ShowDocumentName() = 0;
  /// Takes the document's name out of the window's caption.
  virtual void ResetCaption() = 0;
};

}  // namespace tavrel
