#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/file_layer.h"
#include "platform/system_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

class UnixFilesTest : public testing::Test {
 protected:
  fs::path File(const char* name = "file") const { return Folder.Path() / name; }

  TemporaryFolder Folder;
  FileLayer& Files = SystemFiles();
  int Handle = -1;
};

TEST_F(UnixFilesTest, CreatesOnlyANewFile) {
  ASSERT_EQ(Files.CreateNew(File(), File("none"), Handle), std::error_code());
  EXPECT_EQ(Files.Close(Handle), std::error_code());
  EXPECT_EQ(Folder.Read("file"), "");
  EXPECT_EQ(Files.CreateNew(File(), File("none"), Handle), std::errc::file_exists);
}

TEST_F(UnixFilesTest, NeverCreatesANewFileThroughALink) {
  fs::create_symlink("elsewhere", File());
  EXPECT_EQ(Files.CreateNew(File(), File("none"), Handle), std::errc::file_exists);
  EXPECT_FALSE(Folder.Has("elsewhere"));
}

TEST_F(UnixFilesTest, EmptiesAFileThatIsThere) {
  Folder.Write("file", "old");
  ASSERT_EQ(Files.CreateOrEmpty(File(), Handle), std::error_code());
  EXPECT_EQ(Files.Close(Handle), std::error_code());
  EXPECT_EQ(Folder.Read("file"), "");
}

TEST_F(UnixFilesTest, WritesAndFlushes) {
  ASSERT_EQ(Files.CreateOrEmpty(File(), Handle), std::error_code());
  std::size_t written = 0;
  EXPECT_EQ(Files.Write(Handle, "a\r\nb", written), std::error_code());
  EXPECT_EQ(written, 4U);
  EXPECT_EQ(Files.Flush(Handle), std::error_code());
  EXPECT_EQ(Files.Close(Handle), std::error_code());
  EXPECT_EQ(Folder.Read("file"), "a\r\nb");
}

TEST_F(UnixFilesTest, TellsOfAHandleThatIsNotOpen) {
  std::size_t written = 0;
  EXPECT_EQ(Files.Write(-1, "x", written), std::errc::bad_file_descriptor);
  EXPECT_EQ(Files.Flush(-1), std::errc::bad_file_descriptor);
  EXPECT_EQ(Files.Close(-1), std::errc::bad_file_descriptor);
}

TEST_F(UnixFilesTest, ReplacesOneFileByAnother) {
  Folder.Write("from", "new");
  Folder.Write("to", "old");
  EXPECT_EQ(Files.Replace(File("from"), File("to")), std::error_code());
  EXPECT_EQ(Folder.Read("to"), "new");
  EXPECT_FALSE(Folder.Has("from"));
  EXPECT_EQ(Files.Replace(File("from"), File("to")), std::errc::no_such_file_or_directory);
}

TEST_F(UnixFilesTest, FlushesFoldersOnly) {
  Folder.Write("file", "x");
  EXPECT_EQ(Files.FlushFolder(Folder.Path()), std::error_code());
  EXPECT_EQ(Files.FlushFolder(File("gone")), std::errc::no_such_file_or_directory);
  EXPECT_EQ(Files.FlushFolder(File()), std::errc::not_a_directory);
}

TEST_F(UnixFilesTest, RemovesAFile) {
  Folder.Write("file", "x");
  EXPECT_EQ(Files.Remove(File()), std::error_code());
  EXPECT_FALSE(Folder.Has("file"));
  EXPECT_EQ(Files.Remove(File()), std::errc::no_such_file_or_directory);
}

TEST_F(UnixFilesTest, TellsWhyAFileCannotBeCreated) {
  fs::create_directory(File());
  EXPECT_EQ(Files.CreateOrEmpty(File(), Handle), std::errc::is_a_directory);
  EXPECT_EQ(Files.CreateNew(File("gone") / "file", File("none"), Handle),
            std::errc::no_such_file_or_directory);
}

TEST_F(UnixFilesTest, LeavesNoHandleOpenAfterFlushingAFolder) {
  const int before = ::dup(0);
  ::close(before);
  for (int i = 0; i < 5; ++i) Files.FlushFolder(Folder.Path());
  const int after = ::dup(0);
  ::close(after);
  EXPECT_EQ(after, before);
}

TEST(UnixPlatform, SaysWhyAFolderCannotBeWrittenTo) {
  const TemporaryFolder folder;
  const std::unique_ptr<Platform> platform = MakeSystemPlatform();
  EXPECT_FALSE(platform->WhyNotWritable(folder.Path()));
  EXPECT_EQ(platform->WhyNotWritable(folder.Path() / "gone"), std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace tavrel::test
