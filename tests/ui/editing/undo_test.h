#pragma once

#include <string>
#include <string_view>

#include "support/window_test.h"

namespace tavrel::test {

/// Two music links, and pages 1, 2, 3, 5 and 999 with every kind of content, in the order in which the editor
/// writes.
extern const std::string_view kWorld;

/// The records of kWorld.
extern const std::string kWorldPage1;
extern const std::string kWorldPage2;
extern const std::string kWorldPage3;

inline constexpr int kMostPresses = 5;  ///< of the key until one field's typing is gone

/// Takes back and makes again what was done, as a person does, and looks at all that this may change.
class UndoTest : public WindowTest {
 protected:
  void OpenWorld() { OpenDocument("World.dat", kWorld); }

  void Show(int page) { ClickRow(PagesGrid(), page); }

  /// Presses the key on what has the focus in the main window.
  void PressUndo();
  void PressRedo();
  void PressOtherRedo();

  /// Clicks a button of the main window, which may open a dialog.
  void ClickButton(const QString& name);

  /// What the Edit menu says when it is opened with the mouse: "Undo typing", or "Undo (grey)".
  std::string UndoItem() { return ItemInMenu("EditUndo"); }
  std::string RedoItem() { return ItemInMenu("EditRedo"); }

  /// The status bar's text.
  std::string Told();

  /// The name of the control with the focus.
  std::string Focus();

  /// The pages and music links that there are, a line each.
  std::string Document() const;
  /// The fields' bytes, a line each.
  std::string Fields();
  /// The pages grid's rows that are not blank and white, with their colours.
  std::string PagesRows();
  /// All that a person sees of the document, and the document.
  std::string Screen();

  /// Makes a step "Clear page 5", and then shows page 2 as it is.
  void ClearPage5();

  /// Chooses a menu item that opens a dialog, types into its fields Text1, Text2... and clicks a button.
  void Answer(const QString& menu_item, const QString& dialog, const QStringList& texts,
              const QString& button);
  /// Opens the planner, writes a text into its first cell and inserts the plan.
  void InsertPlan();

 private:
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers);
  std::string ItemInMenu(const QString& action);
  std::string LinksRows();
  std::string CaretAndFocus();
};

}  // namespace tavrel::test
