#include "core/shell/system_info.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using Programs = std::vector<fs::path>;
using std::string_literals::operator""s;

class SystemInfoTest : public testing::Test {
 protected:
  void SetTool(std::uint32_t type, const std::string& bytes) {
    System.Registry["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = {.Type = type, .Bytes = bytes};
  }

  void SetFolder(const std::string& bytes) {
    System.Registry["SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO"] = {.Type = kRegistryString,
                                                                            .Bytes = bytes};
  }

  /// The folder in the way that the registry names it.
  std::string ToolsFolder() const { return (Folder.Path() / "Tools").string(); }

  fs::path ToolInFolder() const { return ToolsFolder() + "\\MSINFO32.EXE"; }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_F(SystemInfoTest, FailsWithoutEitherValue) {
  EXPECT_THROW(StartSystemInfo(System), RunTimeError);
  EXPECT_EQ(System.Started, Programs{});
}

TEST_F(SystemInfoTest, StartsTheToolThatTheRegistryNames) {
  SetTool(kRegistryString, "C:\\Info\\msinfo32.exe\0"s);
  SetFolder(ToolsFolder());
  Folder.Write("Tools\\MSINFO32.EXE", "");
  StartSystemInfo(System);
  EXPECT_EQ(System.Started, Programs{"C:\\Info\\msinfo32.exe"});
}

TEST_F(SystemInfoTest, ReadsNamesInTheSystemsCodePage) {
  SetTool(kRegistryString, "C:\\caf\xE9.exe");
  StartSystemInfo(System);
  EXPECT_EQ(System.Started, Programs{fs::path(u8"C:\\caf\u00E9.exe")});
}

TEST_F(SystemInfoTest, StartsTheToolInTheFolderThatTheRegistryNames) {
  SetFolder(ToolsFolder() + '\0');
  Folder.Write("Tools\\MSINFO32.EXE", "");
  StartSystemInfo(System);
  EXPECT_EQ(System.Started, Programs{ToolInFolder()});
}

TEST_F(SystemInfoTest, FailsIfTheToolIsNotInThatFolder) {
  SetFolder(ToolsFolder());
  EXPECT_THROW(StartSystemInfo(System), RunTimeError);
  EXPECT_EQ(System.Started, Programs{});
}

TEST_F(SystemInfoTest, FailsIfTheToolDoesNotStartAndTriesNoOther) {
  SetTool(kRegistryString, "C:\\gone.exe");
  SetFolder(ToolsFolder());
  Folder.Write("Tools\\MSINFO32.EXE", "");
  System.StartsPrograms = false;
  EXPECT_THROW(StartSystemInfo(System), RunTimeError);
}

TEST_F(SystemInfoTest, AValueOfAnotherTypeIsFoundAndEmpty) {
  SetTool(kRegistryExpandable, "%windir%\\msinfo32.exe");
  SetFolder(ToolsFolder());
  Folder.Write("Tools\\MSINFO32.EXE", "");
  StartSystemInfo(System);
  EXPECT_EQ(System.Started, Programs{""});
}

TEST_F(SystemInfoTest, FailsOnANumberBeyondAllBounds) {
  SetTool(kRegistryNumber, std::string(1024, '\xFF'));
  EXPECT_THROW(StartSystemInfo(System), RunTimeError);
  EXPECT_EQ(System.Started, Programs{});
}

}  // namespace
}  // namespace tavrel::test
