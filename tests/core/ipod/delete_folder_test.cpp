#include <gtest/gtest.h>
#include <map>
#include <string>

#include "core/ipod/folder_store.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using FileMap = std::map<std::string, std::string>;

class DeleteFolderTest : public testing::Test {
 protected:
  bool Delete() { return DeleteFolder(Guide(), System); }
  fs::path Guide() const { return Folder.Path() / "Guide"; }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_F(DeleteFolderTest, TakesTheFilesAndTheFolder) {
  for (const char* name : {"Guide/z001.txt", "Guide/no dot", "Guide/picture.JPG"}) Folder.Write(name, "x");
  Folder.Write("Guide 2/z001.txt", "other");
  Folder.Write("z001.txt", "other");
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(Guide()));
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide 2/z001.txt", "other"}, {"z001.txt", "other"}}));
}

TEST_F(DeleteFolderTest, TakesAnEmptyFolder) {
  fs::create_directory(Guide());
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(Guide()));
}

TEST_F(DeleteFolderTest, LeavesAFolderWithSubfoldersButNotItsFiles) {
  Folder.Write("Guide/z001.txt", "x");
  Folder.Write("Guide/z002.txt", "x");
  Folder.Write("Guide/inner/z001.txt", "inner");
  EXPECT_FALSE(Delete());
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide/inner/z001.txt", "inner"}}));
}

TEST_F(DeleteFolderTest, LeavesAFolderThatCannotBeRead) {
  Folder.Write("Guide/z001.txt", "x");
  System.NotReadable = {Guide()};
  EXPECT_FALSE(Delete());
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide/z001.txt", "x"}}));
}

TEST_F(DeleteFolderTest, LeavesAFolderWithAnEmptySubfolder) {
  fs::create_directories(Guide() / "inner");
  EXPECT_FALSE(Delete());
  EXPECT_TRUE(fs::is_directory(Guide() / "inner"));
}

TEST_F(DeleteFolderTest, LeavesHiddenFiles) {
  Folder.Write("Guide/z001.txt", "x");
  Folder.Write("Guide/.hidden", "mine");
  EXPECT_FALSE(Delete());
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide/.hidden", "mine"}}));
}

TEST_F(DeleteFolderTest, LeavesWriteProtectedFiles) {
  for (const char* name : {"Guide/a", "Guide/b", "Guide/c"}) Folder.Write(name, "x");
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  fs::permissions(Guide() / "b", kAnyWrite, fs::perm_options::remove);
  EXPECT_FALSE(Delete());
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide/b", "x"}}));

  fs::permissions(Guide() / "b", fs::perms::owner_write, fs::perm_options::add);
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(Guide()));
}

TEST_F(DeleteFolderTest, FailsWhereThereIsNoFolder) {
  EXPECT_FALSE(Delete());
  Folder.Write("Guide", "a file by now");
  EXPECT_FALSE(Delete());
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide", "a file by now"}}));
}

}  // namespace
}  // namespace tavrel::test
