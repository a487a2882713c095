#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "core/text/run_time_error.h"
#include "platform/whole_file.h"
#include "reliability/child.h"
#include "reliability/written_file.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

/// Saving through symbolic links: "program" is the program's folder and "elsewhere" where the file itself
/// lies.
class Links : public testing::TestWithParam<WrittenFile> {
 protected:
  Links() {
    fs::create_directory(Program());
    fs::create_directory(Elsewhere());
    for (const auto& [name, bytes] : GetParam().Others) Folder.Write(Program() / name, bytes);
  }

  fs::path Program() const { return Folder.Path() / "program"; }
  fs::path Elsewhere() const { return Folder.Path() / "elsewhere"; }
  fs::path Link() const { return Program() / GetParam().Name; }

  std::string Save() {
    return FileErrorOf([this] { GetParam().Save(Program(), System); });
  }

  /// Files by their paths, links left out, when the file itself holds these bytes.
  FileMap With(const fs::path& real, const std::string& bytes) const {
    FileMap files;
    for (const auto& [name, other] : GetParam().Others) files["program/" + name] = other;
    files[real.string()] = bytes;
    return files;
  }

  FileMap WithoutLinks() const {
    FileMap files = Folder.Files();
    std::erase_if(files, [this](const auto& file) { return fs::is_symlink(Folder.Path() / file.first); });
    return files;
  }

  void ExpectRefused(const FileMap& before) {
    const fs::path led = fs::read_symlink(Link());
    EXPECT_THAT(Save(), HasSubstr(PathText(Link())));
    EXPECT_EQ(WithoutLinks(), before);
    EXPECT_EQ(fs::read_symlink(Link()), led);
  }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_P(Links, StayAndTheFileBehindThemIsReplaced) {
  Folder.Write("elsewhere/real", GetParam().Old);
  fs::create_symlink("../elsewhere/real", Link());
  EXPECT_EQ(Save(), "");
  EXPECT_EQ(fs::read_symlink(Link()), "../elsewhere/real");
  EXPECT_EQ(WithoutLinks(), With("elsewhere/real", GetParam().New));
}

TEST_P(Links, StayWithTheOldFileBehindThemWhateverFails) {
  Folder.Write("elsewhere/real", GetParam().Old);
  fs::create_symlink(Elsewhere() / "real", Link());
  for (const Operation operation :
       {Operation::CreateNew, Operation::Write, Operation::Flush, Operation::Close, Operation::Replace}) {
    System.Files.FailAt(operation, 1, std::errc::no_space_on_device);
    ExpectRefused(With("elsewhere/real", GetParam().Old));
  }
}

TEST_P(Links, InAChainThatGoesThroughALinkedFolderAllStay) {
  Folder.Write("elsewhere/deep/real", GetParam().Old);
  fs::create_directory_symlink("elsewhere/deep", Folder.Path() / "shortcut");
  fs::create_symlink("real", Elsewhere() / "deep" / "middle");
  // Up from the linked folder is "elsewhere", not where the link to it lies.
  fs::create_symlink("../shortcut/../deep/middle", Link());
  EXPECT_EQ(Save(), "");
  EXPECT_TRUE(fs::is_symlink(Link()));
  EXPECT_TRUE(fs::is_symlink(Elsewhere() / "deep" / "middle"));
  EXPECT_TRUE(fs::is_symlink(Folder.Path() / "shortcut"));
  EXPECT_EQ(Folder.Read("elsewhere/deep/real"), GetParam().New);
  EXPECT_TRUE(TemporariesIn(Elsewhere() / "deep").empty());
}

TEST_P(Links, ThatLeadToNothingGetTheFileTheyWaitFor) {
  fs::create_symlink("../elsewhere/real", Link());
  EXPECT_EQ(Save(), "");
  EXPECT_TRUE(fs::is_symlink(Link()));
  EXPECT_EQ(WithoutLinks(), With("elsewhere/real", GetParam().New));
}

TEST_P(Links, ThatLeadIntoAMissingFolderMakeNone) {
  fs::create_symlink("../missing/real", Link());
  const FileMap before = WithoutLinks();
  ExpectRefused(before);
  EXPECT_FALSE(Folder.Has("missing"));
}

TEST_P(Links, ToAWriteProtectedFileLeaveIt) {
  Folder.Write("elsewhere/real", GetParam().Old);
  fs::create_symlink("../elsewhere/real", Link());
  fs::permissions(Elsewhere() / "real", fs::perms::owner_read);
  ExpectRefused(With("elsewhere/real", GetParam().Old));
}

TEST_P(Links, ToAFolderLeaveIt) {
  Folder.Write("elsewhere/inside", "x");
  fs::create_directory_symlink("../elsewhere", Link());
  ExpectRefused(With("elsewhere/inside", "x"));
}

TEST_P(Links, InACircleStay) {
  fs::create_symlink(GetParam().Name + "2", Link());
  fs::create_symlink(GetParam().Name, Program() / (GetParam().Name + "2"));
  EXPECT_THAT(Save(), HasSubstr(PathText(Link())));
  EXPECT_TRUE(fs::is_symlink(Link()));
  EXPECT_TRUE(fs::is_symlink(Program() / (GetParam().Name + "2")));
  EXPECT_TRUE(TemporariesIn(Program()).empty());
}

TEST_P(Links, ToAPipeLeaveIt) {
  const fs::path pipe = Elsewhere() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  fs::create_symlink(pipe, Link());
  ExpectRefused(WithoutLinks());
  EXPECT_TRUE(fs::is_fifo(pipe));
}

INSTANTIATE_TEST_SUITE_P(Files, Links, testing::ValuesIn(WrittenFiles()),
                         [](const auto& file) { return file.param.Title; });

TEST(NotesThroughLinks, DoNotWaitForAPipeInTheirPlace) {
  const TemporaryFolder folder;
  const fs::path pipe = folder.Path() / "z001.txt";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const std::string message = InAProcess([&pipe] {
    ::alarm(10);  // a process that waits ends
    return FileErrorOf([&pipe] { WritePlainFile(SystemFiles(), pipe, "a note"); });
  });
  EXPECT_TRUE(message.starts_with(PathText(pipe))) << message;
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(NotesThroughLinks, NeverRemoveADeviceThatTakesNothing) {
  if (!fs::is_character_file("/dev/full")) GTEST_SKIP() << "there is no such device";
  const TemporaryFolder folder;
  fs::create_symlink("/dev/full", folder.Path() / "z001.txt");
  // Nothing is removed even if the program might: the layer below only says what it was asked.
  FailingFiles files;
  files.FailAlways(Operation::Remove, std::make_error_code(std::errc::permission_denied));
  files.FailAlways(Operation::Replace, std::make_error_code(std::errc::permission_denied));
  EXPECT_NE(FileErrorOf([&] { WritePlainFile(files, folder.Path() / "z001.txt", "a note"); }), "");
  EXPECT_NE(FileErrorOf([&] { WriteWholeFile(files, folder.Path() / "z001.txt", "a document"); }), "");
  EXPECT_TRUE(files.Calls().empty()) << "it is not even opened";
}

}  // namespace
}  // namespace tavrel::test
