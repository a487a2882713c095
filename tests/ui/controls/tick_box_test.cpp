#include "ui/controls/tick_box.h"

#include <QTest>

#include <gtest/gtest.h>
#include <vector>

#include "support/user.h"

namespace tavrel::test {
namespace {

TEST(TickBoxTest, BeginsOff) {
  const TickBox box;
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(box.checkState(), Qt::Unchecked);
}

TEST(TickBoxTest, ShowsItsValue) {
  TickBox box;
  box.SetValue(1);
  EXPECT_EQ(box.checkState(), Qt::Checked);
  EXPECT_EQ(box.Value(), 1);
  box.SetValue(2);
  EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
  EXPECT_EQ(box.Value(), 2);
  box.SetValue(0);
  EXPECT_EQ(box.checkState(), Qt::Unchecked);
  EXPECT_EQ(box.Value(), 0);
}

TEST(TickBoxTest, ClicksTurnItOnAndOff) {
  TickBox box;
  box.resize(box.sizeHint());
  for (const int value : {1, 0, 1, 0}) {
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
    EXPECT_EQ(box.Value(), value);
  }
}

TEST(TickBoxTest, AClickTurnsAGreyedBoxOffAndNoneGreysItAgain) {
  TickBox box;
  box.resize(box.sizeHint());
  box.SetValue(2);
  for (const int value : {0, 1, 0, 1}) {
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
    EXPECT_EQ(box.Value(), value);
  }
}

TEST(TickBoxTest, TheSpaceKeyDoesWhatAClickDoes) {
  TickBox box;
  box.SetValue(2);
  for (const int value : {0, 1, 0}) {
    PressKey(box, Qt::Key_Space);
    EXPECT_EQ(box.Value(), value);
  }
}

TEST(TickBoxTest, TellsEveryChange) {
  TickBox box;
  std::vector<int> states;
  QObject::connect(&box, &TickBox::stateChanged, [&](int state) { states.push_back(state); });
  for (const int value : {2, 2, 1, 0}) box.SetValue(value);
  EXPECT_EQ(states, (std::vector<int>{Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked}));
}

}  // namespace
}  // namespace tavrel::test
