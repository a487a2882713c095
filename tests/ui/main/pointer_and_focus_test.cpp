#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

class PointerAndFocusTest : public WindowTest {
 protected:
  void SetUp() override { OpenDocument("Guide.dat", kGuide); }

  QPoint MiddleOf(int row) { return PagesGrid().visualRect(PagesGrid().model()->index(row - 1, 1)).center(); }

  void TurnWheelOver(QWidget& widget) {
    const QPointF middle = QRectF(widget.rect()).center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }
};

TEST_F(PointerAndFocusTest, OpeningTheListOfTargetsIsNotLeavingTheField) {
  TypeInto(LinkTarget(), "7");
  LinkTarget().showPopup();
  EXPECT_EQ(LinksGrid().TextMatrix(1, 1), "002");
  LinkTarget().hidePopup();
}

TEST_F(PointerAndFocusTest, AWheelOverATargetChangesNothing) {
  TurnWheelOver(LinkTarget());
  EXPECT_EQ(LinkTarget().Bytes(), "002");
}

TEST_F(PointerAndFocusTest, OtherMouseButtonsLeaveTheRowAlone) {
  QTest::mouseClick(PagesGrid().viewport(), Qt::RightButton, {}, MiddleOf(5));
  EXPECT_EQ(PagesGrid().Row(), 1);
  EXPECT_EQ(State.CurrentPage, 1);
}

TEST_F(PointerAndFocusTest, ARowPressedAndLeftBeforeReleaseIsTheOneClicked) {
  QTest::mousePress(PagesGrid().viewport(), Qt::LeftButton, {}, MiddleOf(5));
  QTest::mouseMove(PagesGrid().viewport(), MiddleOf(8));
  QTest::mouseRelease(PagesGrid().viewport(), Qt::LeftButton, {}, MiddleOf(8));
  EXPECT_EQ(PagesGrid().Row(), 5);
  EXPECT_EQ(State.CurrentPage, 5);
}

TEST_F(PointerAndFocusTest, ControlDoesNotTakeTheSelectionAway) {
  QTest::mouseClick(PagesGrid().viewport(), Qt::LeftButton, Qt::ControlModifier, MiddleOf(1));
  EXPECT_EQ(PagesGrid().Row(), 1);
  PagesGrid().setFocus();
  PressKey(PagesGrid(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(PagesGrid().Row(), 1);
}

TEST_F(PointerAndFocusTest, RowsOnlyLookedAtWithTheArrowsAreLetGo) {
  PagesGrid().setFocus();
  PressKey(PagesGrid(), Qt::Key_Down);
  EXPECT_EQ(PagesGrid().Row(), 2);
  PressKey(PagesGrid(), Qt::Key_Tab);
  EXPECT_EQ(PagesGrid().Row(), 1);
  LinksGrid().setFocus();
  PressKey(LinksGrid(), Qt::Key_Down);
  PressKey(LinksGrid(), Qt::Key_Tab);
  EXPECT_EQ(LinksGrid().Row(), 1);
}

TEST_F(PointerAndFocusTest, EmojiAndJoinersBecomeAQuestionMarkAsTheyAreTyped) {
  for (const QString& text : {u"\U0001F600"_qs, u"\u200D"_qs, u"\uE000"_qs}) {
    TypeInto(Title(), "");
    QTest::sendKeyEvent(QTest::Click, &Title(), Qt::Key_unknown, text, Qt::NoModifier);
    EXPECT_EQ(Title().text(), "?");
    TypeInto(Body(), "");
    QTest::sendKeyEvent(QTest::Click, &Body(), Qt::Key_unknown, text, Qt::NoModifier);
    EXPECT_EQ(Body().toPlainText(), "?");
  }
}

TEST_F(PointerAndFocusTest, PasteOfTheContextMenuIsMadeFit) {
  TypeInto(Title(), "");
  QApplication::clipboard()->setText(u"\u4E2D\nx"_qs);
  QTimer::singleShot(50, [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* item : menu->actions()) {
      if (item->text().startsWith("&Paste")) item->trigger();
    }
    menu->close();
  });
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), Title().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&Title(), &event);
  EXPECT_EQ(Title().Bytes(), "? x");
}

TEST_F(PointerAndFocusTest, UndoingAPasteLeavesTheTypingBeforeIt) {
  TypeInto(Title(), "abc");
  QApplication::clipboard()->setText("DEF");
  PressKey(Title(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Title().Bytes(), "abcDEF");
  PressKey(Title(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Title().Bytes(), "abc");
}

TEST_F(PointerAndFocusTest, ARightDoubleClickDeletesNothing) {
  Player.Expect("DeleteDoc", [](QWidget& dialog) {
    auto& list = Find<QListWidget>(dialog, "List1");
    const QPoint middle = list.visualItemRect(list.item(0)).center();
    QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, middle);
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
  });
  Choose("FileDelete");
  EXPECT_TRUE(Folder.Has("Guide.dat"));
}

TEST_F(PointerAndFocusTest, AnArrowKeySelectsTheOnlyProject) {
  Player.Expect("OpenDoc", [](QWidget& dialog) {
    auto& list = Find<QListWidget>(dialog, "List1");
    list.setFocus();
    PressKey(list, Qt::Key_Down);
    EXPECT_EQ(list.selectedItems().size(), 1);
    Click(dialog, "Command1");
  });
  Choose("FileOpen");
  EXPECT_EQ(State.DocPath, "Guide.dat");
}

TEST_F(PointerAndFocusTest, TitleAndNoteShareThePaneFromTheFirstProjectOn) {
  EXPECT_NEAR(PagesGrid().columnWidth(1), PagesGrid().columnWidth(2), 1);
  Window().resize(1600, 800);
  Settle();
  EXPECT_NEAR(PagesGrid().columnWidth(1), PagesGrid().columnWidth(2), 1);
  const int columns = PagesGrid().columnWidth(0) + PagesGrid().columnWidth(1) + PagesGrid().columnWidth(2);
  EXPECT_EQ(columns, PagesGrid().viewport()->width());
}

TEST_F(PointerAndFocusTest, TheTabKeyGoesThroughTheFieldsAsTheEyeDoes) {
  PagesGrid().setFocus();
  EXPECT_EQ(TabOrder(Window()),
            (std::vector<std::string>{"MSFlexGrid2", "Text3", "Text4", "Text1", "Text5", "Combo1",
                                      "MSFlexGrid1", "Text6", "Combo2", "Command4"}));
  EXPECT_TRUE(NamelessControls(Window()).empty());
}

TEST_F(PointerAndFocusTest, AProjectNameIsShownAsItIs) {
  OpenDocument("a&lt;b.dat", kTrio);
  auto& label = Find<QLabel>(Window(), "Label7");
  EXPECT_EQ(label.text(), "a&lt;b");
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace tavrel::test
