#pragma once

#include <array>
#include <memory>

#include "core/planner/plan.h"
#include "ui/controls/dialog.h"

class QTimer;

namespace Ui {
class Planner;
}

namespace tavrel {

class Editor;
class LineField;

/// Lays out 25 pages as a map and inserts them into the document. It stays open beside the editor; closed, it
/// is only hidden and keeps what it holds.
class Planner : public Dialog {
  Q_OBJECT

 public:
  /// `main_window` is where its question is asked. The planner is a window of its own, which may go behind
  /// it.
  Planner(App& app, Editor& editor, QWidget* main_window);
  ~Planner() override;

 public slots:
  void Form_Load();
  /// "Insert".
  void Command1_Click();
  /// "Close".
  void Command2_Click();
  /// "Clear".
  void Command3_Click();
  /// "Load".
  void Command4_Click();
  /// "Save".
  void Command5_Click();
  /// "Delete".
  void Command6_Click();
  void Text2_KeyPress();
  void Timer1_Timer();

 private:
  void ConnectControls();
  void WatchTags();
  void OrderTabs();
  void ShowCaption();
  void ShowPlan(const Plan& plan);
  Plan ShownPlan() const;

  Editor& editor_;
  QWidget* main_window_;
  std::unique_ptr<Ui::Planner> ui_;
  std::array<LineField*, 4> text3_;
  QTimer* timer1_;
};

}  // namespace tavrel
