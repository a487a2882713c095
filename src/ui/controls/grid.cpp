#include "ui/controls/grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

#include "ui/controls/focus.h"
#include "ui/controls/grid_model.h"

namespace tavrel {
namespace {

constexpr int kCellPadding = 6;

QColor ColourOf(std::uint32_t bbggrr) {
  return QColor(static_cast<int>(bbggrr & 0xFFU), static_cast<int>((bbggrr >> 8U) & 0xFFU),
                static_cast<int>((bbggrr >> 16U) & 0xFFU));
}

}  // namespace

Grid::Grid(QWidget* parent) : QTableView(parent), model_(new GridModel(this)) {
  setModel(model_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  SizeRows();
}

void Grid::SetCodePage(const CodePage& code_page) {
  model_->SetCodePage(code_page);
}

void Grid::SetSize(int rows, int columns) {
  model_->SetSize(rows, columns);
}

void Grid::SetHeading(int column, const QString& heading, Qt::Alignment alignment) {
  model_->SetHeading(column, heading);
  model_->SetAlignment(column, alignment);
}

const std::string& Grid::TextMatrix(int row, int column) const {
  return model_->Text(row - 1, column);
}

void Grid::SetTextMatrix(int row, int column, std::string_view text) {
  model_->SetText(row - 1, column, text);
}

void Grid::SetCellBackColor(int row, int column, std::uint32_t colour) {
  model_->SetColour(row - 1, column, ColourOf(colour));
}

QColor Grid::CellBackColor(int row, int column) const {
  return model_->data(model_->index(row - 1, column), Qt::BackgroundRole).value<QBrush>().color();
}

void Grid::Clear() {
  model_->Clear();
}

int Grid::Row() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? 0 : rows.first().row() + 1;
}

void Grid::SelectRow(int row) {
  const bool scrolls = hasAutoScroll();
  setAutoScroll(false);
  selectionModel()->setCurrentIndex(model_->index(row - 1, 0),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  setAutoScroll(scrolls);
  selected_row_ = row;
}

void Grid::ShowRow(int row) {
  scrollTo(model_->index(row - 1, 0));
}

int Grid::WidthOf(const QString& sample) const {
  return fontMetrics().horizontalAdvance(sample) + 2 * kCellPadding;
}

void Grid::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_row_ = rowAt(event->position().toPoint().y()) + 1;
  QTableView::mousePressEvent(event);
}

void Grid::mouseMoveEvent(QMouseEvent* /*event*/) {
  // Dragging would select other rows than the one that is then clicked.
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  const int row = event->button() == Qt::LeftButton ? std::exchange(pressed_row_, 0) : 0;
  if (row > 0) emit Click(row);
}

void Grid::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  if (IsFocusLost(*event) && selected_row_ > 0) SelectRow(selected_row_);
}

QItemSelectionModel::SelectionFlags Grid::selectionCommand(const QModelIndex& index,
                                                           const QEvent* /*event*/) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                         : QItemSelectionModel::NoUpdate;
}

void Grid::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && Row() > 0) {
    emit Click(Row());
  } else {
    QTableView::keyPressEvent(event);
  }
}

void Grid::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) SizeRows();
}

void Grid::SizeRows() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kCellPadding);
}

}  // namespace tavrel
