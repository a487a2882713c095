#include "platform/whole_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "platform/recording_files.h"
#include "support/failing_files.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

const std::string kOld = "the old bytes, longer than the new ones";
const std::string kNew = "new\r\nbytes\0\xE9\xFF, whole"s;  // twenty bytes

TEST(WriteWholeFile, MakesAFile) {
  const TemporaryFolder folder;
  WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", kNew);
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kNew}}));
}

TEST(WriteWholeFile, ReplacesAFile) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", kOld);
  folder.Write("Guide.bak", "other");
  WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", kNew);
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kNew}, {"Guide.bak", "other"}}));
}

TEST(WriteWholeFile, WritesNothingAtAllIntoAnEmptyFile) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", kOld);
  WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", "");
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", ""}}));
}

TEST(WriteWholeFile, TakesABareNameInTheCurrentFolder) {
  const TemporaryFolder folder;
  fs::current_path(folder.Path());
  WriteWholeFile(SystemFiles(), "Guide.dat", kNew);
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kNew}}));
}

TEST(WriteWholeFile, WritesLargeFiles) {
  const TemporaryFolder folder;
  std::string bytes(5'000'000, 'x');
  for (std::size_t i = 0; i < bytes.size(); i += 977) bytes[i] = static_cast<char>(i % 251);
  WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", bytes);
  EXPECT_EQ(folder.Read("Guide.dat"), bytes);
}

TEST(WriteWholeFile, GoesOnAfterShortWrites) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", kOld);
  for (const std::size_t most : {1U, 3U, 19U, 20U, 21U}) {
    FailingFiles files;
    files.CutWritesAt(most);
    WriteWholeFile(files, folder.Path() / "Guide.dat", kNew);
    EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kNew}}));
  }
}

TEST(WriteWholeFile, GivesUpWhenNothingMoreIsTaken) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", kOld);
  FailingFiles files;
  files.CutWritesAt(0);
  EXPECT_THROW(WriteWholeFile(files, folder.Path() / "Guide.dat", kNew), FileError);
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kOld}}));
}

TEST(WriteWholeFile, IsOnTheDiskBeforeItTakesTheOldFilesPlace) {
  const TemporaryFolder folder;
  RecordingFiles files;
  WriteWholeFile(files, folder.Path() / "Guide.dat", kNew);
  EXPECT_THAT(files.Calls, ElementsAre("CreateNew", "Write", "Flush", "Close", "Replace", "FlushFolder"));
  EXPECT_EQ(files.FlushedFolder, folder.Path());
}

TEST(WriteWholeFile, HasATemporaryFileBesideItThatNoListShows) {
  const TemporaryFolder folder;
  RecordingFiles files;
  for (int i = 0; i < 20; ++i) WriteWholeFile(files, folder.Path() / "Guide.dat", kNew);
  for (const fs::path& temporary : files.Created) {
    EXPECT_EQ(temporary.parent_path(), folder.Path());
    const std::string name = CodePage::Windows1252().Lower(temporary.filename().string());
    for (const char* extension : {".dat", ".bak", ".pln", ".txt", ".ini"})
      EXPECT_THAT(name, Not(EndsWith(extension)));
  }
}

TEST(WriteWholeFile, TriesAnotherTemporaryNameIfOneIsTaken) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", kOld);
  FailingFiles files;
  files.FailAt(Operation::CreateNew, 1, std::errc::file_exists);
  WriteWholeFile(files, folder.Path() / "Guide.dat", kNew);
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kNew}}));
}

TEST(WriteWholeFile, RefusesToReplaceAFolder) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat/inside", "x");
  EXPECT_THAT([&] { WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", kNew); },
              ThrowsMessage<FileError>(HasSubstr(PathText(folder.Path() / "Guide.dat"))));
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat/inside", "x"}}));
}

TEST(WriteWholeFile, RefusesToReplaceAnEmptyFolder) {
  const TemporaryFolder folder;
  fs::create_directory(folder.Path() / "Guide.dat");
  EXPECT_THROW(WriteWholeFile(SystemFiles(), folder.Path() / "Guide.dat", kNew), FileError);
  EXPECT_TRUE(fs::is_directory(folder.Path() / "Guide.dat"));
  EXPECT_TRUE(folder.Files().empty());
}

TEST(WriteWholeFile, NamesAFileWhoseFolderIsGone) {
  const TemporaryFolder folder;
  const fs::path file = folder.Path() / "gone" / "Guide.dat";
  EXPECT_THAT([&] { WriteWholeFile(SystemFiles(), file, kNew); },
              ThrowsMessage<FileError>(HasSubstr(PathText(file))));
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

struct Step {
  Operation Fails;
  int Calls;  ///< how often it occurs when twenty bytes are written five at a time
};

void PrintTo(const Step& step, std::ostream* out) {
  *out << "operation " << static_cast<int>(step.Fails);
}

constexpr std::errc kErrors[] = {std::errc::no_space_on_device, std::errc::io_error,
                                 std::errc::permission_denied, std::errc::read_only_file_system,
                                 std::errc::interrupted};

using Fault = std::tuple<Step, std::errc>;

class FailingWholeFile : public testing::TestWithParam<Fault> {
 protected:
  /// Writes the file with a fault in the nth call of the step; true if that was an error, which must name
  /// the file.
  bool WriteFails(int nth) {
    FailingFiles files;
    files.CutWritesAt(5);
    const auto& [step, error] = GetParam();
    files.FailAt(step.Fails, nth, error);
    try {
      WriteWholeFile(files, Folder.Path() / "Guide.dat", kNew);
    } catch (const FileError& file_error) {
      EXPECT_THAT(file_error.what(), AllOf(HasSubstr(PathText(Folder.Path() / "Guide.dat")),
                                           HasSubstr(std::make_error_code(error).message())));
      return true;
    }
    return false;
  }

  int Calls() const { return std::get<Step>(GetParam()).Calls; }

  TemporaryFolder Folder;
};

TEST_P(FailingWholeFile, LeavesTheOldFile) {
  Folder.Write("Guide.dat", kOld);
  for (int nth = 1; nth <= Calls(); ++nth) {
    EXPECT_TRUE(WriteFails(nth)) << nth;
    EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", kOld}})) << nth;
  }
  EXPECT_FALSE(WriteFails(Calls() + 1));
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", kNew}}));
}

TEST_P(FailingWholeFile, LeavesNoFileWhereThereWasNone) {
  for (int nth = 1; nth <= Calls(); ++nth) {
    EXPECT_TRUE(WriteFails(nth)) << nth;
    EXPECT_TRUE(fs::is_empty(Folder.Path())) << nth;
  }
  EXPECT_FALSE(WriteFails(Calls() + 1));
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", kNew}}));
}

INSTANTIATE_TEST_SUITE_P(
    EachStep, FailingWholeFile,
    testing::Combine(testing::Values(Step{Operation::CreateNew, 1}, Step{Operation::Write, 4},
                                     Step{Operation::Flush, 1}, Step{Operation::Close, 1},
                                     Step{Operation::Replace, 1}),
                     testing::ValuesIn(kErrors)));

TEST(WriteWholeFile, HasTheNewFileInPlaceWhenOnlyTheFolderCannotBeFlushed) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", kOld);
  FailingFiles files;
  files.FailAt(Operation::FlushFolder, 1, std::errc::io_error);
  EXPECT_NO_THROW(WriteWholeFile(files, folder.Path() / "Guide.dat", kNew));
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", kNew}}));
}

}  // namespace
}  // namespace tavrel::test
