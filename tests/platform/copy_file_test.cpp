#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "core/text/run_time_error.h"
#include "platform/recording_files.h"
#include "platform/whole_file.h"
#include "support/failing_files.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

constexpr std::size_t kPart = 256 * 1024;  // what is copied at once

/// Bytes of every value, without a period that a part could hide.
std::string Bytes(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i % 251 + i / kPart);
  return bytes;
}

class CopyFileTest : public testing::Test {
 protected:
  fs::path From() const { return Folder.Path() / "from.txt"; }
  fs::path To() const { return Folder.Path() / "to.txt"; }

  void Copy() { CopyPlainFile(Files, From(), To()); }

  /// The nth call of an operation fails; the error must name the file and its cause.
  void ExpectErrorNaming(const fs::path& file, Operation operation, int nth = 1) {
    constexpr std::errc kCause = std::errc::no_space_on_device;
    Files.FailAt(operation, nth, kCause);
    EXPECT_THAT([&] { Copy(); },
                ThrowsMessage<FileError>(
                    AllOf(HasSubstr(PathText(file)), HasSubstr(std::make_error_code(kCause).message()))))
        << static_cast<int>(operation) << " " << nth;
  }

  TemporaryFolder Folder;
  FailingFiles Files;
};

TEST_F(CopyFileTest, CopiesFilesOfAnySize) {
  for (const std::size_t size :
       {std::size_t{0}, std::size_t{1}, kPart - 1, kPart, kPart + 1, 3 * kPart + 7}) {
    fs::remove(To());
    Folder.Write("from.txt", Bytes(size));
    Copy();
    EXPECT_TRUE(Folder.Read("from.txt") == Bytes(size)) << size;
    EXPECT_TRUE(Folder.Read("to.txt") == Bytes(size)) << size;
  }
}

TEST_F(CopyFileTest, ReplacesALongerFile) {
  Folder.Write("from.txt", "new\r\n\0\xE9"s);
  Folder.Write("to.txt", "a longer text from before");
  Copy();
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "new\r\n\0\xE9"s}, {"to.txt", "new\r\n\0\xE9"s}}));
}

TEST_F(CopyFileTest, ReplacesAFileByAnEmptyOne) {
  Folder.Write("from.txt", "");
  Folder.Write("to.txt", "from before");
  Copy();
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", ""}, {"to.txt", ""}}));
}

TEST_F(CopyFileTest, DoesNotWaitForTheDisk) {
  Folder.Write("from.txt", "x");
  RecordingFiles files;
  CopyPlainFile(files, From(), To());
  EXPECT_THAT(files.Calls, ElementsAre("Open", "CreateOrEmpty", "Read", "Write", "Read", "Close", "Close"));
}

TEST_F(CopyFileTest, GoesOnAfterShortWrites) {
  Folder.Write("from.txt", Bytes(kPart + 5));
  Files.CutWritesAt(100'000);
  Copy();
  EXPECT_TRUE(Folder.Read("to.txt") == Bytes(kPart + 5));
}

TEST_F(CopyFileTest, GivesUpWhenNothingMoreIsTaken) {
  Folder.Write("from.txt", "x");
  Files.CutWritesAt(0);
  EXPECT_THAT([&] { Copy(); }, ThrowsMessage<FileError>(HasSubstr(PathText(To()))));
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "x"}}));
}

TEST_F(CopyFileTest, TouchesNothingIfTheSourceCannotBeOpened) {
  Folder.Write("from.txt", "new");
  ExpectErrorNaming(From(), Operation::Open);
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "new"}}));
  Folder.Write("to.txt", "old");
  ExpectErrorNaming(From(), Operation::Open);
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "new"}, {"to.txt", "old"}}));
}

TEST_F(CopyFileTest, TouchesNothingIfTheSourceIsGone) {
  Folder.Write("to.txt", "old");
  EXPECT_THAT([&] { Copy(); }, ThrowsMessage<FileError>(HasSubstr(PathText(From()))));
  EXPECT_EQ(Folder.Files(), (FileMap{{"to.txt", "old"}}));
}

TEST_F(CopyFileTest, LeavesATargetThatCannotBeOpened) {
  Folder.Write("from.txt", "new");
  Folder.Write("to.txt", "old");
  ExpectErrorNaming(To(), Operation::CreateOrEmpty);
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "new"}, {"to.txt", "old"}}));
}

