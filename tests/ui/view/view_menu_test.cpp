#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <array>
#include <initializer_list>

#include "ui/view/view_test.h"

namespace tavrel::test {
namespace {

/// A panel with its item in the menu; the check has no key.
struct ViewPanel {
  const char* Item;
  const char* Dock;
  const char* Caption;
  const char* Keys;
};

constexpr std::array<ViewPanel, 3> kViewPanels = {{
    {"ViewPreview", "PreviewPanelDock", "iPod preview", "F5"},
    {"ViewCheck", "CheckPanelDock", "Project check", ""},
    {"ViewFindAll", "FindAllPanelDock", "Find in all pages", "Ctrl+Shift+F"},
}};

class ViewMenuTest : public ViewTest {
 protected:
  /// The panels that are open, as the menu's ticks say; they must say what is so.
  QStringList Open() {
    QStringList open;
    for (const ViewPanel& panel : kViewPanels) {
      const bool is_ticked = Find<QAction>(Window(), panel.Item).isChecked();
      EXPECT_EQ(Dock(panel.Dock).isHidden(), !is_ticked) << panel.Item;
      if (is_ticked) open << panel.Item;
    }
    return open;
  }

  static void PressF5() { PressOnFocus(Qt::Key_F5); }
  static void PressCtrlShiftF() { PressOnFocus(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier); }

  void OpensAndClosesEveryPanel() {
    for (const ViewPanel& panel : kViewPanels) {
      Choose(panel.Item);
      EXPECT_EQ(Open(), QStringList(panel.Item));
      EXPECT_TRUE(Dock(panel.Dock).isVisible());
      Choose(panel.Item);
      EXPECT_EQ(Open(), QStringList());
      EXPECT_FALSE(Dock(panel.Dock).isVisible());
    }
  }

