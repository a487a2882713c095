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
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

const std::string kNote = "note\r\n\0\xE9"s;

class PlainFileTest : public testing::Test {
 protected:
  fs::path File() const { return Folder.Path() / "z001.txt"; }

  void ExpectErrorNamingTheFile() {
    EXPECT_THAT([&] { WritePlainFile(Files, File(), kNote); },
                ThrowsMessage<FileError>(HasSubstr(PathText(File()))));
  }

  TemporaryFolder Folder;
  FailingFiles Files;
};

TEST_F(PlainFileTest, MakesAFile) {
  WritePlainFile(Files, File(), kNote);
  EXPECT_EQ(Folder.Files(), (FileMap{{"z001.txt", kNote}}));
}

TEST_F(PlainFileTest, ReplacesALongerFile) {
  Folder.Write("z001.txt", "a longer text from before");
  WritePlainFile(Files, File(), kNote);
  EXPECT_EQ(Folder.Files(), (FileMap{{"z001.txt", kNote}}));
}

TEST_F(PlainFileTest, DoesNotWaitForTheDisk) {
  RecordingFiles files;
  WritePlainFile(files, File(), kNote);
  EXPECT_THAT(files.Calls, ElementsAre("CreateOrEmpty", "Write", "Close"));
}

TEST_F(PlainFileTest, GoesOnAfterShortWrites) {
  Files.CutWritesAt(3);
  WritePlainFile(Files, File(), kNote);
  EXPECT_EQ(Folder.Files(), (FileMap{{"z001.txt", kNote}}));
}

TEST_F(PlainFileTest, RemovesAFileThatIsNotWrittenToItsEnd) {
  Files.CutWritesAt(3);
  for (int nth = 1; nth <= 3; ++nth) {
    Folder.Write("z001.txt", "from before");
    Files.FailAt(Operation::Write, nth, std::errc::no_space_on_device);
    ExpectErrorNamingTheFile();
    EXPECT_TRUE(Folder.Files().empty()) << nth;
  }
}

TEST_F(PlainFileTest, RemovesAFileThatCannotBeClosed) {
  Files.FailAt(Operation::Close, 1, std::errc::io_error);
  ExpectErrorNamingTheFile();
  EXPECT_TRUE(Folder.Files().empty());
}

TEST_F(PlainFileTest, LeavesAFileThatCannotBeOpened) {
  Folder.Write("z001.txt", "from before");
  Files.FailAt(Operation::CreateOrEmpty, 1, std::errc::permission_denied);
  ExpectErrorNamingTheFile();
  EXPECT_EQ(Folder.Files(), (FileMap{{"z001.txt", "from before"}}));
}

TEST_F(PlainFileTest, GivesUpWhenNothingMoreIsTaken) {
  Files.CutWritesAt(0);
  ExpectErrorNamingTheFile();
  EXPECT_TRUE(Folder.Files().empty());
}

TEST_F(PlainFileTest, NeverReplacesAFolder) {
  Folder.Write("z001.txt/inside", "x");
  ExpectErrorNamingTheFile();
  EXPECT_EQ(Folder.Files(), (FileMap{{"z001.txt/inside", "x"}}));
}

TEST_F(PlainFileTest, NamesAFileWhoseFolderIsGone) {
  const fs::path file = Folder.Path() / "gone" / "z001.txt";
  EXPECT_THAT([&] { WritePlainFile(Files, file, kNote); },
              ThrowsMessage<FileError>(HasSubstr(PathText(file))));
}

}  // namespace
}  // namespace tavrel::test
