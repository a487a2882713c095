#include <QMenu>
#include <QMenuBar>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

class MenuTest : public WindowTest {
 protected:
  QStringList Captions(const QString& menu) {
    QStringList captions;
    for (const QAction* item : Find<QMenu>(Window(), menu).actions()) {
      captions << (item->isSeparator() ? "-" : item->text());
    }
    return captions;
  }
};

TEST_F(MenuTest, TheBarHoldsFileEditViewAndHelp) {
  QStringList captions;
  for (const QAction* menu : Window().menuBar()->actions()) captions << menu->text();
  EXPECT_EQ(captions, (QStringList{"&File", "&Edit", "&View", "&Help"}));
}

TEST_F(MenuTest, FileHoldsItsEntriesInOrder) {
  EXPECT_EQ(Captions("FileMenu"),
            (QStringList{"New project", "Open project", "Save project", "Save As", "Close project", "-",
                         "Backup", "Restore", "Delete", "-", "Publish", "Manage", "Import", "-", "Exit"}));
}

TEST_F(MenuTest, HelpHoldsItsEntriesInOrder) {
  EXPECT_EQ(Captions("HelpMenu"),
            (QStringList{"Help", "Tavrel Writer Web site", "iPod Web site", "iTunes Web site",
                         "Email technical support", "Customise", "-", "About Tavrel Writer"}));
}

TEST_F(MenuTest, TheSubmenusOfEditHoldTheirEntriesInOrder) {
  EXPECT_EQ(Captions("EditPageMenu"),
            (QStringList{"Cut", "Copy", "Paste", "-", "Up", "Down", "-", "Insert", "Delete", "Clear"}));
  EXPECT_EQ(Captions("EditLink"), (QStringList{"Up", "Down", "Delete"}));
  EXPECT_EQ(Captions("EditTextMenu"),
            (QStringList{"Cut", "Copy", "Paste", "-", "Find", "Find Next", "Replace", "-", "Clear"}));
  EXPECT_EQ(Captions("EditFont"), (QStringList{"Small", "Normal", "Large"}));
}

TEST_F(MenuTest, EditHoldsItsSubmenusAndCommands) {
  QStringList captions = Captions("EditMenu");
  captions.removeAll("-");
  EXPECT_EQ(captions,
            (QStringList{"Undo", "Redo", "Page", "Link", "Text", "Font", "Music Editor", "Project planner",
                         "Block copy", "Block clear", "Block Delete", "Block insert"}));
}

TEST_F(MenuTest, ShortcutsAreNotUsedTwice) {
  QStringList shortcuts;
  for (const QAction* item : Window().findChildren<QAction*>()) {
    if (!item->shortcut().isEmpty()) shortcuts << item->shortcut().toString();
  }
  EXPECT_GT(shortcuts.size(), 5);
  EXPECT_EQ(shortcuts.removeDuplicates(), 0);
}

TEST_F(MenuTest, AMenuDoesNotCommitAHalfTypedTitle) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "X");
  Messages.Answers = {false};
  Choose("FileClose");
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "One");
  EXPECT_TRUE(Title().hasFocus());
}

}  // namespace
}  // namespace tavrel::test
