#pragma once

#include <QWidget>

#include <array>
#include <cstdint>

#include "core/planner/plan.h"
#include "core/text/code_page.h"
#include "ui/planner/planner_cell.h"

namespace tavrel {

/// The planner's 25 cells in rows of five, with an arrow between them for each link.
class PlanMap : public QWidget {
  Q_OBJECT

 public:
  explicit PlanMap(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page);

  /// Numbers the cells from `first`.
  void ShowLabels(std::int64_t first);

  const std::array<PlannerCell*, kPlanCells>& Cells() const { return cells_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::array<PlannerCell*, kPlanCells> cells_;
};

}  // namespace tavrel
