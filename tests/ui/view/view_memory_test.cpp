#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFile>
#include <QScreen>
#include <QTabBar>
#include <QTest>

#include <array>
#include <gtest/gtest.h>
#include <random>

#include "ui/shell/remembered_window_test.h"

namespace tavrel::test {
namespace {

constexpr const char* kPanelsKey = "Main/panels";
constexpr std::array<const char*, 3> kDockNames = {"PreviewPanelDock", "CheckPanelDock", "FindAllPanelDock"};
constexpr std::array<const char*, 3> kDockItems = {"ViewPreview", "ViewCheck", "ViewFindAll"};

class ViewMemoryTest : public RememberedWindowTest {
 protected:
  static QDockWidget& Dock(const Main& window, int number) {
    return Find<QDockWidget>(window, kDockNames.at(static_cast<std::size_t>(number)));
  }
  static bool IsTicked(const Main& window, int number) {
    return Find<QAction>(window, kDockItems.at(static_cast<std::size_t>(number))).isChecked();
  }
  /// Clicks a box, which is as wide as the panel, where its tick is.
  static void Tick(const Main& window, const QString& name) {
    auto& box = Find<QCheckBox>(window, name);
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
  }
  static std::string PageOnTop(const Main& window) {
    for (const QTabBar* tabs : window.findChildren<QTabBar*>()) {
      if (tabs->isVisible() && tabs->count() == 2) return tabs->tabText(tabs->currentIndex()).toStdString();
    }
    return "no tabs";
  }

  /// What is remembered of a window whose panels are all open, the first of them floating.
  QByteArray RememberedPanels() {
    const auto window = NewWindow();
    for (const char* item : kDockItems) Find<QAction>(*window, item).trigger();
    Dock(*window, 0).setFloating(true);
    Settle();
    Remember(*window);
    return Remembered(kPanelsKey).toByteArray();
  }

