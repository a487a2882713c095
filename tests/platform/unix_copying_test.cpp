#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <string>
#include <sys/stat.h>

#include "core/text/run_time_error.h"
#include "platform/whole_file.h"
#include "support/failing_files.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

class UnixCopyingTest : public testing::Test {
 protected:
  fs::path From() const { return Folder.Path() / "from.txt"; }
  fs::path To() const { return Folder.Path() / "to.txt"; }

  void Copy() { CopyPlainFile(Files, From(), To()); }

  TemporaryFolder Folder;
  FailingFiles Files;
};

auto OpenFiles() {
  return std::distance(fs::directory_iterator("/dev/fd"), {});
}

TEST_F(UnixCopyingTest, CopiesWhatASymbolicLinkPointsTo) {
  Folder.Write("real.txt", "bytes");
  fs::create_symlink("real.txt", From());
  Copy();
  EXPECT_EQ(Folder.Read("to.txt"), "bytes");
  EXPECT_FALSE(fs::is_symlink(To()));
  EXPECT_TRUE(fs::is_symlink(From()));
}

TEST_F(UnixCopyingTest, KeepsASymbolicLinkInTheTargetsPlace) {
  Folder.Write("from.txt", "new");
  Folder.Write("real.txt", "old");
  fs::create_symlink("real.txt", To());
  Copy();
  EXPECT_TRUE(fs::is_symlink(To()));
  EXPECT_EQ(Folder.Read("real.txt"), "new");
}

TEST_F(UnixCopyingTest, RemovesTheHalfFileBehindASymbolicLink) {
  Folder.Write("from.txt", "new");
  Folder.Write("real.txt", "old");
  fs::create_symlink("real.txt", To());
  Files.FailAt(Operation::Write, 1, std::errc::no_space_on_device);
  EXPECT_THROW(Copy(), FileError);
  EXPECT_FALSE(Folder.Has("real.txt"));
  EXPECT_TRUE(fs::is_symlink(To()));
  EXPECT_EQ(Folder.Read("from.txt"), "new");
}

TEST_F(UnixCopyingTest, DoesNoHarmWhenSymbolicLinksLeadBackToTheSource) {
  Folder.Write("from.txt", "the only copy");
  fs::create_symlink("from.txt", To());
  Copy();
  CopyPlainFile(Files, To(), From());
  fs::create_directory_symlink(".", Folder.Path() / "again");
  CopyPlainFile(Files, From(), Folder.Path() / "again" / "from.txt");
  EXPECT_EQ(Folder.Read("from.txt"), "the only copy");
  EXPECT_TRUE(fs::is_symlink(To()));
}

TEST_F(UnixCopyingTest, TouchesNothingIfTheSourceIsALinkToNothing) {
  fs::create_symlink("gone", From());
  Folder.Write("to.txt", "old");
  EXPECT_THROW(Copy(), FileError);
  EXPECT_EQ(Folder.Files(), (FileMap{{"to.txt", "old"}}));
}

TEST_F(UnixCopyingTest, GivesTheCopyTheUsualPermissions) {
  Folder.Write("from.txt", "new");
  fs::permissions(From(), fs::perms::owner_read);
  const mode_t old_mask = umask(027);
  Copy();
  umask(old_mask);
  EXPECT_EQ(fs::status(To()).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(UnixCopyingTest, LeavesNoFileOpen) {
  Folder.Write("from.txt", "new");
  const auto before = OpenFiles();
  Copy();
  EXPECT_EQ(OpenFiles(), before);
  for (const Operation step :
       {Operation::Open, Operation::CreateOrEmpty, Operation::Read, Operation::Write, Operation::Close}) {
    Files.FailAt(step, 1, std::errc::io_error);
    EXPECT_THROW(Copy(), FileError);
    EXPECT_EQ(OpenFiles(), before) << static_cast<int>(step);
  }
}

TEST_F(UnixCopyingTest, FlushesAVolume) {
  EXPECT_NO_THROW(FlushVolumeOf(SystemFiles(), Folder.Path()));
}

TEST_F(UnixCopyingTest, DoesNotWaitForAPipeInTheTargetsPlace) {
  Folder.Write("from.txt", "new");
  ASSERT_EQ(::mkfifo(To().c_str(), 0600), 0);
  EXPECT_THROW(Copy(), FileError);
  EXPECT_TRUE(fs::is_fifo(To()));
}

}  // namespace
}  // namespace tavrel::test
