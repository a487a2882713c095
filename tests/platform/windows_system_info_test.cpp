#include <gtest/gtest.h>
#include <string>

#include "core/shell/system_info.h"
#include "core/text/run_time_error.h"
#include "platform/recorder.h"
#include "platform/system_platform.h"
#include "platform/temporary_key.h"
#include "platform/wine.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// The tool's own keys are changed, and made again as they were.
class WindowsSystemInfoTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!RunsUnderWine()) GTEST_SKIP() << "the keys are the system's own";
  }

  /// A stand-in for the tool that writes down that it was started.
  fs::path MakeTool(const fs::path& name) const {
    const fs::path tool = Folder.Path() / name;
    fs::create_directories(tool.parent_path());
    fs::copy_file(Recorder::Program(), tool);
    return tool;
  }

  void ExpectStarted(const fs::path& tool) const {
    const Recording recording = Record.Recorded();
    EXPECT_EQ(recording.Program.native(), tool.native());
    EXPECT_EQ(recording.CommandLine, '"' + PathText(tool) + '"');
  }

  TemporaryKey Key{R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)"};
  TemporaryKey Location{R"(SOFTWARE\Microsoft\Shared Tools Location)"};
  const TemporaryFolder Folder;
  const Recorder Record{Folder.Path() / "record"};
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_F(WindowsSystemInfoTest, StartsTheToolThatTheRegistryNames) {
  const fs::path tool = MakeTool(u8"caf\u00E9 tools/msinfo32.exe").make_preferred();
  Key.Set("PATH", tool.native());
  StartSystemInfo(*System);
  ExpectStarted(tool);
}

TEST_F(WindowsSystemInfoTest, StartsTheToolInTheFolderThatTheRegistryNames) {
  const fs::path tool = MakeTool("MSINFO32.EXE");
  Location.Set("MSINFO", Folder.Path().native());
  StartSystemInfo(*System);
  ExpectStarted(tool);
}

TEST_F(WindowsSystemInfoTest, FailsWithoutEitherValueOrTool) {
  EXPECT_THROW(StartSystemInfo(*System), RunTimeError);
  Location.Set("MSINFO", Folder.Path().native());
  EXPECT_THROW(StartSystemInfo(*System), RunTimeError);
  Key.Set("PATH", (Folder.Path() / "gone.exe").native());
  EXPECT_THROW(StartSystemInfo(*System), RunTimeError);
}

TEST_F(WindowsSystemInfoTest, FailsForAUserWhoMayOnlyReadTheKeys) {
  const fs::path tool = MakeTool("MSINFO32.EXE");
  Key.Set("PATH", tool.native());
  Location.Set("MSINFO", Folder.Path().native());
  Key.AllowOnly(L"KR");
  Location.AllowOnly(L"KR");
  EXPECT_THROW(StartSystemInfo(*System), RunTimeError);
  EXPECT_FALSE(Folder.Has("record"));
}

TEST_F(WindowsSystemInfoTest, TriesTheFolderWhenTheToolsOwnKeyMayOnlyBeRead) {
  Key.Set("PATH", (Folder.Path() / "gone.exe").native());
  Key.AllowOnly(L"KR");
  const fs::path tool = MakeTool("MSINFO32.EXE");
  Location.Set("MSINFO", Folder.Path().native());
  StartSystemInfo(*System);
  ExpectStarted(tool);
}

}  // namespace
}  // namespace tavrel::test
