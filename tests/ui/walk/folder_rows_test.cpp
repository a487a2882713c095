#include <QApplication>
#include <QImage>

#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "support/user.h"
#include "ui/controls/folder_list.h"
#include "ui/controls/text_conversion.h"

namespace tavrel::test {
namespace {

class FolderRowsTest : public testing::Test {
 protected:
  FolderRowsTest() {
    for (const char* name : {"apple", "Banana", "berry", "cherry"})
      std::filesystem::create_directories(folder_.Path() / name);
    list_.SetPlatform(platform_);
    list_.resize(400, 400);
    EXPECT_FALSE(list_.SetPath(folder_.Path()));
    list_.show();
    ActivateWindow(list_);
    list_.setFocus();
  }

  std::string Current() const { return list_.currentItem()->text().toStdString(); }

  int RowOf(const QString& name) const {
    for (int row = 0; row < list_.count(); ++row) {
      if (list_.item(row)->text() == name) return row;
    }
    throw std::runtime_error("no row " + name.toStdString());
  }

  /// How far from the list's beginning side something is drawn in a row.
  int DrawnAt(const QString& name) {
    list_.setCurrentRow(-1);
    const QRect row = list_.visualItemRect(list_.item(RowOf(name)));
    const QImage picture = list_.viewport()->grab(row).toImage();
    const bool mirrored = list_.layoutDirection() == Qt::RightToLeft;
    const QColor paper = list_.palette().color(QPalette::Base);
    for (int step = 0; step < picture.width(); ++step) {
      const int x = mirrored ? picture.width() - 1 - step : step;
      for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(x, y) != paper) return step;
      }
    }
    return picture.width();
  }

  void ExpectDeeperRowsFurtherIn() {
    const QString own = ToText(folder_.Path().filename());
    const QString above = ToText(folder_.Path().parent_path().filename());
    EXPECT_GT(DrawnAt(above), DrawnAt(ToText(folder_.Path().root_path())));
    EXPECT_GT(DrawnAt(own), DrawnAt(above));
    EXPECT_GT(DrawnAt("apple"), DrawnAt(own));
    EXPECT_EQ(DrawnAt("apple"), DrawnAt("cherry"));
  }

  TemporaryFolder folder_;
  FakePlatform platform_;
  FolderList list_;
};

TEST_F(FolderRowsTest, TypingTheFirstLettersFindsAFolder) {
  PressKey(list_, Qt::Key_C);
  EXPECT_EQ(Current(), "cherry");
}

TEST_F(FolderRowsTest, MoreLettersTellFoldersApart) {
  PressKey(list_, Qt::Key_B);
  PressKey(list_, Qt::Key_E);
  EXPECT_EQ(Current(), "berry");
}

TEST_F(FolderRowsTest, AFolderThatWasFoundOpensWithEnter) {
  PressKey(list_, Qt::Key_A);
  PressKey(list_, Qt::Key_Return);
  EXPECT_EQ(list_.Path(), folder_.Path() / "apple");
}

TEST_F(FolderRowsTest, RowsHoldNamesAlone) {
  for (int row = 0; row < list_.count(); ++row) {
    const QString text = list_.item(row)->text();
    EXPECT_EQ(text, text.trimmed());
  }
}

TEST_F(FolderRowsTest, DeeperFoldersAreDrawnFurtherIn) {
  ExpectDeeperRowsFurtherIn();
}

TEST_F(FolderRowsTest, DeeperFoldersAreDrawnFurtherInFromRightToLeftToo) {
  list_.setLayoutDirection(Qt::RightToLeft);
  Settle();
  ExpectDeeperRowsFurtherIn();
}

}  // namespace
}  // namespace tavrel::test
