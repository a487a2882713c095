#include "ui/controls/grid.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>
#include <vector>

#include "support/user.h"

namespace tavrel::test {
namespace {

class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid_.SetSize(100, 2);
    grid_.SetHeading(0, "First");
    grid_.SetHeading(1, "Second");
    grid_.resize(300, 200);
    grid_.show();
    QObject::connect(&grid_, &Grid::Click, [this](int row) { clicks_.push_back(row); });
  }

  Grid grid_;
  std::vector<int> clicks_;
};

TEST_F(GridTest, RowsAreNumberedFromOne) {
  grid_.SetTextMatrix(1, 0, "top");
  grid_.SetTextMatrix(100, 1, "bottom");
  EXPECT_EQ(grid_.TextMatrix(1, 0), "top");
  EXPECT_EQ(grid_.TextMatrix(100, 1), "bottom");
  EXPECT_EQ(grid_.model()->index(0, 0).data().toString(), "top");
}

TEST_F(GridTest, AClickTellsItsRowAndSelectsItWhole) {
  ClickRow(grid_, 4);
  EXPECT_EQ(clicks_, std::vector<int>{4});
  EXPECT_EQ(grid_.Row(), 4);
  EXPECT_EQ(grid_.selectionModel()->selectedIndexes().size(), 2);
}

TEST_F(GridTest, AClickOnTheHeadingIsNoClickOnARow) {
  QTest::mouseClick(grid_.horizontalHeader()->viewport(), Qt::LeftButton);
  EXPECT_TRUE(clicks_.empty());
  EXPECT_EQ(grid_.Row(), 0);
}

TEST_F(GridTest, EnterIsAClickOnTheSelectedRow) {
  PressKey(grid_, Qt::Key_Return);
  EXPECT_TRUE(clicks_.empty());
  grid_.SelectRow(7);
  PressKey(grid_, Qt::Key_Down);
  PressKey(grid_, Qt::Key_Enter);
  EXPECT_EQ(clicks_, std::vector<int>{8});
}

TEST_F(GridTest, SelectingARowDoesNotScrollButShowingItDoes) {
  grid_.SelectRow(90);
  EXPECT_EQ(grid_.Row(), 90);
  EXPECT_EQ(grid_.verticalScrollBar()->value(), 0);
  grid_.ShowRow(90);
  EXPECT_GT(grid_.verticalScrollBar()->value(), 0);
}

TEST_F(GridTest, ColoursAreGivenAsBlueGreenRed) {
  grid_.SetCellBackColor(2, 1, 0x0A141E);
  EXPECT_EQ(grid_.CellBackColor(2, 1), QColor(0x1E, 0x14, 0x0A));
}

TEST_F(GridTest, ClearingEmptiesCellsAndKeepsHeadings) {
  grid_.SetTextMatrix(3, 1, "x");
  grid_.SetCellBackColor(3, 1, 0xFFFFFF);
  grid_.Clear();
  EXPECT_EQ(grid_.TextMatrix(3, 1), "");
  EXPECT_FALSE(grid_.model()->index(2, 1).data(Qt::BackgroundRole).isValid());
  EXPECT_EQ(grid_.model()->headerData(1, Qt::Horizontal).toString(), "Second");
}

TEST_F(GridTest, ALineBreakInACellIsShownAsABlank) {
  grid_.SetTextMatrix(1, 0, "a\r\nb");
  EXPECT_EQ(grid_.TextMatrix(1, 0), "a\r\nb");
  EXPECT_EQ(grid_.model()->index(0, 0).data().toString(), "a b");
}

TEST_F(GridTest, TabLeavesTheGrid) {
  QWidget window;
  auto* grid = new Grid(&window);
  grid->SetSize(3, 2);
  auto* next = new QWidget(&window);
  next->setFocusPolicy(Qt::StrongFocus);
  window.show();
  ActivateWindow(window);
  grid->setFocus();
  PressKey(*grid, Qt::Key_Tab);
  EXPECT_TRUE(next->hasFocus());
}

}  // namespace
}  // namespace tavrel::test
