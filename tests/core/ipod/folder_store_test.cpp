#include "core/ipod/folder_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

/// A folder of projects on the computer and one on the device.
class FolderStoreTest : public testing::Test {
 protected:
  FolderStoreTest() { System.FlushesVolumes = false; }

  void SetUp() override {
    fs::create_directory(Local());
    fs::create_directory(Remote());
  }

  fs::path Local() const { return Folder.Path() / "local"; }
  fs::path Remote() const { return Folder.Path() / "remote"; }

  void Copy() {
    CopyFolder(Local() / "Guide", Remote() / "Guide", System,
               [this](int done, int all) { Progress.emplace_back(done, all); });
  }

  void ExpectErrorNaming(const fs::path& file) {
    EXPECT_THAT([&] { Copy(); }, ThrowsMessage<FileError>(HasSubstr(PathText(file))));
  }

  TemporaryFolder Folder;
  FakePlatform System;
  std::vector<std::pair<int, int>> Progress;
};

TEST_F(FolderStoreTest, ListsSubfoldersWithoutLetterCase) {
  for (const char* name : {"local/beta", "local/Alpha", "local/Gamma", "local/alpha 2", "local/Beta.x"}) {
    fs::create_directory(Folder.Path() / name);
  }
  EXPECT_THAT(Subfolders(Local(), System), ElementsAre("Alpha", "alpha 2", "beta", "Beta.x", "Gamma"));
}

TEST_F(FolderStoreTest, ListsNeitherFilesNorHiddenFoldersNorWhatLiesDeeper) {
  Folder.Write("local/a file", "x");
  Folder.Write("local/Guide/inner/z001.txt", "x");
  fs::create_directory(Local() / ".hidden");
  EXPECT_THAT(Subfolders(Local(), System), ElementsAre("Guide"));
}

TEST_F(FolderStoreTest, ListsNothingForWhatIsNoFolder) {
  Folder.Write("local/a file", "x");
  EXPECT_THAT(Subfolders(Local(), System), IsEmpty());
  EXPECT_THAT(Subfolders(Local() / "a file", System), IsEmpty());
  EXPECT_THAT(Subfolders(Local() / "gone", System), IsEmpty());
}

TEST_F(FolderStoreTest, CopiesAFolderToTheOtherSide) {
  Folder.Write("local/Guide/z001.txt", "one");
  Folder.Write("local/Guide/z002.txt", std::string(700'000, '\0'));
  Folder.Write("local/Guide/z003.txt", "");
  const FileMap source = Folder.Files();
  Copy();
  FileMap expected = source;
  for (const auto& [name, bytes] : source) expected["remote" + name.substr(5)] = bytes;
  EXPECT_EQ(Folder.Files(), expected);
}

TEST_F(FolderStoreTest, ReplacesFilesAndLeavesTheOthers) {
  Folder.Write("local/Guide/z001.txt", "one");
  Folder.Write("local/Guide/z002.txt", "new");
  Folder.Write("remote/Guide/z002.txt", "old and longer");
  Folder.Write("remote/Guide/z009.txt", "nine");
  Folder.Write("remote/Guide/inner/z001.txt", "inner");
  Folder.Write("remote/Other/z001.txt", "other");
  Copy();
  EXPECT_EQ(Folder.Files(), (FileMap{{"local/Guide/z001.txt", "one"},
                                     {"local/Guide/z002.txt", "new"},
                                     {"remote/Guide/z001.txt", "one"},
                                     {"remote/Guide/z002.txt", "new"},
                                     {"remote/Guide/z009.txt", "nine"},
                                     {"remote/Guide/inner/z001.txt", "inner"},
                                     {"remote/Other/z001.txt", "other"}}));
}

TEST_F(FolderStoreTest, CopiesOrdinaryFilesOfAnyName) {
  for (const char* name : {"no dot", "a.b.c", "picture.JPG", "x.txt~"}) {
    Folder.Write(fs::path("local/Guide") / name, name);
  }
  Folder.Write("local/Guide/.hidden", "x");
  Folder.Write("local/Guide/inner/z001.txt", "x");
  Copy();
  EXPECT_FALSE(Folder.Has("remote/Guide/.hidden"));
  EXPECT_FALSE(Folder.Has("remote/Guide/inner"));
  for (const char* name : {"no dot", "a.b.c", "picture.JPG", "x.txt~"}) {
    EXPECT_EQ(Folder.Read(fs::path("remote/Guide") / name), name);
  }
}

TEST_F(FolderStoreTest, CopiesAnEmptyFolder) {
  fs::create_directory(Local() / "Guide");
  Copy();
  EXPECT_TRUE(fs::is_directory(Remote() / "Guide"));
  EXPECT_THAT(Progress, IsEmpty());
}

TEST_F(FolderStoreTest, TellsItsProgressAfterEachFile) {
  for (const char* name : {"a", "b", "c"}) Folder.Write(fs::path("local/Guide") / name, name);
  Folder.Write("local/Guide/.hidden", "x");
  Copy();
  EXPECT_THAT(Progress, ElementsAre(Pair(1, 3), Pair(2, 3), Pair(3, 3)));
}

TEST_F(FolderStoreTest, DoesNoHarmWhenAFolderIsCopiedOntoItself) {
  Folder.Write("local/Guide/z001.txt", "one");
  const FileMap before = Folder.Files();
  CopyFolder(Local() / "Guide", Local() / "." / "Guide", System, [](int, int) {});
  EXPECT_EQ(Folder.Files(), before);
}

TEST_F(FolderStoreTest, MakesNothingWhenTheSourceIsGone) {
  ExpectErrorNaming(Local() / "Guide");
  EXPECT_TRUE(fs::is_empty(Remote()));
}

TEST_F(FolderStoreTest, MakesNothingWhenTheSourceCannotBeRead) {
  Folder.Write("local/Guide/z001.txt", "1");
  System.NotReadable = {Local() / "Guide"};
  ExpectErrorNaming(Local() / "Guide");
  EXPECT_TRUE(fs::is_empty(Remote()));
  EXPECT_THAT(Subfolders(Local() / "Guide", System), IsEmpty());
}

TEST_F(FolderStoreTest, NamesASourceThatIsAFile) {
  Folder.Write("local/Guide", "a file");
  ExpectErrorNaming(Local() / "Guide");
  EXPECT_TRUE(fs::is_empty(Remote()));
}

TEST_F(FolderStoreTest, NamesAFileThatVanishesOnTheWay) {
  Folder.Write("local/Guide/a", "a");
  Folder.Write("local/Guide/b", "b");
  std::string copied;
  const auto remove_the_others = [&](int, int) {
    copied = Folder.Has("remote/Guide/a") ? "a" : "b";
    fs::remove_all(Local() / "Guide");
  };
  EXPECT_THAT([&] { CopyFolder(Local() / "Guide", Remote() / "Guide", System, remove_the_others); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Local() / "Guide"))));
  EXPECT_EQ(Folder.Files(), (FileMap{{"remote/Guide/" + copied, copied}}));
}

