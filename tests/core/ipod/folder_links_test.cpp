#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <sys/stat.h>

#include "core/ipod/folder_store.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using FileMap = std::map<std::string, std::string>;

const FileMap kPrecious = {{"elsewhere/deep/z001.txt", "deep"}, {"elsewhere/z001.txt", "precious"}};

/// Projects that are symbolic links or hold them; what they point to lies elsewhere.
class FolderLinksTest : public testing::Test {
 protected:
  FolderLinksTest() {
    System.FlushesVolumes = false;
    for (const auto& [name, bytes] : kPrecious) Folder.Write(name, bytes);
    fs::create_directory(Folder.Path() / "projects");
  }

  fs::path Guide() const { return Folder.Path() / "projects" / "Guide"; }
  bool Delete() { return DeleteFolder(Guide(), System); }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_F(FolderLinksTest, AreListedAsTheFoldersTheyPointTo) {
  fs::create_directory_symlink("../elsewhere", Guide());
  fs::create_symlink("../elsewhere/z001.txt", Folder.Path() / "projects" / "a file");
  fs::create_symlink("gone", Folder.Path() / "projects" / "dangling");
  EXPECT_THAT(Subfolders(Folder.Path() / "projects", System), ElementsAre("Guide"));
}

TEST_F(FolderLinksTest, GoAloneWhenTheyAreDeleted) {
  fs::create_directory_symlink(Folder.Path() / "elsewhere", Guide());
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(fs::symlink_status(Guide())));
  EXPECT_EQ(Folder.Files(), kPrecious);
}

TEST_F(FolderLinksTest, GoAloneToAnEmptyFolder) {
  fs::create_directory(Folder.Path() / "empty");
  fs::create_directory_symlink(Folder.Path() / "empty", Guide());
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(fs::symlink_status(Guide())));
  EXPECT_TRUE(fs::is_directory(Folder.Path() / "empty"));
}

TEST_F(FolderLinksTest, GoWhenTheyPointToNothing) {
  fs::create_directory_symlink("gone", Guide());
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(fs::symlink_status(Guide())));
}

TEST_F(FolderLinksTest, GoAloneWhenTheyAreFilesOfADeletedFolder) {
  Folder.Write("projects/Guide/z002.txt", "x");
  fs::create_symlink(Folder.Path() / "elsewhere" / "z001.txt", Guide() / "z001.txt");
  EXPECT_TRUE(Delete());
  EXPECT_FALSE(fs::exists(Guide()));
  EXPECT_EQ(Folder.Files(), kPrecious);
}

TEST_F(FolderLinksTest, GoAloneFromAWriteProtectedFile) {
  const fs::path precious = Folder.Path() / "elsewhere" / "z001.txt";
  fs::permissions(precious, fs::perms::owner_read);
  fs::create_directory(Guide());
  fs::create_symlink(precious, Guide() / "z001.txt");
  EXPECT_TRUE(Delete());
  EXPECT_EQ(Folder.Files(), kPrecious);
  EXPECT_EQ(fs::status(precious).permissions(), fs::perms::owner_read);
}

TEST_F(FolderLinksTest, StayInADeletedFolderWhenTheyPointToFolders) {
  Folder.Write("projects/Guide/z001.txt", "x");
  fs::create_directory_symlink(Folder.Path() / "elsewhere", Guide() / "inner");
  EXPECT_FALSE(Delete());
  EXPECT_TRUE(fs::is_symlink(Guide() / "inner"));
  EXPECT_EQ(Folder.Files(), kPrecious);
}

TEST_F(FolderLinksTest, AreCopiedAsTheFilesTheyPointTo) {
  fs::create_directory_symlink("../elsewhere", Guide());
  fs::create_symlink("z001.txt", Folder.Path() / "elsewhere" / "z002.txt");
  const fs::path copy = Folder.Path() / "copy";
  CopyFolder(Guide(), copy, System, [](int, int) {});
  EXPECT_EQ(Folder.Read("copy/z001.txt"), "precious");
  EXPECT_EQ(Folder.Read("copy/z002.txt"), "precious");
  EXPECT_FALSE(fs::is_symlink(copy));
  EXPECT_FALSE(fs::is_symlink(copy / "z002.txt"));
  EXPECT_FALSE(fs::exists(copy / "deep"));
}

TEST_F(FolderLinksTest, DoNoHarmWhenTheCopyLeadsBackToTheSource) {
  fs::create_directory_symlink("../elsewhere", Guide());
  CopyFolder(Folder.Path() / "elsewhere", Guide(), System, [](int, int) {});
  EXPECT_EQ(Folder.Files(), kPrecious);
}

TEST_F(FolderLinksTest, CopyAndDeletePassByWhatIsNoFile) {
  Folder.Write("projects/Guide/z001.txt", "x");
  ASSERT_EQ(::mkfifo((Guide() / "pipe").c_str(), 0600), 0);
  fs::create_symlink("gone", Guide() / "dangling");
  CopyFolder(Guide(), Folder.Path() / "copy", System, [](int, int) {});
  FileMap expected = kPrecious;
  expected["projects/Guide/z001.txt"] = expected["copy/z001.txt"] = "x";
  EXPECT_EQ(Folder.Files(), expected);
  EXPECT_FALSE(Delete());
  EXPECT_FALSE(Folder.Has("projects/Guide/z001.txt"));
}

TEST_F(FolderLinksTest, ADiskThatTakesTwoNamesForOneFileLosesNeither) {
  // A hard link behaves as a disk that does not tell letter case apart.
  Folder.Write("projects/Guide/a.txt", "small");
  Folder.Write("projects/Guide/A.txt", "capital");
  Folder.Write("disk/Guide/a.txt", "old");
  fs::create_hard_link(Folder.Path() / "disk/Guide/a.txt", Folder.Path() / "disk/Guide/A.txt");
  EXPECT_THAT([&] { CopyFolder(Guide(), Folder.Path() / "disk/Guide", System, [](int, int) {}); },
              testing::ThrowsMessage<FileError>(testing::HasSubstr("a.txt")));
  EXPECT_EQ(Folder.Read("disk/Guide/a.txt"), "capital");
}

TEST_F(FolderLinksTest, NamesThatDifferOnlyInCaseAreCopiedWhereTheyAreTwoFiles) {
  Folder.Write("projects/Guide/a.txt", "small");
  Folder.Write("projects/Guide/A.txt", "capital");
  CopyFolder(Guide(), Folder.Path() / "copy", System, [](int, int) {});
  EXPECT_EQ(Folder.Read("copy/a.txt"), "small");
  EXPECT_EQ(Folder.Read("copy/A.txt"), "capital");
}

}  // namespace
}  // namespace tavrel::test