TEST_F(CopyFileTest, RemovesATargetWhoseSourceCannotBeReadToItsEnd) {
  Folder.Write("from.txt", Bytes(2 * kPart));
  for (int nth = 1; nth <= 3; ++nth) {  // two parts and the end
    Folder.Write("to.txt", "old");
    ExpectErrorNaming(From(), Operation::Read, nth);
    EXPECT_FALSE(Folder.Has("to.txt")) << nth;
    EXPECT_TRUE(Folder.Read("from.txt") == Bytes(2 * kPart));
  }
}

TEST_F(CopyFileTest, RemovesATargetThatIsNotWrittenToItsEnd) {
  Folder.Write("from.txt", Bytes(2 * kPart));
  Files.CutWritesAt(kPart / 2);
  for (int nth = 1; nth <= 4; ++nth) {
    Folder.Write("to.txt", "old");
    ExpectErrorNaming(To(), Operation::Write, nth);
    EXPECT_FALSE(Folder.Has("to.txt")) << nth;
    EXPECT_TRUE(Folder.Read("from.txt") == Bytes(2 * kPart));
  }
}

TEST_F(CopyFileTest, RemovesATargetThatCannotBeClosed) {
  for (const char* bytes : {"new", ""}) {
    Folder.Write("from.txt", bytes);
    Folder.Write("to.txt", "old");
    ExpectErrorNaming(To(), Operation::Close);
    EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", bytes}}));
  }
}

TEST_F(CopyFileTest, NeedsNoSourceThatCanBeClosed) {
  Folder.Write("from.txt", "new");
  Files.FailAt(Operation::Close, 2, std::errc::io_error);
  EXPECT_NO_THROW(Copy());
  EXPECT_EQ(Folder.Read("to.txt"), "new");
}

TEST_F(CopyFileTest, DoesNoHarmToAFileThatIsCopiedOntoItself) {
  Folder.Write("from.txt", "the only copy");
  CopyPlainFile(Files, From(), From());
  CopyPlainFile(Files, From(), Folder.Path() / "." / "from.txt");
  fs::current_path(Folder.Path());
  CopyPlainFile(Files, "from.txt", From());
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "the only copy"}}));
}

TEST_F(CopyFileTest, DoesNoHarmToAFileOfTwoNames) {
  Folder.Write("from.txt", "the only copy");
  fs::create_hard_link(From(), To());
  Copy();
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "the only copy"}, {"to.txt", "the only copy"}}));
}

TEST_F(CopyFileTest, NeverReplacesAFolder) {
  Folder.Write("from.txt", "new");
  Folder.Write("to.txt/inside", "x");
  EXPECT_THAT([&] { Copy(); }, ThrowsMessage<FileError>(HasSubstr(PathText(To()))));
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "new"}, {"to.txt/inside", "x"}}));
}

TEST_F(CopyFileTest, NamesATargetWhoseFolderIsGone) {
  Folder.Write("from.txt", "new");
  const fs::path target = Folder.Path() / "gone" / "to.txt";
  EXPECT_THAT([&] { CopyPlainFile(Files, From(), target); },
              ThrowsMessage<FileError>(HasSubstr(PathText(target))));
  EXPECT_EQ(Folder.Files(), (FileMap{{"from.txt", "new"}}));
}

TEST_F(CopyFileTest, FlushesTheVolumeOfAFolder) {
  RecordingFiles files;
  FlushVolumeOf(files, Folder.Path());
  EXPECT_THAT(files.Calls, ElementsAre("FlushVolume"));
}

TEST_F(CopyFileTest, NamesAFolderWhoseVolumeCannotBeFlushed) {
  const fs::path gone = Folder.Path() / "gone";
  EXPECT_THAT([&] { FlushVolumeOf(SystemFiles(), gone); },
              ThrowsMessage<FileError>(HasSubstr(PathText(gone))));
  Files.FailAt(Operation::FlushVolume, 1, std::errc::io_error);
  EXPECT_THAT([&] { FlushVolumeOf(Files, Folder.Path()); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path()))));
}

TEST_F(CopyFileTest, AFolderIsNoSourceAndCostsNoTarget) {
  fs::create_directory(From());
  Folder.Write("to.txt", "old");
  EXPECT_THAT([&] { Copy(); }, ThrowsMessage<FileError>(HasSubstr(PathText(From()))));
  EXPECT_EQ(Folder.Read("to.txt"), "old");
}

}  // namespace
}  // namespace tavrel::test
