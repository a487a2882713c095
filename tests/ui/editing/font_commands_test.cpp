#include <QAction>

#include <string>
#include <vector>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

class FontCommandsTest : public WindowTest {
 protected:
  std::vector<std::string> CheckedItems() {
    std::vector<std::string> checked;
    for (const char* item : {"EditFontSmall", "EditFontNormal", "EditFontLarge"}) {
      if (Find<QAction>(Window(), item).isChecked()) checked.emplace_back(item);
    }
    return checked;
  }

  void ExpectFont(int points, const std::string& item) {
    EXPECT_EQ(Body().font().pointSize(), points);
    EXPECT_EQ(CheckedItems(), std::vector<std::string>{item});
  }
};

TEST_F(FontCommandsTest, TextIsNormalAtFirst) {
  ExpectFont(10, "EditFontNormal");
  OpenDocument("Trio.dat", kTrio);
  ExpectFont(10, "EditFontNormal");
}

TEST_F(FontCommandsTest, EachSizeChecksItsItemOnly) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditFontSmall");
  ExpectFont(8, "EditFontSmall");
  Choose("EditFontLarge");
  ExpectFont(12, "EditFontLarge");
  Choose("EditFontNormal");
  ExpectFont(10, "EditFontNormal");
}

TEST_F(FontCommandsTest, TheSizeChosenAgainStaysChecked) {
  OpenDocument("Trio.dat", kTrio);
  for (const char* item : {"EditFontNormal", "EditFontLarge", "EditFontLarge"}) Choose(item);
  ExpectFont(12, "EditFontLarge");
}

TEST_F(FontCommandsTest, LinesGrowWithTheSize) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditFontSmall");
  const int small = Body().cursorRect().height();
  Choose("EditFontLarge");
  EXPECT_GT(Body().cursorRect().height(), small);
}

TEST_F(FontCommandsTest, TheSizeStaysOverPagesAndProjectsAndIsNotSaved) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditFontLarge");
  TypeInto(Body(), "typed");
  ClickRow(PagesGrid(), 2);
  ExpectFont(12, "EditFontLarge");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>A</title><text>typed</text>\r\n"
            " 2 ,<title>B</title><text>two</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
  Choose("FileClose");
  OpenDocument("Guide.dat", kGuide);
  ExpectFont(12, "EditFontLarge");
}

TEST_F(FontCommandsTest, ASizeLeavesWhatIsTypedAndSelectedAlone) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "edited");
  Body().Select(1, 1);
  Choose("EditFontSmall");
  EXPECT_EQ(Title().Bytes(), "edited");
  EXPECT_EQ(Body().SelectedText(), "n");
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>one</text>");
}

}  // namespace
}  // namespace tavrel::test
