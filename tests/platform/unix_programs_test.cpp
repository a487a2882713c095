#include "platform/unix_programs.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "core/text/run_time_error.h"
#include "platform/system_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

bool ComesTrue(const std::function<bool()>& condition) {
  constexpr int kTries = 1000;
  for (int tries = 0; tries < kTries; ++tries) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return condition();
}

/// Sets PATH for a while.
class SearchPath {
 public:
  explicit SearchPath(const std::string& path) : old_(std::getenv("PATH")) { Set(path); }
  ~SearchPath() { Set(old_); }
  SearchPath(const SearchPath&) = delete;
  SearchPath& operator=(const SearchPath&) = delete;

 private:
  static void Set(const std::string& path) { ::setenv("PATH", path.c_str(), 1); }

  std::string old_;
};

class UnixProgramsTest : public testing::Test {
 protected:
  /// Writes a program for the shell. It runs in the current folder, which is the temporary one.
  std::string Script(const std::string& name, const std::string& commands) {
    Folder.Write(name, "#!/bin/sh\n" + commands + "\n");
    fs::permissions(Folder.Path() / name, fs::perms::owner_all);
    return (Folder.Path() / name).string();
  }

  /// A stand-in for the desktop's opener that writes down its arguments, one a line between brackets.
  void MakeOpener() {
    Script("bin/xdg-open",
           "{ for word in \"$@\"; do printf '[%s]\\n' \"$word\"; done; pwd; } >\"$RESULTS/part\"\n"
           "mv \"$RESULTS/part\" \"$RESULTS/done\"");
    ::setenv("RESULTS", Folder.Path().c_str(), 1);
  }

  /// What it wrote down, followed by the folder that it ran in.
  std::string Written() {
    EXPECT_TRUE(ComesTrue([this] { return Folder.Has("done"); }));
    return Folder.Has("done") ? Folder.Read("done") : "";
  }

  std::string PathWithOpener() const { return (Folder.Path() / "bin").string() + ":" + std::getenv("PATH"); }

  void SetUp() override { fs::current_path(Folder.Path()); }

  TemporaryFolder Folder;
};

TEST_F(UnixProgramsTest, AStartedProgramRunsWithItsArguments) {
  const std::string program = Script("write", "printf '%s|%s|%s' \"$#\" \"$1\" \"$2\" >part; mv part done");
  EXPECT_FALSE(StartDetached({program, "a b", "\"$HOME\" 'c'"}));
  EXPECT_EQ(Written(), "2|a b|\"$HOME\" 'c'");
}

TEST_F(UnixProgramsTest, ItIsNotWaitedFor) {
  const std::string program = Script("wait", "while [ ! -e go ]; do sleep 0.01; done; echo ended >done");
  EXPECT_FALSE(StartDetached({program}));
  EXPECT_FALSE(Folder.Has("done"));
  Folder.Write("go", "");
  EXPECT_TRUE(ComesTrue([this] { return Folder.Has("done"); }));
}

TEST_F(UnixProgramsTest, AMissingProgramIsAnError) {
  EXPECT_EQ(StartDetached({(Folder.Path() / "missing").string()}), std::errc::no_such_file_or_directory);
  EXPECT_EQ(StartDetached({""}), std::errc::no_such_file_or_directory);
  EXPECT_TRUE(StartDetached({"no-such-program-anywhere"}));
}

TEST_F(UnixProgramsTest, AFileThatIsNoProgramIsAnError) {
  Folder.Write("text", "not a program");
  EXPECT_EQ(StartDetached({(Folder.Path() / "text").string()}), std::errc::permission_denied);
  EXPECT_TRUE(StartDetached({Folder.Path().string()}));
}

TEST_F(UnixProgramsTest, AnEndedProgramLeavesNothingInTheListOfProcesses) {
  const std::string program = Script("number", "echo $$ >part; mv part $1; exit 3");
  for (const char* name : {"first", "second", "third"}) {
    ASSERT_FALSE(StartDetached({program, name}));
    ASSERT_TRUE(ComesTrue([&] { return Folder.Has(name); }));
    const pid_t process = std::stoi(Folder.Read(name));
    EXPECT_TRUE(ComesTrue([process] { return ::kill(process, 0) != 0; }))
        << "an ended process is still listed";
  }
}

TEST_F(UnixProgramsTest, TheSystemStartsAProgram) {
  const std::string program = Script("a program", "echo started >done");
  MakeSystemPlatform()->StartProgram(program);
  EXPECT_TRUE(ComesTrue([this] { return Folder.Has("done"); }));
}

TEST_F(UnixProgramsTest, TheSystemTellsOfAProgramThatDoesNotStart) {
  const auto system = MakeSystemPlatform();
  EXPECT_THROW(system->StartProgram(Folder.Path() / "missing"), FileError);
  EXPECT_THROW(system->StartProgram(""), FileError);
}

TEST_F(UnixProgramsTest, ThereIsNoRegistry) {
  EXPECT_FALSE(
      MakeSystemPlatform()->ReadRegistry(RegistryRoot::LocalMachine, "SOFTWARE", "PATH").has_value());
}

TEST_F(UnixProgramsTest, APageIsOpenedByTheDesktopInTheCurrentFolder) {
  MakeOpener();
  const SearchPath path(PathWithOpener());
  EXPECT_TRUE(MakeSystemPlatform()->OpenInBrowser("help.html"));
  EXPECT_EQ(Written(), "[help.html]\n" + Folder.Path().string() + "\n");
}

TEST_F(UnixProgramsTest, TheTargetIsOneArgumentWhateverItHolds) {
  MakeOpener();
  const SearchPath path(PathWithOpener());
  EXPECT_TRUE(MakeSystemPlatform()->OpenInBrowser("https://x.example/a b?q=\"c\"&d='e';$(echo f)*"));
  EXPECT_EQ(Written(), "[https://x.example/a b?q=\"c\"&d='e';$(echo f)*]\n" + Folder.Path().string() + "\n");
}

TEST_F(UnixProgramsTest, AMessageIsOpenedByTheDesktopToo) {
  MakeOpener();
  const SearchPath path(PathWithOpener());
  EXPECT_TRUE(MakeSystemPlatform()->OpenMail("mailto:a@b.example"));
  EXPECT_EQ(Written(), "[mailto:a@b.example]\n" + Folder.Path().string() + "\n");
}

TEST_F(UnixProgramsTest, WithoutADesktopNothingIsOpened) {
  const SearchPath path(Folder.Path().string());
  EXPECT_FALSE(MakeSystemPlatform()->OpenInBrowser("help.html"));
  EXPECT_FALSE(MakeSystemPlatform()->OpenMail("mailto:a@b.example"));
}

}  // namespace
}  // namespace tavrel::test
