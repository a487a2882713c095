#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>

#include <gmock/gmock.h>
#include <tuple>

#include "ui/controls/elided_label.h"
#include "ui/walk/text_room.h"

namespace tavrel::test {
namespace {

using testing::IsEmpty;

constexpr QSize kSmallestScreen(1024, 700);

struct Setting {
  const char* Name;
  double FontFactor;
  Qt::LayoutDirection Direction;
};

std::ostream& operator<<(std::ostream& out, const Setting& setting) {
  return out << setting.Name;
}

constexpr std::array<Setting, 6> kSettings = {{
    {"Usual", 1, Qt::LeftToRight},
    {"UsualRightToLeft", 1, Qt::RightToLeft},
    {"Larger", 1.5, Qt::LeftToRight},
    {"LargerRightToLeft", 1.5, Qt::RightToLeft},
    {"Twice", 2, Qt::LeftToRight},
    {"TwiceRightToLeft", 2, Qt::RightToLeft},
}};

class RoomWalkTest : public WalkTest, public testing::WithParamInterface<std::tuple<Place, Setting>> {};

TEST_P(RoomWalkTest, NoTextIsCutOffAndNothingOverlaps) {
  const auto& [place, setting] = GetParam();
  EnlargeFont(setting.FontFactor);
  SetDirection(setting.Direction);
  Visit(place, [](QWidget& window) {
    EXPECT_THAT(CutTexts(window), IsEmpty());
    EXPECT_THAT(OverlappingControls(window), IsEmpty());
  });
}

std::string NameOfRoom(const testing::TestParamInfo<std::tuple<Place, Setting>>& room) {
  return std::string(std::get<0>(room.param).Name) + std::get<1>(room.param).Name;
}

INSTANTIATE_TEST_SUITE_P(Windows, RoomWalkTest,
                         testing::Combine(testing::ValuesIn(kWindows), testing::ValuesIn(kSettings)),
                         NameOfRoom);

class SizeWalkTest : public EachWindowTest {};

TEST_P(SizeWalkTest, FitsOnASmallScreen) {
  Visit(GetParam(), [](QWidget& window) {
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    EXPECT_LE(least.width(), kSmallestScreen.width());
    EXPECT_LE(least.height(), kSmallestScreen.height());
    EXPECT_LE(window.width(), kSmallestScreen.width());
    EXPECT_LE(window.height(), kSmallestScreen.height());
  });
}

TEST_P(SizeWalkTest, NothingIsCutOffWhenItIsMadeAsSmallAsItGoes) {
  Visit(GetParam(), [](QWidget& window) {
    window.resize(1, 1);
    Settle();
    EXPECT_THAT(OverlappingControls(window), IsEmpty());
    Faults cut = CutTexts(window);
    // What people have named may be of any length: its lists scroll, and its fields too.
    std::erase_if(cut, [](const std::string& fault) {
      return fault.find("List") != std::string::npos || fault.find("Field") != std::string::npos ||
             fault.find("Grid") != std::string::npos;
    });
    EXPECT_THAT(cut, IsEmpty());
  });
}

INSTANTIATE_TEST_SUITE_P(Windows, SizeWalkTest, testing::ValuesIn(kWindows), NameOfPlace);

class LongNameTest : public WalkTest {
 protected:
  void CreateProject(const QString& name) {
    Player.Expect("NewDoc", [&name](QWidget& dialog) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command1");
    });
    Find<QAction>(Window(), "FileNew").trigger();
  }
};

TEST_F(LongNameTest, ANameThatIsCutIsShownWholeAsTheTooltip) {
  const QString name =
      QString("A walk through the whole of the old town and back again ").repeated(3).trimmed();
  CreateProject(name);
  auto& label = Find<ElidedLabel>(Window(), "Label7");
  ASSERT_EQ(label.text().toStdString(), name.toStdString());
  ASSERT_LT(label.width(), label.fontMetrics().horizontalAdvance(name));
  const QPoint middle = label.rect().center();
  QHelpEvent help(QEvent::ToolTip, middle, label.mapToGlobal(middle));
  QApplication::sendEvent(&label, &help);
  EXPECT_EQ(QToolTip::text().toStdString(), name.toStdString());
  QToolTip::hideText();
}

TEST_F(LongNameTest, TheMainWindowStaysSmallEnoughForASmallScreen) {
  CreateProject(QString(200, 'W'));
  ASSERT_EQ(Find<ElidedLabel>(Window(), "Label7").text().size(), 200);
  Settle();
  EXPECT_LE(Window().minimumSizeHint().width(), kSmallestScreen.width());
  EXPECT_LE(Window().width(), kSmallestScreen.width());
}

}  // namespace
}  // namespace tavrel::test
