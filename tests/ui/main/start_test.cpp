#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include "support/window_test.h"
#include "ui/controls/picture_area.h"

namespace tavrel::test {
namespace {

class StartTest : public WindowTest {
 protected:
  PictureArea& Cover() { return Find<PictureArea>(Window(), "Picture1"); }

  QRect ClientArea() {
    const int menu_height = Window().menuBar()->height();
    return {0, menu_height, Window().width(), Window().height() - menu_height};
  }

  QRect CoveredArea() { return {Cover().mapTo(&Window(), QPoint()), Cover().size()}; }
};

TEST_F(StartTest, TheCoverFillsTheClientAreaAndFollowsTheWindow) {
  EXPECT_TRUE(Cover().isVisible());
  EXPECT_EQ(CoveredArea(), ClientArea());
  Window().resize(1300, 900);
  Settle();
  EXPECT_EQ(CoveredArea(), ClientArea());
}

TEST_F(StartTest, NoDocumentIsOpenAndNothingWasSearched) {
  State.DocPath = "left over.dat";
  State.FindText = "left over";
  Start();
  EXPECT_TRUE(State.DocPath.empty());
  EXPECT_TRUE(State.FindText.empty());
  EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
}

TEST_F(StartTest, TheTimerOfTheLengthBarRunsWithoutADocument) {
  auto& timer = Find<QTimer>(Window(), "Timer1");
  EXPECT_TRUE(timer.isActive());
  EXPECT_EQ(timer.interval(), 1000);
}

TEST_F(StartTest, CoveredFieldsGetNoKeyStrokes) {
  OpenDocument("Guide.dat", kGuide);
  Title().setFocus();
  Choose("FileClose");
  ASSERT_TRUE(Cover().isVisible());
  EXPECT_FALSE(Title().isVisible());
  EXPECT_FALSE(Title().hasFocus());
  EXPECT_FALSE(Body().hasFocus());
}

TEST_F(StartTest, OpeningADocumentUncoversTheEditor) {
  OpenDocument("Guide.dat", kGuide);
  EXPECT_FALSE(Cover().isVisible());
  EXPECT_TRUE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
  EXPECT_EQ(Find<QLabel>(Window(), "Label7").text(), "Guide");
}

}  // namespace
}  // namespace tavrel::test
