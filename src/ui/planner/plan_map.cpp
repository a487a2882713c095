#include "ui/planner/plan_map.h"

#include <QGridLayout>
#include <QPainter>

#include "core/planner/plan_pages.h"

namespace tavrel {
namespace {

/// The room between two cells, where an arrow has its place.
constexpr int kGap = 14;
constexpr qreal kArrowHead = 4;

/// An arrow across the gap beside a cell, from `start` towards `step`.
void DrawArrow(QPainter& painter, const QPointF& start, const QPointF& step) {
  const QPointF tip = start + step * (kGap - 3);
  const QPointF side(step.y(), step.x());
  painter.drawLine(start + step * 2, tip - step * kArrowHead);
  painter.drawPolygon(QPolygonF({tip, tip - (step - side) * kArrowHead, tip - (step + side) * kArrowHead}));
}

/// The arrows of one cell. Those of opposite directions stand beside each other in their gap.
void DrawLinks(QPainter& painter, const PlanCell& cell, const QRectF& area) {
  const qreal third_x = area.width() / 3;
  const qreal third_y = area.height() / 3;
  if (cell.West == kTickOn) DrawArrow(painter, area.topLeft() + QPointF(0, 2 * third_y), {-1, 0});
  if (cell.East == kTickOn) DrawArrow(painter, area.topRight() + QPointF(0, third_y), {1, 0});
  if (cell.South == kTickOn) DrawArrow(painter, area.bottomLeft() + QPointF(third_x, 0), {0, 1});
  if (cell.North == kTickOn) DrawArrow(painter, area.topLeft() + QPointF(2 * third_x, 0), {0, -1});
}

}  // namespace

PlanMap::PlanMap(QWidget* parent) : QWidget(parent) {
  // West is on the left in every language.
  setLayoutDirection(Qt::LeftToRight);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->setSpacing(kGap);
  for (std::size_t i = 0; i < kPlanCells; ++i) {
    cells_[i] = new PlannerCell(i, this);
    connect(cells_[i], &PlannerCell::Changed, this, qOverload<>(&QWidget::update));
    layout->addWidget(cells_[i], static_cast<int>(i / kPlanColumns), static_cast<int>(i % kPlanColumns));
  }
}

void PlanMap::SetCodePage(const CodePage& code_page) {
  for (PlannerCell* cell : cells_) cell->SetCodePage(code_page);
}

void PlanMap::ShowLabels(std::int64_t first) {
  const std::array<std::string, kPlanCells> labels = PlanLabels(first);
  for (std::size_t i = 0; i < kPlanCells; ++i) cells_[i]->ShowLabel(QString::fromStdString(labels[i]));
}

void PlanMap::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  for (const PlannerCell* cell : cells_) {
    // Without a text there is no page and no link.
    const QColor colour = palette().color(cell->IsPage() ? QPalette::Highlight : QPalette::Mid);
    painter.setPen(QPen(colour, 2));
    painter.setBrush(colour);
    DrawLinks(painter, cell->Ticks(), cell->geometry());
  }
}

}  // namespace tavrel
