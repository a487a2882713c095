#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "support/window_test.h"
#include "ui/controls/picture_area.h"

namespace tavrel::test {
namespace {

using StartTest = WindowTest;

TEST_F(StartTest, CoversTheWholeClientAreaAndDisablesTheEditMenu) {
  auto& cover = Find<PictureArea>(Window(), "Picture1");
  EXPECT_TRUE(cover.isVisible());
  const int menu_height = Window().menuBar()->height();
  EXPECT_EQ(QRect(cover.mapTo(&Window(), QPoint()), cover.size()),
            QRect(0, menu_height, Window().width(), Window().height() - menu_height));
  EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
  EXPECT_TRUE(State.DocPath.empty());
  EXPECT_TRUE(State.FindText.empty());

  auto& timer = Find<QTimer>(Window(), "Timer1");
  EXPECT_TRUE(timer.isActive());
  EXPECT_EQ(timer.interval(), 1000);
}

TEST_F(StartTest, OpensADocument) {
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(PagesGrid().TextMatrix(5, 1), "Five");
  EXPECT_EQ(Title().Bytes(), "One");
  EXPECT_EQ(PagesGrid().Row(), 1);
  EXPECT_EQ(Save(), kGuide);
}

}  // namespace
}  // namespace tavrel::test
