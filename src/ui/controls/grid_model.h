#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <string>
#include <string_view>
#include <vector>

#include "core/text/code_page.h"

namespace tavrel {

/// The cells of a Grid. Rows and columns are numbered as the toolkit does, from 0 without the heading.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GridModel(QObject* parent = nullptr);

  void SetCodePage(const CodePage& code_page) { code_page_ = &code_page; }
  void SetSize(int rows, int columns);
  void SetHeading(int column, const QString& heading);
  void SetAlignment(int column, Qt::Alignment alignment);

  const std::string& Text(int row, int column) const { return At(row, column).Text; }
  void SetText(int row, int column, std::string_view text);
  void SetColour(int row, int column, const QColor& colour);

  /// Empties all cells and takes their colours away.
  void Clear();

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Cell {
    std::string Text;
    QColor Colour;
  };
  struct Column {
    QString Heading;
    Qt::Alignment Alignment = Qt::AlignLeft | Qt::AlignVCenter;
  };

  const Cell& At(int row, int column) const;
  Cell& At(int row, int column);
  void CellChanged(int row, int column);

  const CodePage* code_page_;
  int rows_ = 0;
  std::vector<Column> columns_;
  std::vector<Cell> cells_;
};

}  // namespace tavrel