  void KeysOpenAndClosePanels() {
    Window().setFocus();
    PressF5();
    EXPECT_EQ(Open(), QStringList("ViewPreview"));
    PressCtrlShiftF();
    EXPECT_EQ(Open(), (QStringList{"ViewPreview", "ViewFindAll"}));
    PressF5();
    EXPECT_EQ(Open(), QStringList("ViewFindAll"));
    PressCtrlShiftF();
    EXPECT_EQ(Open(), QStringList());
  }
};

TEST_F(ViewMenuTest, StandsBetweenEditAndHelp) {
  QStringList captions;
  for (const QAction* menu : Window().menuBar()->actions()) captions << menu->text().remove('&');
  EXPECT_EQ(captions, (QStringList{"File", "Edit", "View", "Help"}));
}

TEST_F(ViewMenuTest, HoldsAnItemForEachPanel) {
  const QList<QAction*> items = Find<QMenu>(Window(), "ViewMenu").actions();
  ASSERT_EQ(items.size(), 3);
  for (int i = 0; i < 3; ++i) {
    const ViewPanel& panel = kViewPanels.at(static_cast<std::size_t>(i));
    EXPECT_EQ(items[i]->objectName(), panel.Item);
    EXPECT_EQ(items[i]->text(), panel.Caption);
    EXPECT_EQ(items[i]->shortcut().toString(), panel.Keys);
    EXPECT_TRUE(items[i]->isEnabled() && items[i]->isCheckable()) << panel.Item;
    EXPECT_EQ(Dock(panel.Dock).windowTitle(), panel.Caption);
  }
}

TEST_F(ViewMenuTest, AllPanelsAreClosedAtFirst) {
  EXPECT_EQ(Open(), QStringList());
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(Open(), QStringList());
}

TEST_F(ViewMenuTest, ItsItemsOpenAndCloseThePanels) {
  OpenDocument("Guide.dat", kGuide);
  OpensAndClosesEveryPanel();
}

TEST_F(ViewMenuTest, ItsItemsOpenAndCloseThePanelsWithoutAProject) {
  OpensAndClosesEveryPanel();
}

TEST_F(ViewMenuTest, TheKeysOpenAndCloseThePanels) {
  OpenDocument("Guide.dat", kGuide);
  KeysOpenAndClosePanels();
}

TEST_F(ViewMenuTest, TheKeysOpenAndCloseThePanelsWithoutAProject) {
  Start();
  KeysOpenAndClosePanels();
}

TEST_F(ViewMenuTest, TheKeysWorkInEveryField) {
  OpenDocument("Songs.dat", kSongs);
  for (QWidget* field :
       std::initializer_list<QWidget*>{&Title(), &Note(), &Body(), &LinkText(), &LinkTarget(), &MusicText(),
                                       &MusicLink(), &LinksGrid(), &PagesGrid()}) {
    field->setFocus();
    PressF5();
    EXPECT_EQ(Open(), QStringList("ViewPreview")) << field->objectName().toStdString();
    field->setFocus();
    PressF5();
    EXPECT_EQ(Open(), QStringList()) << field->objectName().toStdString();
  }
  EXPECT_EQ(Title().Bytes(), "Start");
  EXPECT_EQ(Body().Bytes(), "See <Part two>");
}

TEST_F(ViewMenuTest, APanelsOwnCloseButtonTakesTheTickAway) {
  OpenDocument("Guide.dat", kGuide);
  for (const ViewPanel& panel : kViewPanels) Choose(panel.Item);
  EXPECT_EQ(Open(), (QStringList{"ViewPreview", "ViewCheck", "ViewFindAll"}));
  ClickFrame("PreviewPanelDock", "close");
  EXPECT_EQ(Open(), (QStringList{"ViewCheck", "ViewFindAll"}));
  ClickFrame("FindAllPanelDock", "close");
  EXPECT_EQ(Open(), QStringList("ViewCheck"));
  ClickFrame("CheckPanelDock", "close");
  EXPECT_EQ(Open(), QStringList());
  Choose("ViewCheck");
  EXPECT_EQ(Open(), QStringList("ViewCheck"));
}

TEST_F(ViewMenuTest, AFloatingPanelsOwnCloseButtonTakesTheTickAway) {
  OpenDocument("Guide.dat", kGuide);
  Choose("ViewCheck");
  ClickFrame("CheckPanelDock", "float");
  ASSERT_TRUE(Dock("CheckPanelDock").isFloating());
  EXPECT_EQ(Open(), QStringList("ViewCheck"));
  Dock("CheckPanelDock").close();
  EXPECT_EQ(Open(), QStringList());
}

TEST_F(ViewMenuTest, TheKeysWorkWhileAPanelFloatsAndHasTheFocus) {
  OpenDocument("Guide.dat", kGuide);
  PressCtrlShiftF();
  ClickFrame("FindAllPanelDock", "float");
  QDockWidget& panel = Dock("FindAllPanelDock");
  ASSERT_TRUE(panel.isFloating());
  ActivateWindow(panel);
  Find<LineField>(panel, "FindWhat").setFocus();
  PressF5();
  EXPECT_EQ(Open(), (QStringList{"ViewPreview", "ViewFindAll"}));
  ActivateWindow(panel);
  Find<LineField>(panel, "FindWhat").setFocus();
  PressF5();
  EXPECT_EQ(Open(), QStringList("ViewFindAll"));
  Find<LineField>(panel, "FindWhat").setFocus();
  PressCtrlShiftF();
  EXPECT_EQ(Open(), QStringList());
  ActivateWindow(Window());
  PressCtrlShiftF();
  EXPECT_EQ(Open(), QStringList("ViewFindAll"));
  EXPECT_TRUE(panel.isFloating());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
  EXPECT_TRUE(WaitFor([&] { return Find<LineField>(panel, "FindWhat").hasFocus(); }));
}

TEST_F(ViewMenuTest, AnOpenPanelThatLiesBehindAnotherKeepsItsTick) {
  OpenDocument("Guide.dat", kGuide);
  Choose("ViewCheck");
  Choose("ViewFindAll");
  Settle();
  EXPECT_EQ(Open(), (QStringList{"ViewCheck", "ViewFindAll"}));
}

TEST_F(ViewMenuTest, OpeningAPanelChangesNothingInTheProject) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "Typed");
  for (const ViewPanel& panel : kViewPanels) Choose(panel.Item);
  for (const ViewPanel& panel : kViewPanels) Choose(panel.Item);
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(Title().Bytes(), "Typed");
  EXPECT_TRUE(Stored(1).starts_with("<title>One</title>"));
  EXPECT_TRUE(Messages.Shown.empty());
}

}  // namespace
}  // namespace tavrel::test
