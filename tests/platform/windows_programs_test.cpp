#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "core/text/run_time_error.h"
#include "platform/recorder.h"
#include "platform/system_platform.h"
#include "platform/temporary_key.h"
#include "platform/wine.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::ThrowsMessage;

constexpr const char* kShownNormally = "1";

class WindowsProgramsTest : public testing::Test {
 protected:
  void SetUp() override { fs::current_path(Folder.Path()); }

  fs::path CopyRecorder(const fs::path& name) const {
    fs::copy_file(Recorder::Program(), Folder.Path() / name);
    return Folder.Path() / name;
  }

  const TemporaryFolder Folder;
  const Recorder Record{Folder.Path() / "record"};
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_F(WindowsProgramsTest, AProgramIsStartedInANormalWindow) {
  const fs::path program = CopyRecorder(L"a program \u65E5.exe");
  System->StartProgram(program);
  const Recording recording = Record.Recorded();
  EXPECT_EQ(recording.Program.native(), program.native());
  EXPECT_EQ(recording.CommandLine, '"' + PathText(program) + '"');
  EXPECT_EQ(recording.Folder.native(), Folder.Path().native());
  EXPECT_EQ(recording.Shown, kShownNormally);
}

TEST_F(WindowsProgramsTest, APartOfANameWithBlanksIsNotStarted) {
  const fs::path part = CopyRecorder("a.exe");
  EXPECT_THROW(System->StartProgram(Folder.Path() / "a program.exe"), FileError);
  EXPECT_FALSE(Folder.Has("record"));
}

TEST_F(WindowsProgramsTest, AMissingProgramIsAnError) {
  const fs::path missing = Folder.Path() / "missing.exe";
  EXPECT_THAT([&] { System->StartProgram(missing); },
              ThrowsMessage<FileError>(
                  AllOf(HasSubstr(PathText(missing) + "\ncould not be started: "),
                        EndsWith("\nLook whether the file or its folder was moved or renamed."))));
  EXPECT_THROW(System->StartProgram(""), FileError);
}

TEST_F(WindowsProgramsTest, WhatIsNoProgramIsAnError) {
  Folder.Write("text.exe", "not a program");
  EXPECT_THROW(System->StartProgram(Folder.Path() / "text.exe"), FileError);
  EXPECT_THROW(System->StartProgram(Folder.Path()), FileError);
}

TEST_F(WindowsProgramsTest, NoProcessStaysOpen) {
  System->StartProgram(Recorder::Program());
  Record.Recorded();
  DWORD before = 0;
  DWORD after = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &before);
  for (int i = 0; i < 3; ++i) {
    System->StartProgram(Recorder::Program());
    Record.Recorded();
    EXPECT_THROW(System->StartProgram("missing.exe"), FileError);
  }
  ::GetProcessHandleCount(::GetCurrentProcess(), &after);
  EXPECT_EQ(after, before);
}

/// A recording program stands in for the system's file manager, which is put back afterwards.
class WindowsExplorerTest : public WindowsProgramsTest {
 protected:
  static inline const fs::path kExplorer = "C:\\windows\\explorer.exe";
  static inline const fs::path kKept = "C:\\windows\\tavrel-kept\\explorer.exe";

  void SetUp() override {
    if (!RunsUnderWine()) GTEST_SKIP() << "the system's own programs are left alone";
    WindowsProgramsTest::SetUp();
    fs::create_directory(kKept.parent_path());
    // What an earlier run has left there is the true one.
    if (!fs::exists(kKept)) fs::copy_file(kExplorer, kKept);
    const fs::path stand_in = kKept.parent_path() / "new.exe";
    fs::copy_file(Recorder::Program(), stand_in, fs::copy_options::overwrite_existing);
    Replace(stand_in, kExplorer);
  }

  void TearDown() override {
    if (!RunsUnderWine()) return;
    Replace(kKept, kExplorer);
    fs::remove(kKept.parent_path());
  }

  /// There is always one of them.
  static void Replace(const fs::path& from, const fs::path& to) {
    EXPECT_NE(::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING), 0);
  }

  void ExpectOpened(const std::string& target) {
    EXPECT_TRUE(System->OpenInBrowser(target));
    const Recording recording = Record.Recorded();
    EXPECT_STRCASEEQ(recording.Program.string().c_str(), kExplorer.string().c_str());
    EXPECT_EQ(recording.CommandLine, "explorer.exe " + target);
    EXPECT_EQ(recording.Folder.native(), Folder.Path().native());
    EXPECT_EQ(recording.Shown, kShownNormally);
  }
};

TEST_F(WindowsExplorerTest, OpensAPageOfTheCurrentFolder) {
  ExpectOpened("help.html");
}

TEST_F(WindowsExplorerTest, OpensAnAddressAsItIs) {
  ExpectOpened("https://tavrel.example/a?b=c&d=e%20f#g");
}

TEST_F(WindowsExplorerTest, IsNotAProgramOfItsNameInTheCurrentFolder) {
  CopyRecorder("explorer.exe");
  ExpectOpened("help.html");
}

/// A recording program is what opens messages.
class WindowsMailTest : public WindowsProgramsTest {
 protected:
  static constexpr const char* kHandler = R"(SOFTWARE\Classes\mailto\shell\open\command)";

  void SetUp() override {
    if (!RunsUnderWine()) GTEST_SKIP() << "the user's own e-mail program is left alone";
    // The current folder stays as it is: what opens messages may start a desktop, which remains in it.
    mailer_ = CopyRecorder("a mailer.exe");
    command_.Set("", L'"' + mailer_.native() + L"\" \"%1\"");
  }

  fs::path mailer_;

 private:
  TemporaryKey command_{kHandler};
};

TEST_F(WindowsMailTest, StartsAMessageToTheAddress) {
  EXPECT_TRUE(System->OpenMail("mailto:support@tavrel.example"));
  const Recording recording = Record.Recorded();
  EXPECT_EQ(recording.Program.native(), mailer_.native());
  EXPECT_THAT(recording.CommandLine, EndsWith("a mailer.exe\" \"mailto:support@tavrel.example\""));
  EXPECT_EQ(recording.Shown, kShownNormally);
}

TEST_F(WindowsMailTest, TellsOfAMailerThatIsGone) {
  fs::remove(mailer_);
  EXPECT_FALSE(System->OpenMail("mailto:support@tavrel.example"));
}

TEST_F(WindowsMailTest, AnAddressThatNothingOpensIsNotTried) {
  EXPECT_FALSE(System->OpenMail("tavrel-nothing-opens-this:support@tavrel.example"));
}

}  // namespace
}  // namespace tavrel::test
