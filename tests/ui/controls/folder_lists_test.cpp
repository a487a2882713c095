#include <QTest>

#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "support/user.h"
#include "ui/controls/drive_list.h"
#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/controls/text_conversion.h"

namespace tavrel::test {
namespace {

QStringList Rows(const QListWidget& list) {
  QStringList rows;
  for (int row = 0; row < list.count(); ++row) rows << list.item(row)->text().trimmed();
  return rows;
}

class FolderListsTest : public testing::Test {
 protected:
  FolderListsTest() {
    folder_.Write("b/inner/z.txt", "");
    folder_.Write("A/x.txt", "");
    folder_.Write("two.TXT", "");
    folder_.Write("One.txt", "");
    folder_.Write("three.dat", "");
    folder_.Write(".hidden.txt", "");
  }

  TemporaryFolder folder_;
  FakePlatform platform_;
};

TEST_F(FolderListsTest, AFolderIsShownBelowThoseAboveItAndAboveItsSubFolders) {
  FolderList list;
  list.SetPlatform(platform_);
  ASSERT_FALSE(list.SetPath(folder_.Path()));
  const QStringList rows = Rows(list);
  EXPECT_EQ(rows.first(), ToText(folder_.Path().root_path()));
  EXPECT_EQ(rows.mid(rows.size() - 3), (QStringList{ToText(folder_.Path().filename()), "A", "b"}));
  EXPECT_EQ(list.currentItem()->text().trimmed(), ToText(folder_.Path().filename()));
}

TEST_F(FolderListsTest, ADoubleClickOpensAndAClickOnlyHighlights) {
  FolderList list;
  list.SetPlatform(platform_);
  list.SetPath(folder_.Path());
  list.show();
  int changes = 0;
  QObject::connect(&list, &FolderList::Change, [&] { ++changes; });
  QListWidgetItem* sub_folder = list.item(list.count() - 1);
  list.scrollToItem(sub_folder);
  const QPoint middle = list.visualItemRect(sub_folder).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
  EXPECT_EQ(list.Path(), folder_.Path());
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
  EXPECT_EQ(list.Path(), folder_.Path() / "b");
  EXPECT_EQ(changes, 1);
}

TEST_F(FolderListsTest, EnterOpensTheHighlightedFolder) {
  FolderList list;
  list.SetPlatform(platform_);
  list.SetPath(folder_.Path() / "b");
  PressKey(list, Qt::Key_Down);
  PressKey(list, Qt::Key_Return);
  EXPECT_EQ(list.Path(), folder_.Path() / "b" / "inner");
}

TEST_F(FolderListsTest, AFolderThatCannotBeReadChangesNothing) {
  FolderList list;
  list.SetPlatform(platform_);
  list.SetPath(folder_.Path());
  const QStringList rows = Rows(list);
  EXPECT_TRUE(list.SetPath(folder_.Path() / "missing"));
  EXPECT_TRUE(list.SetPath(folder_.Path() / "One.txt"));
  EXPECT_EQ(list.Path(), folder_.Path());
  EXPECT_EQ(Rows(list), rows);
}

TEST_F(FolderListsTest, FilesAreListedInAlphabeticalOrderWithoutHiddenOnes) {
  FileList list;
  list.SetPlatform(platform_);
  list.SetPath(folder_.Path());
  EXPECT_EQ(Rows(list), (QStringList{"One.txt", "three.dat", "two.TXT"}));
  list.SetExtension(".txt");
  list.SetPath(folder_.Path());
  EXPECT_EQ(Rows(list), (QStringList{"One.txt", "two.TXT"}));
  EXPECT_EQ(list.Files(), (std::vector<std::filesystem::path>{"One.txt", "two.TXT"}));
}

TEST_F(FolderListsTest, TheDriveOfAFolderIsTheOneClosestAboveIt) {
  DriveList list;
  list.SetVolumes({{"/", "/"}, {"stick", folder_.Path()}, {"other", folder_.Path() / "A"}});
  list.SetDriveOf(folder_.Path() / "b" / "inner");
  EXPECT_EQ(list.Drive().Name, "stick");
  list.SetDriveOf(folder_.Path() / "A");
  EXPECT_EQ(list.Drive().Name, "other");
  list.SetDriveOf("/somewhere/else");
  EXPECT_EQ(list.Drive().Name, "/");
}

TEST_F(FolderListsTest, OnlyAChoiceOfTheUserIsAChange) {
  DriveList list;
  int changes = 0;
  QObject::connect(&list, &DriveList::Change, [&] { ++changes; });
  list.SetVolumes({{"/", "/"}, {"stick", folder_.Path()}});
  list.SetDriveOf(folder_.Path());
  EXPECT_EQ(changes, 0);
  PressKey(list, Qt::Key_Up);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(list.Drive().Name, "/");
}

TEST_F(FolderListsTest, ChoosingTheSameDriveAgainIsNoChange) {
  DriveList list;
  int changes = 0;
  QObject::connect(&list, &DriveList::Change, [&] { ++changes; });
  list.SetVolumes({{"/", "/"}, {"stick", folder_.Path()}});
  list.SetDriveOf(folder_.Path());
  emit list.activated(1);
  EXPECT_EQ(changes, 0);
  emit list.activated(0);
  EXPECT_EQ(changes, 1);
  emit list.activated(0);
  EXPECT_EQ(changes, 1);
}

TEST_F(FolderListsTest, ARefreshShowsNewFoldersAndKeepsTheOpenedOne) {
  FolderList list;
  list.SetPlatform(platform_);
  ASSERT_FALSE(list.SetPath(folder_.Path() / "b"));
  folder_.Write("b/another/z.txt", "");
  list.Refresh();
  EXPECT_EQ(list.Subfolders(), (std::vector<std::filesystem::path>{"another", "inner"}));
  EXPECT_EQ(Rows(list).mid(list.count() - 3), (QStringList{"b", "another", "inner"}));
  EXPECT_EQ(list.Path(), folder_.Path() / "b");
  std::filesystem::remove_all(folder_.Path() / "b");
  list.Refresh();
  EXPECT_EQ(list.Path(), folder_.Path() / "b");
}

}  // namespace
}  // namespace tavrel::test
