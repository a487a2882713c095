#pragma once

#include <QTableView>

#include <cstdint>
#include <string>
#include <string_view>

#include "core/text/code_page.h"

namespace tavrel {

class GridModel;

/// A read-only table whose rows are numbered from 1 (row 0 is the heading) and whose columns are numbered
/// from 0. One whole row is selected at a time. Cells hold bytes of the code page.
class Grid : public QTableView {
  Q_OBJECT

 public:
  explicit Grid(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page);
  void SetSize(int rows, int columns);
  void SetHeading(int column, const QString& heading, Qt::Alignment alignment = Qt::AlignLeft);

  const std::string& TextMatrix(int row, int column) const;
  void SetTextMatrix(int row, int column, std::string_view text);

  /// `colour` is 0x00BBGGRR: blue, green, red.
  void SetCellBackColor(int row, int column, std::uint32_t colour);
  QColor CellBackColor(int row, int column) const;

  /// Empties all cells; headings stay.
  void Clear();

  /// The selected row.
  int Row() const;

  /// Selects a row without scrolling: a grid that moved under the pointer would make people click on the
  /// wrong row. The keyboard may go to other rows; the selection comes back when the grid loses the focus.
  void SelectRow(int row);

  /// Scrolls just so far that the row can be seen.
  void ShowRow(int row);

  /// The width that a text takes in a column of this grid.
  int WidthOf(const QString& sample) const;

 signals:
  /// A row was clicked with the left button, or Enter was pressed on it.
  void Click(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void changeEvent(QEvent* event) override;

 private:
  void SizeRows();

  GridModel* model_;
  int selected_row_ = 0;
  int pressed_row_ = 0;
};

}  // namespace tavrel
