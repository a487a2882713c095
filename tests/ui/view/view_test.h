#pragma once

#include <QDockWidget>

#include <functional>
#include <string>
#include <vector>

#include "support/window_test.h"
#include "ui/controls/row_list.h"

namespace tavrel::test {

using Rows = std::vector<std::string>;

/// A link as a page's record holds it.
std::string LinkRecord(const std::string& text, const std::string& target);

/// Works with the panels of the View menu as a person does.
class ViewTest : public WindowTest {
 protected:
  ~ViewTest() override;

  /// "PreviewPanelDock", "CheckPanelDock" or "FindAllPanelDock".
  QDockWidget& Dock(const QString& name) { return Find<QDockWidget>(Window(), name); }
  /// Clicks a button of the panel's own frame: "close" or "float".
  void ClickFrame(const QString& dock, const QString& button);

  /// Presses a key on what has the focus, whichever window that is in.
  static void PressOnFocus(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  /// Clicks a field as it lies and types at its beginning, without leaving it.
  static void TypeInFront(QWidget& field, const QString& text);

  /// The rows of a list, "007 | Title | sentence".
  static Rows RowsOf(const RowList& list);
  /// The number of the row of a list whose text contains this; throws if there is none.
  static int RowWith(const RowList& list, const std::string& text);
  /// The row that people stand on; nothing if there is none.
  static std::string SelectedRow(const RowList& list);
  /// The search in all pages goes on in slices of time, of which a busy machine needs several.
  static void LetSearchEnd(const QWidget& panel);

  static void ClickRowOf(RowList& list, int row);
  static void DoubleClickRowOf(RowList& list, int row);
  static void PressEnterOnRowOf(RowList& list, int row);

  /// Waits until something has become true; the panels look every quarter of a second at what is written.
  static bool WaitFor(const std::function<bool()>& is_so);
  /// Waits for the next look.
  void LetPanelsLook();

  /// A page's record as it is stored.
  const std::string& Stored(int page) const { return State.Page(page); }

  /// Where people have been led: "page 2, Text3 [selected words]", "page 2, link 1, Text5 [selected words]".
  std::string Where();
};

}  // namespace tavrel::test
