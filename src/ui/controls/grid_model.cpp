#include "ui/controls/grid_model.h"

#include <QBrush>

#include "ui/controls/text_conversion.h"

namespace tavrel {

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent), code_page_(&CodePage::Windows1252()) {}

void GridModel::SetSize(int rows, int columns) {
  beginResetModel();
  rows_ = rows;
  columns_.assign(static_cast<std::size_t>(columns), {});
  cells_.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), {});
  endResetModel();
}

void GridModel::SetHeading(int column, const QString& heading) {
  columns_.at(static_cast<std::size_t>(column)).Heading = heading;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

void GridModel::SetAlignment(int column, Qt::Alignment alignment) {
  columns_.at(static_cast<std::size_t>(column)).Alignment = alignment | Qt::AlignVCenter;
}

void GridModel::SetText(int row, int column, std::string_view text) {
  Cell& cell = At(row, column);
  if (cell.Text == text) return;
  cell.Text = text;
  CellChanged(row, column);
}

void GridModel::SetColour(int row, int column, const QColor& colour) {
  Cell& cell = At(row, column);
  if (cell.Colour == colour) return;
  cell.Colour = colour;
  CellChanged(row, column);
}

void GridModel::Clear() {
  std::fill(cells_.begin(), cells_.end(), Cell{});
  if (!cells_.empty()) emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const Cell& cell = At(index.row(), index.column());
  switch (role) {
    case Qt::DisplayRole:
      return ToText(cell.Text, *code_page_).replace("\r\n", " ");
    case Qt::BackgroundRole:
      return cell.Colour.isValid() ? QVariant(QBrush(cell.Colour)) : QVariant();
    case Qt::ForegroundRole:
      // The cell colours are fixed and light, so the text on them is dark in every palette.
      return cell.Colour.isValid() ? QVariant(QBrush(Qt::black)) : QVariant();
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(columns_[static_cast<std::size_t>(index.column())].Alignment);
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const Column& column = columns_.at(static_cast<std::size_t>(section));
  if (role == Qt::DisplayRole) return column.Heading;
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(column.Alignment);
  return {};
}

const GridModel::Cell& GridModel::At(int row, int column) const {
  return cells_.at(static_cast<std::size_t>(row) * columns_.size() + static_cast<std::size_t>(column));
}

GridModel::Cell& GridModel::At(int row, int column) {
  return cells_.at(static_cast<std::size_t>(row) * columns_.size() + static_cast<std::size_t>(column));
}

void GridModel::CellChanged(int row, int column) {
  const QModelIndex changed = index(row, column);
  emit dataChanged(changed, changed);
}

}  // namespace tavrel
