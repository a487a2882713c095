#include <QAction>
#include <QApplication>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <initializer_list>

#include "ui/shell/remembered_window_test.h"
#include "ui/view/preview_test.h"
#include "ui/view/view_test.h"

namespace tavrel::test {
namespace {

/// What a preview shows that has been walked in.
class WalkedPreviewTest : public PreviewTest {
 protected:
  void OpenOnPageTwo() {
    OpenDocument("Guide.dat", kGuide);
    OpenPreview();
    PressKey(Device(), Qt::Key_Return);
    ASSERT_EQ(Screen(), kPageTwo);
  }

  static constexpr const char* kPageTwo = "Two|Beta\n[One]\n";
};

TEST_F(WalkedPreviewTest, TypingInThePagesNoteLeavesItWhereItIs) {
  OpenOnPageTwo();
  TypeInto(Note(), "remember the milk");
  LetPanelsLook();
  EXPECT_EQ(Screen(), kPageTwo);
  PressKey(Device(), Qt::Key_Escape);
  PressKey(Device(), Qt::Key_Escape);
  const std::string menu = "Notes|[-One]|Five|Last|Two";
  ASSERT_EQ(Screen(), menu);
  TypeInto(Note(), "and the bread");
  LetPanelsLook();
  EXPECT_EQ(Screen(), menu);
  TypeInto(Title(), "Uno");
  EXPECT_TRUE(Comes("-Uno|Alpha\n[Two]\nFive\n")) << Screen();
}

TEST_F(WalkedPreviewTest, AfterTheProjectWasClosedItsLinksLeadTheEditorNowhere) {
  OpenDocument("Guide.dat", kGuide);
  OpenPreview();
  Tick("GoAlong");
  // The device keeps what it shows until the next look.
  Find<QTimer>(Window(), "LookTimer").stop();
  Choose("FileClose");
  ASSERT_FALSE(State.IsDocumentShown);
  const int page = State.CurrentPage;
  const std::string title = Title().Bytes();
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(State.CurrentPage, page);
  EXPECT_EQ(Title().Bytes(), title);
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(WalkedPreviewTest, AfterOpeningWasCalledOffItsLinksLeadTheEditorNowhere) {
  OpenDocument("Guide.dat", kGuide);
  OpenPreview();
  Tick("GoAlong");
  Find<QTimer>(Window(), "LookTimer").stop();
  Player.Expect("OpenDoc", [](QWidget& dialog) { PressKey(dialog, Qt::Key_Escape); });
  Choose("FileOpen");
  const std::string title = Title().Bytes();
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(Title().Bytes(), title);
  EXPECT_TRUE(Program.Failures.empty());
}

class PanelsTogetherTest : public RememberedWindowTest {
 protected:
  static QDockWidget& Dock(const Main& window, const QString& name) {
    return Find<QDockWidget>(window, name + "Dock");
  }
  static void Open(const Main& window, std::initializer_list<const char*> items) {
    for (const char* item : items) Find<QAction>(window, item).trigger();
    Settle();
  }
  /// The names that a screen reader says for the rows of tabs.
  static QStringList NamesOfTabs(const Main& window) {
    QStringList names;
    for (const QTabBar* tabs : window.findChildren<QTabBar*>()) {
      if (tabs->isVisible()) names << tabs->accessibleName();
    }
    return names;
  }
};

TEST_F(PanelsTogetherTest, TheirTabsHaveANameWhenTheyComeBack) {
  auto window = NewWindow();
  Open(*window, {"ViewCheck", "ViewFindAll"});
  ASSERT_EQ(NamesOfTabs(*window), QStringList("Panels"));
  Remember(*window);
  window = NewWindow();
  EXPECT_EQ(NamesOfTabs(*window), QStringList("Panels"));
}

TEST_F(PanelsTogetherTest, TheirTabsHaveANameWhenPeoplePutThemTogether) {
  const auto window = NewWindow();
  Open(*window, {"ViewPreview", "ViewCheck"});
  ASSERT_EQ(NamesOfTabs(*window), QStringList());
  window->tabifyDockWidget(&Dock(*window, "PreviewPanel"), &Dock(*window, "CheckPanel"));
  Settle();
  EXPECT_EQ(NamesOfTabs(*window), QStringList("Panels"));
}

TEST_F(PanelsTogetherTest, APanelBehindAnotherIsBroughtToTheFrontAndThenClosed) {
  for (const QString name : {"Preview", "FindAll"}) {
    const auto window = NewWindow();
    Open(*window, {"ViewPreview", "ViewFindAll", "ViewCheck"});
    QDockWidget& dock = Dock(*window, name + "Panel");
    window->tabifyDockWidget(&dock, &Dock(*window, "CheckPanel"));
    Settle();
    Dock(*window, "CheckPanel").raise();
    auto& item = Find<QAction>(*window, "View" + name);
    // The toolkit moves a panel that lies behind another one out of the window.
    ASSERT_TRUE(QTest::qWaitFor([&] { return dock.visibleRegion().isEmpty(); }));
    ASSERT_TRUE(item.isChecked());
    item.trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dock.visibleRegion().isEmpty(); })) << name.toStdString();
    EXPECT_TRUE(item.isChecked());
    item.trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return dock.isHidden(); })) << name.toStdString();
    EXPECT_FALSE(item.isChecked());
  }
}

/// The editor with a preview beside it, in letters of some size.
class RoomForPreviewTest : public PreviewTest {
 protected:
  RoomForPreviewTest() : usual_font_(QApplication::font()) {}
  ~RoomForPreviewTest() override { QApplication::setFont(usual_font_); }

  QSize LeastWithPreview(int points) {
    QFont font = usual_font_;
    font.setPointSize(points);
    QApplication::setFont(font);
    OpenDocument("Guide.dat", kGuide);
    OpenPreview();
    EXPECT_TRUE(Device().isVisible());
    return Window().minimumSizeHint();
  }

 private:
  QFont usual_font_;
};

TEST_F(RoomForPreviewTest, BothFitOnASmallScreen) {
  const QSize least = LeastWithPreview(9);
  EXPECT_LE(least.width(), 1024);
  EXPECT_LE(least.height(), 700);
}

TEST_F(RoomForPreviewTest, BothFitOnALaptopsScreenInLargeLetters) {
  const QSize least = LeastWithPreview(14);
  EXPECT_LE(least.width(), 1366);
  EXPECT_LE(least.height(), 768);
}

class TabbedPanelsTest : public ViewTest {};

TEST_F(TabbedPanelsTest, APanelThatCameToTheFrontWhenTheOtherWasClosedIsClosed) {
  OpenDocument("Guide.dat", kGuide);
  Choose("ViewCheck");
  Choose("ViewFindAll");
  Settle();
  Choose("ViewFindAll");
  Settle();
  Choose("ViewCheck");
  EXPECT_TRUE(Dock("FindAllPanelDock").isHidden());
  EXPECT_TRUE(Dock("CheckPanelDock").isHidden());
}

/// The window has not yet given the panel its place again.
TEST_F(TabbedPanelsTest, BothAreClosedByTheirItemsOneRightAfterTheOther) {
  OpenDocument("Guide.dat", kGuide);
  Choose("ViewCheck");
  Choose("ViewFindAll");
  Settle();
  Find<QAction>(Window(), "ViewFindAll").trigger();
  Find<QAction>(Window(), "ViewCheck").trigger();
  Settle();
  EXPECT_TRUE(Dock("FindAllPanelDock").isHidden());
  EXPECT_TRUE(Dock("CheckPanelDock").isHidden());
}

}  // namespace
}  // namespace tavrel::test
