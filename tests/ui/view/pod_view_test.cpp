#include <QCheckBox>

#include <gtest/gtest.h>
#include <set>

#include "ui/view/preview_test.h"

namespace tavrel::test {
namespace {

/// Page 1 with five links, each on a line of its own, to the pages 2 to 6.
constexpr std::string_view kFiveLinks =
    "\r\n"
    " 1 ,<title>Home</title><text>Top</text><link><linktext>second page</linktext><linkto>002</linkto>"
    "<linktext>third page</linktext><linkto>003</linkto><linktext>fourth page</linktext><linkto>004</linkto>"
    "<linktext>fifth page</linktext><linkto>005</linkto><linktext>sixth page</linktext><linkto>006</linkto>"
    "</link>\r\n"
    " 2 ,<title>B</title><text>two</text><link><linktext>third page</linktext><linkto>003</linkto></link>\r\n"
    " 3 ,<title>C</title><text>three</text>\r\n"
    " 4 ,<title>D</title><text>four</text>\r\n"
    " 5 ,<title>E</title><text>five</text>\r\n"
    " 6 ,<title>F</title><text>six</text>\r\n";

class PodViewTest : public PreviewTest {
 protected:
  void OpenFiveLinks() {
    OpenDocument("Links.dat", kFiveLinks);
    OpenPreview();
  }

  /// One page without links, of at least forty lines.
  void OpenLongPage() {
    std::string words;
    for (int word = 0; word < 400; ++word) words += "word ";
    OpenDocument("Long.dat", "\r\n 1 ,<title>Long</title><text>" + words + "</text>\r\n");
    OpenPreview();
  }

  /// Which link is the current one, from 0.
  std::size_t Link() {
    const auto& note = std::get<NoteScreen>(Device().Browser().Shown());
    return note.CurrentLink().value_or(99);
  }

  /// The longest row of black points in the so-and-so-many-th line of the text, from 0, on a screen whose
  /// lines are `height` high. The letters themselves have none as long as a link's words.
  int LongestStroke(const QImage& screen, int line, int height) {
    int longest = 0;
    for (int y = height * (line + 1) + 2; y < height * (line + 2) + 2; ++y) {
      int stroke = 0;
      for (int x = 0; x < screen.width() - 10; ++x) {
        stroke = qGray(screen.pixel(x, y)) < 40 ? stroke + 1 : 0;
        longest = std::max(longest, stroke);
      }
    }
    return longest;
  }

