#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

/// The Edit menu as a whole: when it can be used, and its use from the keyboard.
class EditMenuTest : public WindowTest {
 protected:
  bool IsEnabled() { return Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled(); }

  /// Presses keys in the menu that is open.
  void PressInMenu(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) {
      QWidget* menu = QApplication::activePopupWidget();
      ASSERT_NE(menu, nullptr);
      PressKey(*menu, key);
    }
  }

  void OpenWithKeys(QWidget& focused) { PressKey(focused, Qt::Key_E, Qt::AltModifier); }

  void ExpectShortcutsDoNothing() {
    const std::size_t messages = Messages.Shown.size();
    const auto pages = State.Pages;
    State.FindText = "one";
    QWidget& focused = QApplication::focusWidget() ? *QApplication::focusWidget() : Window();
    PressKey(focused, Qt::Key_F3);
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_H, Qt::Key_M, Qt::Key_X, Qt::Key_V})
      PressKey(focused, key, Qt::ControlModifier);
    Settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(Messages.Shown.size(), messages);
    EXPECT_EQ(State.Pages, pages);
    EXPECT_TRUE(Program.Failures.empty());
  }
};

TEST_F(EditMenuTest, CanBeUsedOnlyWhileAProjectIsOpen) {
  EXPECT_FALSE(IsEnabled());
  OpenDocument("Trio.dat", kTrio);
  EXPECT_TRUE(IsEnabled());
  Choose("FileClose");
  EXPECT_FALSE(IsEnabled());
}

TEST_F(EditMenuTest, ItsKeysDoNothingWithoutAProject) {
  Window();
  ExpectShortcutsDoNothing();
}

TEST_F(EditMenuTest, ItsKeysDoNothingAfterTheProjectWasClosed) {
  OpenDocument("Trio.dat", kTrio);
  Choose("FileClose");
  ExpectShortcutsDoNothing();
}

TEST_F(EditMenuTest, DoesNotOpenWithoutAProject) {
  OpenWithKeys(Window());
  Settle();
  EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").isVisible());
}

TEST_F(EditMenuTest, ACommandIsReachedWithKeysAlone) {
  OpenDocument("Trio.dat", kTrio);
  OpenWithKeys(Body());
  // Page, then Cut, Copy, Paste, Up, Down.
  PressInMenu({Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>B</title><text>two</text>\r\n"
            " 2 ,<title>A</title><text>one</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(EditMenuTest, ARowOfTheLinksGridIsDeletedWithKeysAlone) {
  OpenDocument("Guide.dat", kGuide);
  LinksGrid().setFocus();
  PressKey(LinksGrid(), Qt::Key_Down);
  OpenWithKeys(LinksGrid());
  PressInMenu({Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(State.Pages[1],
            "<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
            "<linkto>002</linkto></link>");
  EXPECT_EQ(LinksGrid().Row(), 2);
}

TEST_F(EditMenuTest, TextIsPastedAndTheFontChosenWithKeysAlone) {
  OpenDocument("Trio.dat", kTrio);
  QApplication::clipboard()->setText("zz");
  OpenWithKeys(Body());
  PressInMenu({Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(Body().Bytes(), "zzone");
  OpenWithKeys(Body());
  // What was pasted can be undone, so the menu begins with that.
  PressInMenu({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return});
  EXPECT_EQ(Body().font().pointSize(), 8);
}

TEST_F(EditMenuTest, LeftWithEscapeItChangesNothing) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "edited");
  OpenWithKeys(Title());
  PressInMenu({Qt::Key_Down, Qt::Key_Right, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Escape});
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "A");
  EXPECT_EQ(State.PageClipboard, "");
  EXPECT_EQ(Title().Bytes(), "edited");
}

}  // namespace
}  // namespace tavrel::test
