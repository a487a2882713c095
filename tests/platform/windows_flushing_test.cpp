#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "core/text/run_time_error.h"
#include "platform/held_file.h"
#include "platform/system_platform.h"
#include "platform/temporary_drive.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;

class WindowsFlushingTest : public testing::Test {
 protected:
  void Flush(const fs::path& folder) { System->FlushVolumeOf(folder); }

  const TemporaryFolder Folder;
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_F(WindowsFlushingTest, TakesAFolderWithSubfolders) {
  Folder.Write("z001.txt", "note");
  Folder.Write("empty.txt", "");
  Folder.Write("sub/inner/z002.txt", "note");
  fs::create_directory(Folder.Path() / "nothing");
  EXPECT_NO_THROW(Flush(Folder.Path()));
  EXPECT_EQ(Folder.Files().size(), 3U);
  EXPECT_EQ(Folder.Read("z001.txt"), "note");
}

TEST_F(WindowsFlushingTest, TakesAnEmptyFolder) {
  EXPECT_NO_THROW(Flush(Folder.Path()));
}

TEST_F(WindowsFlushingTest, TakesTheCurrentFolderByAnyName) {
  Folder.Write("sub/z001.txt", "note");
  fs::current_path(Folder.Path());
  EXPECT_NO_THROW(Flush("."));
  EXPECT_NO_THROW(Flush("sub"));
  EXPECT_NO_THROW(Flush(Folder.Path() / "sub" / ""));
}

TEST_F(WindowsFlushingTest, TakesADiskThatIsNotTheSystemsOwn) {
  Folder.Write("Notes/Guide/z001.txt", "note");
  const TemporaryDrive drive(Folder.Path());
  EXPECT_NO_THROW(Flush(drive.Root()));
  EXPECT_NO_THROW(Flush(drive.Root() / "Notes" / "Guide"));
}

TEST_F(WindowsFlushingTest, PassesOverFilesThatCannotBeWritten) {
  Folder.Write("locked.txt", "x");
  Folder.Write("z001.txt", "note");
  const fs::path locked = Folder.Path() / "locked.txt";
  ASSERT_NE(::SetFileAttributesW(locked.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN), 0);
  EXPECT_NO_THROW(Flush(Folder.Path()));
  ASSERT_NE(::SetFileAttributesW(locked.c_str(), FILE_ATTRIBUTE_NORMAL), 0);
}

TEST_F(WindowsFlushingTest, PassesOverFilesThatAnotherProgramHasOpen) {
  Folder.Write("held.txt", "x");
  Folder.Write("read.txt", "x");
  const HeldFile held(Folder.Path() / "held.txt", 0);
  const HeldFile read(Folder.Path() / "read.txt", FILE_SHARE_READ);
  EXPECT_NO_THROW(Flush(Folder.Path()));
}

TEST_F(WindowsFlushingTest, TellsOfAFolderThatIsGone) {
  const fs::path gone = Folder.Path() / "gone";
  EXPECT_THAT([&] { Flush(gone); },
              ThrowsMessage<FileError>(HasSubstr(PathText(gone) + "\ncould not be brought to the disk: ")));
}

}  // namespace
}  // namespace tavrel::test