  /// The lines of the text that are underlined, from 0.
  std::vector<int> UnderlinedLines(int height) {
    const QImage screen = ScreenPicture();
    std::vector<int> lines;
    for (int line = 0; (line + 2) * height < screen.height(); ++line) {
      if (LongestStroke(screen, line, height) > 30) lines.push_back(line);
    }
    return lines;
  }
};

using Lines = std::vector<int>;

TEST_F(PodViewTest, TheArrowKeysMoveFromLinkToLink) {
  OpenFiveLinks();
  EXPECT_EQ(Screen(), "-Home|Top\n[second page]\nthird page\nfourth page\nfifth page\nsixth page\n");
  PressKey(Device(), Qt::Key_Down);
  EXPECT_EQ(Screen(), "-Home|Top\nsecond page\n[third page]\nfourth page\nfifth page\nsixth page\n");
  PressKey(Device(), Qt::Key_Right);
  EXPECT_EQ(Link(), 2U);
  PressKey(Device(), Qt::Key_Up);
  EXPECT_EQ(Link(), 1U);
  PressKey(Device(), Qt::Key_Left);
  EXPECT_EQ(Link(), 0U);
  PressKey(Device(), Qt::Key_Up);
  EXPECT_EQ(Link(), 0U);
  for (int press = 0; press < 9; ++press) PressKey(Device(), Qt::Key_Down);
  EXPECT_EQ(Link(), 4U);
}

TEST_F(PodViewTest, TheMouseWheelMovesANotchAtATime) {
  OpenFiveLinks();
  TurnWheel(-120);
  EXPECT_EQ(Link(), 1U);
  TurnWheel(-240);
  EXPECT_EQ(Link(), 3U);
  TurnWheel(120);
  EXPECT_EQ(Link(), 2U);
  TurnWheel(240);
  EXPECT_EQ(Link(), 0U);
}

TEST_F(PodViewTest, SmallTurnsOfTheMouseWheelAddUp) {
  OpenFiveLinks();
  for (int turn = 0; turn < 3; ++turn) TurnWheel(-30);
  EXPECT_EQ(Link(), 0U);
  TurnWheel(-30);
  EXPECT_EQ(Link(), 1U);
  for (int turn = 0; turn < 7; ++turn) TurnWheel(-50);
  EXPECT_EQ(Link(), 3U) << "350 are two notches and 110";
  TurnWheel(-10);
  EXPECT_EQ(Link(), 4U);
  for (int turn = 0; turn < 3; ++turn) TurnWheel(30);
  EXPECT_EQ(Link(), 4U);
  TurnWheel(30);
  EXPECT_EQ(Link(), 3U);
}

TEST_F(PodViewTest, DraggingRoundTheWheelMovesWithTheClockAndBack) {
  OpenFiveLinks();
  DragRound(0, 60);
  EXPECT_EQ(Link(), 2U) << "a notch is 24 degrees";
  DragRound(60, 30);
  EXPECT_EQ(Link(), 1U);
  DragRound(30, 50);
  EXPECT_EQ(Link(), 1U) << "less than a notch";
  DragRound(50, 30);
  EXPECT_EQ(Link(), 1U) << "what was left over by one drag is not the next one's";
}

TEST_F(PodViewTest, DraggingAcrossTheLeftSideGoesOn) {
  OpenFiveLinks();
  DragRound(140, 215);
  EXPECT_EQ(Link(), 3U);
  DragRound(220, 145);
  EXPECT_EQ(Link(), 0U);
}

TEST_F(PodViewTest, DraggingRoundAndRoundScrollsANoteWithoutLinks) {
  OpenLongPage();
  ASSERT_EQ(Top(), 0U);
  DragRound(-80, 287);
  EXPECT_EQ(Top(), 15U) << "367 degrees";
  DragRound(287, 40);
  EXPECT_EQ(Top(), 5U) << "247 degrees back";
  TurnWheel(-1200);
  EXPECT_EQ(Top(), 15U);
}

TEST_F(PodViewTest, TheCentreFollowsTheCurrentLink) {
  OpenFiveLinks();
  PressKey(Device(), Qt::Key_Down);
  ClickAt(Look().Hub.toPoint());
  EXPECT_EQ(Screen(), "C|three\n");
}

TEST_F(PodViewTest, MenuStepsBackToTheNotesMenuAndThenStays) {
  OpenFiveLinks();
  ClickAt(Look().Hub.toPoint());
  ASSERT_EQ(Screen(), "B|two\n[third page]\n");
  ClickAt(Look().OnRing(-90));
  EXPECT_EQ(Screen(), "-Home|Top\n[second page]\nthird page\nfourth page\nfifth page\nsixth page\n");
  ClickAt(Look().OnRing(-90));
  EXPECT_EQ(Screen(), "Notes|[-Home]|B|C|D|E|F");
  ClickAt(Look().OnRing(-90));
  EXPECT_EQ(Screen(), "Notes|[-Home]|B|C|D|E|F");
}

TEST_F(PodViewTest, ClicksOnTheRingBesideMenuAndOutsideTheWheelDoNothing) {
  OpenFiveLinks();
  PressKey(Device(), Qt::Key_Down);
  const std::string before = Screen();
  const Drawing drawing = Look();
  for (const double degrees : {0.0, 90.0, 180.0, -30.0, -150.0}) {
    ClickAt(drawing.OnRing(degrees));
    EXPECT_EQ(Screen(), before) << degrees;
  }
  for (const QPoint& point : {drawing.Screen.center(), QPoint(1, 1), QPoint(3, Device().height() - 3),
                              (drawing.Hub + QPointF(drawing.Radius + 4, 0)).toPoint()}) {
    ClickAt(point);
    EXPECT_EQ(Screen(), before) << point.x() << ' ' << point.y();
  }
}

TEST_F(PodViewTest, OtherButtonsOfTheMouseDoNothing) {
  OpenFiveLinks();
  const std::string before = Screen();
  const Drawing drawing = Look();
  QTest::mouseClick(&Device(), Qt::RightButton, {}, drawing.Hub.toPoint());
  QTest::mouseClick(&Device(), Qt::MiddleButton, {}, drawing.OnRing(-90));
  EXPECT_EQ(Screen(), before);
}

TEST_F(PodViewTest, APressThatBecomesADragIsNoClick) {
  OpenFiveLinks();
  DragRound(-120, -90);
  EXPECT_EQ(Link(), 1U) << "turned by a notch, and not one step back";

  const Drawing drawing = Look();
  PressAt(drawing.OnRing(-100));
  MoveTo(drawing.OnRing(-70));
  MoveTo(drawing.OnRing(-100));
  ReleaseAt(drawing.OnRing(-100));
  EXPECT_EQ(Screen(), "-Home|Top\nsecond page\n[third page]\nfourth page\nfifth page\nsixth page\n")
      << "forth and back again";
}

TEST_F(PodViewTest, APressThatIsReleasedElsewhereIsNoClick) {
  OpenFiveLinks();
  const std::string before = Screen();
  const Drawing drawing = Look();
  PressAt(drawing.Hub.toPoint());
  MoveTo(drawing.Screen.center());
  ReleaseAt(drawing.Screen.center());
  EXPECT_EQ(Screen(), before);
  PressAt(drawing.Screen.center());
  MoveTo(drawing.Hub.toPoint());
  ReleaseAt(drawing.Hub.toPoint());
  EXPECT_EQ(Screen(), before);
  PressAt(drawing.OnRing(-90));
  ReleaseAt(drawing.Hub.toPoint());
  EXPECT_EQ(Screen(), before);
}

TEST_F(PodViewTest, EnterAndSpaceFollowAndEscStepsBack) {
  OpenFiveLinks();
  const std::string home = Screen();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    PressKey(Device(), key);
    EXPECT_EQ(Screen(), "B|two\n[third page]\n") << key;
    PressKey(Device(), Qt::Key_Escape);
    EXPECT_EQ(Screen(), home) << key;
  }
}

TEST_F(PodViewTest, TheNotesMenuLeadsOnToItsPages) {
  OpenFiveLinks();
  PressKey(Device(), Qt::Key_Escape);
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Down);
  EXPECT_EQ(Screen(), "Notes|-Home|B|C|[D]|E|F");
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "D|four\n");
  PressKey(Device(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), "Notes|-Home|B|C|[D]|E|F");
}