  /// Checks that the window can be used: it is on the screen, and every panel can be opened and closed.
  static void ExpectUsable(Main& window, const std::string& what) {
    EXPECT_TRUE(window.screen()->availableGeometry().contains(window.pos())) << what;
    EXPECT_TRUE(window.centralWidget()->isVisible()) << what;
    EXPECT_GE(window.centralWidget()->width(), window.centralWidget()->minimumSizeHint().width()) << what;
    for (int panel = 0; panel < 3; ++panel) {
      QDockWidget& dock = Dock(window, panel);
      EXPECT_EQ(IsTicked(window, panel), !dock.isHidden()) << what << ' ' << panel;
      auto& item = Find<QAction>(window, kDockItems.at(static_cast<std::size_t>(panel)));
      // A panel that is open may stand behind another one, and its item would bring it to the front.
      dock.close();
      item.trigger();
      Settle();
      EXPECT_TRUE(dock.isVisible()) << what << ' ' << panel;
      EXPECT_TRUE(window.screen()->availableGeometry().intersects(
          QRect(dock.mapToGlobal(QPoint()), dock.size()).adjusted(20, 20, -20, -20)))
          << what << ' ' << panel;
      item.trigger();
      EXPECT_FALSE(dock.isVisible()) << what << ' ' << panel;
    }
  }
};

TEST_F(ViewMemoryTest, AtTheFirstStartAllPanelsAreClosedAndTheChoicesAsDesigned) {
  const auto window = NewWindow();
  for (int panel = 0; panel < 3; ++panel) {
    EXPECT_TRUE(Dock(*window, panel).isHidden()) << panel;
    EXPECT_FALSE(IsTicked(*window, panel)) << panel;
    EXPECT_FALSE(Dock(*window, panel).isFloating()) << panel;
  }
  EXPECT_EQ(Find<QComboBox>(*window, "Model").currentIndex(), 0);
  EXPECT_EQ(Find<QComboBox>(*window, "Scale").currentText(), "2x");
  EXPECT_FALSE(Find<QCheckBox>(*window, "GoAlong").isChecked());
  EXPECT_FALSE(Find<QCheckBox>(*window, "NotesMenuLink").isChecked());
  EXPECT_TRUE(Find<QCheckBox>(*window, "BackgroundMusic").isChecked());
}

TEST_F(ViewMemoryTest, TheChoicesComeBack) {
  auto window = NewWindow();
  Find<QAction>(*window, "ViewPreview").trigger();
  PressKey(Find<QComboBox>(*window, "Model"), Qt::Key_End);
  PressKey(Find<QComboBox>(*window, "Scale"), Qt::Key_Home);
  for (const char* tick : {"GoAlong", "NotesMenuLink", "BackgroundMusic"}) Tick(*window, tick);
  const QSize device = Find<QWidget>(*window, "Device").size();
  Remember(*window);
  window = NewWindow();
  EXPECT_EQ(Find<QComboBox>(*window, "Model").currentText(), "240 x 376, colour");
  EXPECT_EQ(Find<QComboBox>(*window, "Scale").currentText(), "1x");
  EXPECT_TRUE(Find<QCheckBox>(*window, "GoAlong").isChecked());
  EXPECT_TRUE(Find<QCheckBox>(*window, "NotesMenuLink").isChecked());
  EXPECT_FALSE(Find<QCheckBox>(*window, "BackgroundMusic").isChecked());
  EXPECT_EQ(Find<QWidget>(*window, "Device").size(), device);
}

TEST_F(ViewMemoryTest, OpenAndClosedPanelsComeBack) {
  for (int open = 0; open < 3; ++open) {
    QFile::remove(MemoryFile());
    auto window = NewWindow();
    Find<QAction>(*window, kDockItems.at(static_cast<std::size_t>(open))).trigger();
    Settle();
    Remember(*window);
    window = NewWindow();
    for (int panel = 0; panel < 3; ++panel) {
      EXPECT_EQ(Dock(*window, panel).isVisible(), panel == open) << panel;
      EXPECT_EQ(IsTicked(*window, panel), panel == open) << panel;
    }
    Dock(*window, open).close();
    EXPECT_FALSE(IsTicked(*window, open));
    Remember(*window);
    EXPECT_TRUE(Dock(*NewWindow(), open).isHidden());
  }
}

TEST_F(ViewMemoryTest, TheSidesOfTheWindowComeBackWithTheirSizes) {
  auto window = NewWindow();
  for (const char* item : kDockItems) Find<QAction>(*window, item).trigger();
  window->addDockWidget(Qt::LeftDockWidgetArea, &Dock(*window, 0));
  window->addDockWidget(Qt::TopDockWidgetArea, &Dock(*window, 1));
  Settle();
  window->resizeDocks({&Dock(*window, 0)}, {Dock(*window, 0).width() + 40}, Qt::Horizontal);
  Settle();
  const int width = Dock(*window, 0).width();
  Remember(*window);
  window = NewWindow();
  EXPECT_EQ(window->dockWidgetArea(&Dock(*window, 0)), Qt::LeftDockWidgetArea);
  EXPECT_EQ(window->dockWidgetArea(&Dock(*window, 1)), Qt::TopDockWidgetArea);
  EXPECT_EQ(window->dockWidgetArea(&Dock(*window, 2)), Qt::BottomDockWidgetArea);
  EXPECT_EQ(Dock(*window, 0).width(), width);
}

TEST_F(ViewMemoryTest, AFloatingPanelComesBackWhereItStood) {
  auto window = NewWindow();
  Find<QAction>(*window, "ViewPreview").trigger();
  Dock(*window, 0).setFloating(true);
  Dock(*window, 0).move(60, 45);
  Settle();
  const QPoint place = Dock(*window, 0).pos();
  Remember(*window);
  window = NewWindow();
  EXPECT_TRUE(Dock(*window, 0).isFloating());
  EXPECT_TRUE(Dock(*window, 0).isVisible());
  EXPECT_EQ(Dock(*window, 0).pos(), place);
  EXPECT_TRUE(IsTicked(*window, 0));
}

TEST_F(ViewMemoryTest, ThePanelInFrontOfAnotherComesBackInFront) {
  for (const int front : {1, 2}) {
    QFile::remove(MemoryFile());
    auto window = NewWindow();
    for (const int panel : {3 - front, front})
      Find<QAction>(*window, kDockItems.at(static_cast<std::size_t>(panel))).trigger();
    Settle();
    const std::string on_top = Dock(*window, front).windowTitle().toStdString();
    ASSERT_EQ(PageOnTop(*window), on_top);
    Remember(*window);
    window = NewWindow();
    EXPECT_EQ(PageOnTop(*window), on_top);
    for (const int panel : {1, 2}) EXPECT_TRUE(IsTicked(*window, panel)) << front;
  }
}

TEST_F(ViewMemoryTest, PanelsThatWereNeverShownStayClosedOverSeveralStarts) {
  for (int start = 0; start < 3; ++start) {
    const auto window = NewWindow();
    for (int panel = 0; panel < 3; ++panel) EXPECT_TRUE(Dock(*window, panel).isHidden()) << start;
    Remember(*window);
  }
}

TEST_F(ViewMemoryTest, ItIsKeptApartFromTheProgramsSettings) {
  auto window = NewWindow();
  const std::string settings = Folder.Read("tavrel.ini");
  for (const char* item : kDockItems) Find<QAction>(*window, item).trigger();
  PressKey(Find<QComboBox>(*window, "Model"), Qt::Key_End);
  Tick(*window, "GoAlong");
  Remember(*window);
  window = NewWindow();
  EXPECT_EQ(Folder.Read("tavrel.ini"), settings);
}

TEST_F(ViewMemoryTest, ChoicesThatAreNoneStayAsDesigned) {
  const std::vector<QVariant> nonsense = {
      QByteArray(), QByteArray("x"), QByteArray(1000, '\xFF'), QString("wide"),      7, -1,
      3000000000LL, 1e300,           99999999999999LL,         QStringList{"1", "2"}};
  for (const QVariant& value : nonsense) {
    const std::string what = value.typeName() + std::string(" ") + value.toString().left(20).toStdString();
    QFile::remove(MemoryFile());
    for (const char* key : {"Main/Model", "Main/Scale"}) SetRemembered(key, value);
    const auto window = NewWindow();
    EXPECT_EQ(Find<QComboBox>(*window, "Model").currentIndex(), 0) << what;
    EXPECT_EQ(Find<QComboBox>(*window, "Scale").currentIndex(), 1) << what;
  }
}

TEST_F(ViewMemoryTest, TicksThatAreNoneStayAsDesigned) {
  for (const QVariant& value : {QVariant("wide"), QVariant(QStringList{"a", "b"}), QVariant(QByteArray()),
                                QVariant(QByteArray(100, '\xFF'))}) {
    QFile::remove(MemoryFile());
    for (const char* key : {"Main/GoAlong", "Main/NotesMenuLink", "Main/BackgroundMusic"})
      SetRemembered(key, value);
    const auto window = NewWindow();
    EXPECT_FALSE(Find<QCheckBox>(*window, "GoAlong").isChecked()) << value.typeName();
    EXPECT_FALSE(Find<QCheckBox>(*window, "NotesMenuLink").isChecked()) << value.typeName();
    EXPECT_TRUE(Find<QCheckBox>(*window, "BackgroundMusic").isChecked()) << value.typeName();
  }
}

TEST_F(ViewMemoryTest, PanelsThatAreNoneLeaveThemClosed) {
  const std::vector<QVariant> nonsense = {QByteArray(),           QByteArray("x"),
                                          QByteArray(1000, '\0'), QByteArray(1000, '\xFF'),
                                          QString("top"),         7,
                                          QStringList{"a", "b"},  true};
  for (const QVariant& value : nonsense) {
    QFile::remove(MemoryFile());
    SetRemembered(kPanelsKey, value);
    const auto window = NewWindow();
    for (int panel = 0; panel < 3; ++panel)
      EXPECT_TRUE(Dock(*window, panel).isHidden()) << value.typeName() << ' ' << panel;
    ExpectUsable(*window, value.typeName());
  }
}

/// Windows take long to make, so not every length is tried.
TEST_F(ViewMemoryTest, PanelsThatAreCutOffLeaveAWindowThatCanBeUsed) {
  const QByteArray panels = RememberedPanels();
  ASSERT_GT(panels.size(), 100);
  for (qsizetype size = 0; size < panels.size(); size += panels.size() / 11) {
    SetRemembered(kPanelsKey, panels.left(size));
    const auto window = NewWindow();
    ExpectUsable(*window, "the first " + std::to_string(size) + " bytes");
  }
}

/// More of them: the environment variable TAVREL_PANEL_STATES says how many.
TEST_F(ViewMemoryTest, ChangedBytesLeaveAWindowThatCanBeUsed) {
  const QByteArray panels = RememberedPanels();
  bool is_count = false;
  const int wanted = qEnvironmentVariableIntValue("TAVREL_PANEL_STATES", &is_count);
  std::mt19937 random(10);
  for (int attempt = 0; attempt < (is_count ? wanted : 9); ++attempt) {
    QByteArray changed = panels;
    const auto place = static_cast<qsizetype>(random() % static_cast<unsigned>(panels.size()));
    changed[place] = static_cast<char>(attempt % 3 == 0 ? 0x7F : attempt % 3 == 1 ? 0xFF : random());
    SetRemembered(kPanelsKey, changed);
    const auto window = NewWindow();
    ExpectUsable(*window, "byte " + std::to_string(place) + " in attempt " + std::to_string(attempt));
  }
}

TEST_F(ViewMemoryTest, ThePanelsOfAnotherWindowLeaveThemClosed) {
  QMainWindow other;
  auto* dock = new QDockWidget("Other", &other);
  dock->setObjectName("OtherDock");
  other.addDockWidget(Qt::LeftDockWidgetArea, dock);
  other.show();
  SetRemembered(kPanelsKey, other.saveState());
  const auto window = NewWindow();
  for (int panel = 0; panel < 3; ++panel) EXPECT_TRUE(Dock(*window, panel).isHidden()) << panel;
  ExpectUsable(*window, "another window");
}

TEST_F(ViewMemoryTest, AFloatingPanelThatWasOffTheScreenComesBackOnIt) {
  for (const QPoint& place : {QPoint(-5000, -5000), QPoint(9000, 100), QPoint(100, 9000)}) {
    QFile::remove(MemoryFile());
    auto window = NewWindow();
    Find<QAction>(*window, "ViewPreview").trigger();
    Dock(*window, 0).setFloating(true);
    Dock(*window, 0).move(place);
    Settle();
    Remember(*window);
    window = NewWindow();
    const QDockWidget& dock = Dock(*window, 0);
    EXPECT_TRUE(dock.isVisible());
    EXPECT_TRUE(window->screen()->availableGeometry().contains(dock.geometry().topLeft() + QPoint(20, 5)))
        << dock.x() << ' ' << dock.y();
  }
}

}  // namespace
}  // namespace tavrel::test
