#include "core/shell/program_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;

TEST(FindProgramFolder, IsTheExecutablesFolderOfAPortableCopy) {
  const TemporaryFolder folder;
  folder.Write("bin/tavrel.ini", "");
  EXPECT_EQ(FindProgramFolder(folder.Path() / "bin", folder.Path() / "Documents"), folder.Path() / "bin");
}

TEST(FindProgramFolder, LiesInTheDocumentsFolderOtherwise) {
  const TemporaryFolder folder;
  folder.Write("bin/program", "");
  folder.Write("Documents/tavrel.ini", "");
  EXPECT_EQ(FindProgramFolder(folder.Path() / "bin", folder.Path() / "Documents"),
            folder.Path() / "Documents" / "Tavrel Writer");
}

TEST(FindProgramFolder, TakesNoFolderForASettingsFile) {
  const TemporaryFolder folder;
  fs::create_directories(folder.Path() / "bin" / "tavrel.ini");
  EXPECT_EQ(FindProgramFolder(folder.Path() / "bin", folder.Path() / "Documents"),
            folder.Path() / "Documents" / "Tavrel Writer");
}

#ifdef _WIN32
TEST(FindProgramFolder, LiesOnADriveWithACapitalLetter) {
  EXPECT_EQ(FindProgramFolder("c:\\bin", "d:\\docs").native(), L"D:\\docs\\Tavrel Writer");
  EXPECT_EQ(FindProgramFolder("c:\\bin", "\\\\server\\docs").native(), L"\\\\server\\docs\\Tavrel Writer");
}
#endif

TEST(FindProgramFolder, MakesNothing) {
  const TemporaryFolder folder;
  FindProgramFolder(folder.Path() / "bin", folder.Path() / "Documents");
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(EnterProgramFolder, MakesTheFolderOnFirstStart) {
  const TemporaryFolder folder;
  const fs::path made = folder.Path() / "Documents" / "Tavrel Writer";
  EnterProgramFolder(made, FakePlatform());
  EXPECT_EQ(fs::current_path(), made);
}

TEST(EnterProgramFolder, MakesAnExistingFolderCurrent) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", "x");
  EnterProgramFolder(folder.Path(), FakePlatform());
  EXPECT_EQ(fs::current_path(), folder.Path());
  EXPECT_EQ(folder.Read("Guide.dat"), "x");
}

TEST(EnterProgramFolder, NamesAFolderThatCannotBeEntered) {
  const TemporaryFolder folder;
  folder.Write("file", "x");
  const fs::path before = fs::current_path();
  for (const fs::path& impossible : {folder.Path() / "file", folder.Path() / "file" / "Tavrel Writer"}) {
    EXPECT_THAT([&] { EnterProgramFolder(impossible, FakePlatform()); },
                ThrowsMessage<FileError>(HasSubstr(PathText(impossible))));
  }
  EXPECT_EQ(fs::current_path(), before);
}

TEST(EnterProgramFolder, NamesAFolderThatCannotBeListed) {
  const TemporaryFolder folder;
  const fs::path before = fs::current_path();
  FakePlatform system;
  system.NotReadable = {folder.Path()};
  EXPECT_THAT([&] { EnterProgramFolder(folder.Path(), system); },
              ThrowsMessage<FileError>(HasSubstr(PathText(folder.Path()))));
  EXPECT_EQ(fs::current_path(), before);
}

TEST(IsFirstStart, LastsUntilTheSettingsAreWritten) {
  const TemporaryFolder folder;
  EXPECT_TRUE(IsFirstStart(folder.Path()));
  folder.Write("tavrel.ini", "");
  EXPECT_FALSE(IsFirstStart(folder.Path()));
}

TEST(ReturnToProgramFolder, MakesItCurrentOrNamesIt) {
  const TemporaryFolder folder;
  Global global;
  global.ProgramFolder = folder.Path() / "inner";
  EXPECT_THROW(ReturnToProgramFolder(global), FileError);
  std::filesystem::create_directory(global.ProgramFolder);
  ReturnToProgramFolder(global);
  EXPECT_EQ(std::filesystem::current_path(), global.ProgramFolder);
}

}  // namespace
}  // namespace tavrel::test