TEST_F(PodViewTest, OnlyTheCurrentLinkIsUnderlined) {
  OpenFiveLinks();
  constexpr int kLineHeight = 16;  // an eighth of 128
  EXPECT_EQ(UnderlinedLines(kLineHeight), Lines{1});
  PressKey(Device(), Qt::Key_Down);
  EXPECT_EQ(UnderlinedLines(kLineHeight), Lines{2});
  TurnWheel(-240);
  EXPECT_EQ(UnderlinedLines(kLineHeight), Lines{4});
}

TEST_F(PodViewTest, WhatDoesNotLeadAnywhereIsNotUnderlined) {
  OpenFiveLinks();
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Return);
  ASSERT_EQ(Screen(), "C|three\n");
  EXPECT_EQ(UnderlinedLines(16), Lines{});
}

TEST_F(PodViewTest, EveryMoveShowsInThePicture) {
  OpenFiveLinks();
  QImage before = ScreenPicture();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Down}) {
    PressKey(Device(), key);
    const QImage now = ScreenPicture();
    EXPECT_NE(now, before) << key;
    before = now;
  }
}

struct KnownScreen {
  QSize Size;
  bool IsGrey;
};

TEST_F(PodViewTest, AllScreensAreDrawnInEverySize) {
  OpenFiveLinks();
  const std::vector<KnownScreen> screens = {{{160, 128}, true},  {{138, 110}, true},  {{220, 176}, false},
                                            {{176, 132}, false}, {{320, 240}, false}, {{240, 320}, false},
                                            {{240, 376}, false}};
  ASSERT_EQ(Find<QComboBox>(Window(), "Model").count(), 7);
  ASSERT_EQ(Find<QComboBox>(Window(), "Scale").count(), 3);
  for (int model = 0; model < 7; ++model) {
    const KnownScreen& known = screens[static_cast<std::size_t>(model)];
    ChooseIn("Model", model);
    QImage single;
    for (int scale = 1; scale <= 3; ++scale) {
      ChooseIn("Scale", scale - 1);
      const Drawing drawing = Look();
      const std::string what = std::to_string(known.Size.width()) + " at " + std::to_string(scale);
      EXPECT_EQ(drawing.Screen.size(), known.Size * scale) << what;
      EXPECT_TRUE(Device().rect().contains(drawing.Screen)) << what;
      EXPECT_TRUE(Device().rect().contains((drawing.Hub + QPointF(0, drawing.Radius)).toPoint())) << what;
      const QImage screen = ScreenPicture(scale);
      if (scale == 1) single = screen;
      EXPECT_EQ(screen, single) << what << ": every point is a square of its own";
      std::set<QRgb> colours;
      for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x) colours.insert(screen.pixel(x, y));
      }
      EXPECT_GE(colours.size(), 2U) << what;
      if (!known.IsGrey) continue;
      for (const QRgb colour : colours)
        EXPECT_TRUE(colour == 0xFF000000 || colour == 0xFF555555 || colour == 0xFFAAAAAA ||
                    colour == 0xFFFFFFFF)
            << what << ": " << std::hex << colour;
    }
  }
}

