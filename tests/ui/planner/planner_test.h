#pragma once

#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

#include "support/window_test.h"

class QListWidget;

namespace tavrel::test {

using Texts = std::vector<std::string>;

// The arrays of tick boxes, by where their links go.
inline constexpr const char* kWest = "Check1";
inline constexpr const char* kEast = "Check2";
inline constexpr const char* kSouth = "Check3";
inline constexpr const char* kNorth = "Check4";

/// Works with the planner beside the main window as a person does.
class PlannerTest : public WindowTest {
 protected:
  /// Opens a document and shows the planner.
  void StartPlanning(std::string_view document = kGuide);

  /// Chooses Edit > Project planner and makes the planner the active window.
  void OpenPlanner();
  static QWidget& PlannerWindow() { return TopWindow("Planner"); }

  static void TypeTop(const QString& number);
  static void TypeCell(int cell, const QString& text);
  /// Clicks tick boxes of a cell.
  static void ClickTicks(int cell, const QStringList& arrays);

  /// The text of a cell as stored.
  static std::string CellText(int cell);
  /// The values of a cell's boxes: West, East, South, North.
  static std::vector<int> Ticks(int cell);
  /// Whether the grid holds neither a text nor a tick.
  static bool IsGridEmpty();

  /// Clicks "Insert". The question is answered with OK unless the test has said otherwise.
  void Insert();
  /// Clicks "Insert" and expects that this does nothing but hide the planner.
  void ExpectRefused();

  static QStringList Labels();
  /// Waits until the cells are numbered from `first` to `last`.
  static void WaitForLabels(const QString& first, const QString& last);

  /// Clicks a button of the planner and plays `step` on the dialog that it opens.
  void Play(const QString& button, const QString& dialog, const Robot::Step& step);
  /// Clicks "Save", types a name and clicks "Save" in the dialog.
  void SavePlanAs(const QString& name);
  /// Clicks "Load", selects the row that begins with `name` and clicks "Open".
  void LoadPlanNamed(const QString& name);
};

/// The name of an element of an array of controls.
QString Element(const QString& array, int index);

/// The list of plans in a dialog, and its rows.
QListWidget& PlanList(const QWidget& dialog);
QStringList PlanRows(const QWidget& dialog);

/// A plan file: `top`, the navigation texts as designed, the five lines of the first cell, and the other
/// cells empty.
std::string PlanBytes(const std::string& top, const std::string& text = "",
                      const Texts& ticks = {" 0 ", " 0 ", " 0 ", " 0 "});

}  // namespace tavrel::test
