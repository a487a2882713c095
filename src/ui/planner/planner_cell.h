#pragma once

#include <QWidget>

#include <vector>

#include "core/planner/plan.h"
#include "core/text/code_page.h"

class QLabel;

namespace tavrel {

class BodyField;
class TickBox;

/// One page of the planner: its number, its text, and a tick box on each side for a link that way. Its
/// controls are named as element `index` of their arrays.
class PlannerCell : public QWidget {
  Q_OBJECT

 public:
  PlannerCell(std::size_t index, QWidget* parent);

  void SetCodePage(const CodePage& code_page);
  void ShowLabel(const QString& page_number);

  void Show(const PlanCell& cell);
  PlanCell Shown() const;
  /// The same without the text.
  PlanCell Ticks() const;

  /// Whether the cell's text makes a page; blanks alone do not.
  bool IsPage() const;

  BodyField& Text() const { return *text_; }

  /// The controls that take the focus, as the eye meets them.
  std::vector<QWidget*> ControlsInOrder() const;

 signals:
  void Changed();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  TickBox* AddTick(const QString& array, const QString& caption);
  void LayOut();
  void NameControls();
  void NameForScreenReaders(const QString& text, const QString& link);

  std::size_t index_;
  QLabel* label_;
  BodyField* text_;
  TickBox* west_;
  TickBox* east_;
  TickBox* south_;
  TickBox* north_;
};

}  // namespace tavrel