TEST_F(FolderStoreTest, NamesADeviceThatIsGone) {
  Folder.Write("local/Guide/a", "a");
  fs::remove(Remote());
  ExpectErrorNaming(Remote() / "Guide");
  EXPECT_FALSE(fs::exists(Remote()));
}

TEST_F(FolderStoreTest, NamesAFileInTheFoldersPlace) {
  Folder.Write("local/Guide/a", "a");
  Folder.Write("remote/Guide", "a file");
  ExpectErrorNaming(Remote() / "Guide");
  EXPECT_EQ(Folder.Read("remote/Guide"), "a file");
}

TEST_F(FolderStoreTest, NamesAFolderInAFilesPlace) {
  Folder.Write("local/Guide/a", "a");
  Folder.Write("remote/Guide/a/inside", "x");
  ExpectErrorNaming(Remote() / "Guide" / "a");
  EXPECT_EQ(Folder.Read("remote/Guide/a/inside"), "x");
}

TEST_F(FolderStoreTest, LeavesWholeFilesOnlyWhereverCopyingFails) {
  const FileMap source = {{"local/Guide/a", "aaa"}, {"local/Guide/b", "bbb"}};
  for (const Operation step :
       {Operation::Open, Operation::CreateOrEmpty, Operation::Read, Operation::Write}) {
    for (int failing = 1; failing <= 2; ++failing) {
      for (const auto& [name, bytes] : source) Folder.Write(name, bytes);
      // Each file is read twice: its bytes and its end.
      System.Files.FailAt(step, step == Operation::Read ? 2 * failing - 1 : failing, std::errc::io_error);
      Progress.clear();
      EXPECT_THROW(Copy(), FileError);
      EXPECT_EQ(Progress.size(), static_cast<std::size_t>(failing) - 1);
      FileMap left = Folder.Files();
      for (const auto& [name, bytes] : source) EXPECT_EQ(left[name], bytes);
      EXPECT_EQ(left.size(), source.size() + Progress.size());
      for (const auto& [name, bytes] : left) EXPECT_EQ(bytes, std::string(3, name.back()));
      fs::remove_all(Remote() / "Guide");
    }
  }
}

TEST_F(FolderStoreTest, BringsTheFilesToTheDiskAtTheEnd) {
  Folder.Write("local/Guide/a", "a");
  Folder.Write("local/Guide/b", "b");
  System.FlushesVolumes = true;
  System.Files.FailAt(Operation::FlushVolume, 1, std::errc::io_error);
  ExpectErrorNaming(Remote() / "Guide");
  EXPECT_THAT(Progress, ElementsAre(Pair(1, 2), Pair(2, 2)));
  EXPECT_EQ(Folder.Read("remote/Guide/a") + Folder.Read("remote/Guide/b"), "ab");
}

}  // namespace
}  // namespace tavrel::test
