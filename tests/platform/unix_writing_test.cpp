#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/text/run_time_error.h"
#include "platform/recording_files.h"
#include "platform/whole_file.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;
using FileMap = std::map<std::string, std::string>;

fs::perms Permissions(const fs::path& file) {
  return fs::status(file).permissions();
}

/// No file may grow beyond a size, as if the disk were full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t most) {
    old_handler_ = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &old_);
    rlimit limit = old_;
    limit.rlim_cur = most;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, old_handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit old_{};
  void (*old_handler_)(int) = nullptr;
};

/// What the error of `write` says while no file may grow beyond 4096 bytes.
template <typename Write>
std::string ErrorOnAFullDisk(Write write) {
  const FullDisk disk(4096);
  try {
    write();
  } catch (const FileError& error) {
    return error.what();
  }
  return "no error";
}

TEST(UnixWriting, KeepsTheOldFileOnAFullDisk) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", "old");
  const std::string text = ErrorOnAFullDisk(
      [&] { WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", std::string(100'000, 'x')); });
  EXPECT_THAT(text, HasSubstr(PathText(folder.Path() / "Guide.dat")));
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", "old"}}));
}

TEST(UnixWriting, LeavesNoHalfOfAPlainFileOnAFullDisk) {
  const TemporaryFolder folder;
  const std::string text = ErrorOnAFullDisk(
      [&] { WritePlainFile(SystemFiles(), folder.Path() / "z001.txt", std::string(100'000, 'x')); });
  EXPECT_THAT(text, HasSubstr(PathText(folder.Path() / "z001.txt")));
  EXPECT_TRUE(folder.Files().empty());
}

TEST(UnixWriting, KeepsASymbolicLinkAndReplacesWhatItPointsTo) {
  const TemporaryFolder folder;
  folder.Write("real/Guide.dat", "old");
  fs::create_symlink("real/Guide.dat", folder.Path() / "Guide.dat");
  RecordingFiles files;
  WriteWholeFile(files, folder.Path() / "Guide.dat", "new");
  EXPECT_EQ(fs::read_symlink(folder.Path() / "Guide.dat"), "real/Guide.dat");
  EXPECT_EQ(folder.Read("real/Guide.dat"), "new");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path() / "real"), {}), 1);
  ASSERT_EQ(files.Created.size(), 1U);
  EXPECT_EQ(files.Created[0].parent_path(), folder.Path() / "real");
  EXPECT_EQ(files.FlushedFolder, folder.Path() / "real");
}

TEST(UnixWriting, FollowsAChainOfSymbolicLinks) {
  const TemporaryFolder folder;
  folder.Write("real.dat", "old");
  fs::create_symlink("real.dat", folder.Path() / "middle.dat");
  fs::create_symlink("middle.dat", folder.Path() / "Guide.dat");
  WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", "new");
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "Guide.dat"));
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "middle.dat"));
  EXPECT_EQ(folder.Read("real.dat"), "new");
}

TEST(UnixWriting, KeepsThePermissionsOfTheOldFile) {
  const TemporaryFolder folder;
  const fs::path file = folder.Path() / "Guide.dat";
  for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
    folder.Write("Guide.dat", "old");
    fs::permissions(file, static_cast<fs::perms>(mode));
    WriteWholeFile(SystemFiles(), file, "new");
    EXPECT_EQ(Permissions(file), static_cast<fs::perms>(mode));
    EXPECT_EQ(folder.Read("Guide.dat"), "new");
  }
}

TEST(UnixWriting, GivesANewFileTheUsualPermissions) {
  const TemporaryFolder folder;
  const mode_t old_mask = umask(027);
  WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", "new");
  WritePlainFile(SystemFiles(), folder.Path() / "z001.txt", "new");
  umask(old_mask);
  EXPECT_EQ(Permissions(folder.Path() / "Guide.dat"), static_cast<fs::perms>(0640));
  EXPECT_EQ(Permissions(folder.Path() / "z001.txt"), static_cast<fs::perms>(0640));
}

TEST(UnixWriting, LeavesAReadOnlyFolderAsItIs) {
  if (geteuid() == 0) GTEST_SKIP() << "the superuser may write anywhere";
  const TemporaryFolder folder;
  folder.Write("locked/Guide.dat", "old");
  const fs::path locked = folder.Path() / "locked";
  fs::permissions(locked, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_THAT([&] { WriteWholeFile(SystemFiles(), locked / "Guide.dat", "new"); },
              ThrowsMessage<FileError>(HasSubstr(PathText(locked / "Guide.dat"))));
  EXPECT_THAT([&] { WritePlainFile(SystemFiles(), locked / "z001.txt", "new"); },
              ThrowsMessage<FileError>(HasSubstr(PathText(locked / "z001.txt"))));
  EXPECT_EQ(folder.Files(), (FileMap{{"locked/Guide.dat", "old"}}));
}

TEST(UnixWriting, RefusesToReplaceAWriteProtectedFile) {
  const TemporaryFolder folder;
  folder.Write("file", "old");
  fs::permissions(folder.Path() / "file", fs::perms::owner_read | fs::perms::group_read);
  EXPECT_THROW(WriteWholeFile(SystemFiles(), folder.Path() / "file", "new"), FileError);
  EXPECT_EQ(folder.Files().size(), 1U);
  EXPECT_EQ(folder.Read("file"), "old");
}

TEST(UnixWriting, MakesTheFileThatASymbolicLinkWaitsFor) {
  const TemporaryFolder folder;
  fs::create_symlink("real", folder.Path() / "link");
  WriteWholeFile(SystemFiles(), folder.Path() / "link", "new");
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
  EXPECT_EQ(folder.Read("real"), "new");
}

TEST(UnixWriting, RefusesSymbolicLinksThatLeadInACircle) {
  const TemporaryFolder folder;
  fs::create_symlink("b", folder.Path() / "a");
  fs::create_symlink("a", folder.Path() / "b");
  EXPECT_THROW(WriteWholeFile(SystemFiles(), folder.Path() / "a", "new"), FileError);
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "a"));
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "b"));
}

}  // namespace
}  // namespace tavrel::test
