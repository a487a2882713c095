#pragma once

#include <QTreeView>

namespace tavrel {

/// A list of rows with columns, of which people choose one to go where it leads.
class RowList : public QTreeView {
  Q_OBJECT

 public:
  explicit RowList(QWidget* parent = nullptr);

  int Row() const { return currentIndex().row(); }
  void SelectRow(int row);

  /// The first row in view.
  int Top() const;
  /// After the rows have been renewed: brings that row to the top again and selects another one, or none if
  /// it is negative, wherever it is.
  void Restore(int top, int selected);

 signals:
  /// A row was clicked.
  void Clicked(int row);
  /// A row was double-clicked, or Enter was pressed on it.
  void Chosen(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tavrel
