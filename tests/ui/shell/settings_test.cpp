#include <gmock/gmock.h>

#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using SettingsTest = ShellTest;

TEST_F(SettingsTest, AFirstStartWritesTheDefaultsAndShowsSkins) {
  Start();
  EXPECT_EQ(Folder.Read("tavrel.ini"), kDefaultSettings);
  EXPECT_EQ(kDefaultSettings.size(), 77U);
  EXPECT_TRUE(State.UseSkin);
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(SettingsTest, TickingEnableWritesLine10AndKeepsTheOthers) {
  const std::string head =
      "&H0000FF&\r\n&H000001&\r\n&H000002&\r\n&H000003&\r\n\r\nkeep Caf\xE9\r\n\r\n\r\n\r\n";
  const std::string tail = "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\nlast\r\n";
  WriteSettingsFile(head + "0\r\n" + tail);
  Start();
  EXPECT_FALSE(State.UseSkin);
  EXPECT_FALSE(SettingsWereWritten());
  CustomiseWith(true);
  EXPECT_TRUE(State.UseSkin);
  EXPECT_EQ(Folder.Read("tavrel.ini"), head + "1\r\n" + tail);
}

TEST_F(SettingsTest, UntickingEnableWrites0) {
  WriteSettings("1");
  CustomiseWith(false);
  EXPECT_FALSE(State.UseSkin);
  std::string expected = kDefaultSettings;
  expected.replace(expected.find("1\r\n"), 1, "0");
  EXPECT_EQ(Folder.Read("tavrel.ini"), expected);
}

TEST_F(SettingsTest, ACommaShiftsTheLinesThatFollow) {
  std::string bytes = kDefaultSettings;
  bytes.replace(0, std::string("&H000000&").size(), "a,b");
  WriteSettingsFile(bytes);
  Start();
  EXPECT_FALSE(State.UseSkin) << "the flag is read from line 9";
  Customise([](QWidget& dialog) { Click(dialog, "Command1"); });
  EXPECT_EQ(Folder.Read("tavrel.ini"),
            "a\r\nb\r\n&H000000&\r\n&H800000&\r\n&H000080&\r\n"
            "\r\n\r\n\r\n\r\n0\r\n1\r\n"
            "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST_F(SettingsTest, NineteenLinesEndTheProgram) {
  const std::string nineteen = kDefaultSettings.substr(0, kDefaultSettings.size() - 2);
  WriteSettingsFile(nineteen);
  Start();
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("tavrel.ini")));
  EXPECT_EQ(Folder.Read("tavrel.ini"), nineteen);
}

TEST_F(SettingsTest, AnEmptyFileEndsTheProgram) {
  WriteSettingsFile("");
  Start();
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("tavrel.ini")));
  EXPECT_EQ(Folder.Read("tavrel.ini"), "");
}

TEST_F(SettingsTest, AFileThatCannotBeMadeEndsTheProgram) {
  System.Files.FailAt(FailingFiles::Operation::CreateNew, 1, std::errc::permission_denied);
  Start();
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("tavrel.ini")));
  EXPECT_FALSE(Folder.Has("tavrel.ini"));
}

TEST_F(SettingsTest, AFileThatCannotBeReplacedEndsTheProgramAndStays) {
  WriteSettings("1");
  Customise([this](QWidget& dialog) {
    Click(dialog, "Check1");
    System.Files.FailAt(FailingFiles::Operation::Write, 1, std::errc::no_space_on_device);
    Click(dialog, "Command1");
    dialog.close();
  });
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("tavrel.ini")));
  EXPECT_EQ(Folder.Read("tavrel.ini"), kDefaultSettings);
}

TEST_F(SettingsTest, LinesMayEndInALineFeedAlone) {
  std::string bytes = kDefaultSettings;
  std::erase(bytes, '\r');
  WriteSettingsFile(bytes);
  Start();
  EXPECT_TRUE(Program.Failures.empty());
  EXPECT_TRUE(State.UseSkin);
  CustomiseWith(true);
  EXPECT_EQ(Folder.Read("tavrel.ini"), kDefaultSettings);
}

struct Flag {
  const char* Line10;
  bool IsOn;
};

class SkinFlagTest : public ShellTest, public testing::WithParamInterface<Flag> {};

TEST_P(SkinFlagTest, IsReadLenientlyAndRewrittenOnlyByCustomise) {
  WriteSettings(GetParam().Line10);
  Start();
  EXPECT_EQ(State.UseSkin, GetParam().IsOn);
  EXPECT_FALSE(SettingsWereWritten());
  Customise([](QWidget& dialog) { Click(dialog, "Command1"); });
  std::string expected = kDefaultSettings;
  expected.replace(expected.find("1\r\n"), 1, GetParam().IsOn ? "1" : "0");
  EXPECT_EQ(Folder.Read("tavrel.ini"), expected);
}

INSTANTIATE_TEST_SUITE_P(Lines, SkinFlagTest,
                         testing::Values(Flag{"1", true}, Flag{"-1", true}, Flag{"2", true}, Flag{" 1", true},
                                         Flag{"0.5", true}, Flag{"1abc", true}, Flag{"", false},
                                         Flag{"0", false}, Flag{"yes", false}));

}  // namespace
}  // namespace tavrel::test