TEST_F(PodViewTest, ColourScreensHaveColourAndGreyOnesHaveNone) {
  OpenFiveLinks();
  PressKey(Device(), Qt::Key_Escape);
  const auto colourful = [this](int model) {
    ChooseIn("Model", model);
    const QImage screen = ScreenPicture();
    for (int y = 0; y < screen.height(); ++y) {
      for (int x = 0; x < screen.width(); ++x) {
        const QColor colour = screen.pixelColor(x, y);
        if (colour.red() != colour.green() || colour.green() != colour.blue()) return true;
      }
    }
    return false;
  };
  for (const int grey : {0, 1}) EXPECT_FALSE(colourful(grey)) << grey;
  for (const int colour : {2, 3, 4, 5, 6}) EXPECT_TRUE(colourful(colour)) << colour;
}

TEST_F(PodViewTest, TheWheelWorksInEverySize) {
  OpenFiveLinks();
  for (const int model : {0, 1, 4, 6}) {
    for (const int scale : {0, 2}) {
      ChooseIn("Model", model);
      ChooseIn("Scale", scale);
      const std::string home = Screen();
      ClickAt(Look().Hub.toPoint());
      EXPECT_EQ(Screen(), "B|two\n[third page]\n") << model << ' ' << scale;
      ClickAt(Look().OnRing(-90));
      EXPECT_EQ(Screen(), home) << model << ' ' << scale;
      DragRound(0, 30);
      EXPECT_EQ(Link(), 1U) << model << ' ' << scale;
      DragRound(30, 0);
      EXPECT_EQ(Link(), 0U) << model << ' ' << scale;
    }
  }
}

TEST_F(PodViewTest, TheScrollBarShowsHowFarANoteIsScrolled) {
  OpenLongPage();
  // The bar stands at the right edge below the title, on a screen of 160 x 128 with lines 16 high.
  const auto black_rows = [this] {
    const QImage screen = ScreenPicture();
    std::vector<int> rows;
    for (int y = 19; y < 125; ++y) {
      if (qGray(screen.pixel(157, y)) < 40) rows.push_back(y);
    }
    return rows;
  };
  const std::vector<int> at_top = black_rows();
  ASSERT_FALSE(at_top.empty());
  EXPECT_EQ(at_top.front(), 19);
  TurnWheel(-120 * 1000);
  const std::vector<int> at_end = black_rows();
  ASSERT_FALSE(at_end.empty());
  EXPECT_GT(at_end.front(), 64);
  EXPECT_GT(at_end.back(), 120);
}

}  // namespace
}  // namespace tavrel::test
