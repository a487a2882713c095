#include "core/shell/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;
using LineList = std::vector<std::string>;
using FileMap = std::map<std::string, std::string>;

constexpr std::string_view kDefaults =
    "&H000000&\r\n&H000000&\r\n&H800000&\r\n&H000080&\r\n"
    "\r\n\r\n\r\n\r\n\r\n"
    "1\r\n"
    "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";

std::string Joined(const LineList& lines, const std::string& line_end = "\r\n") {
  std::string text;
  for (const std::string& line : lines) text += line + line_end;
  return text;
}

/// Twenty lines: the defaults, but for one of them.
LineList LinesWith(std::size_t number, const std::string& line) {
  LineList lines(20);
  lines[0] = lines[1] = "&H000000&";
  lines[2] = "&H800000&";
  lines[3] = "&H000080&";
  lines[9] = "1";
  lines.at(number - 1) = line;
  return lines;
}

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() { State.ProgramFolder = Folder.Path(); }

  void Load(const std::string& file) {
    Folder.Write("tavrel.ini", file);
    LoadSettings(State, System);
  }

  bool IsOnWith(const std::string& flag) {
    Load(Joined(LinesWith(10, flag)));
    return State.UseSkin;
  }

  LineList Entries() const { return {State.Settings.begin() + 1, State.Settings.end()}; }

  std::string Saved() {
    SaveSettings(State, System);
    return Folder.Read("tavrel.ini");
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

TEST_F(SettingsTest, MakesTheFileWithTheDefaultsIfThereIsNone) {
  LoadSettings(State, System);
  EXPECT_EQ(kDefaults.size(), 77U);
  EXPECT_EQ(Folder.Files(), (FileMap{{"tavrel.ini", std::string(kDefaults)}}));
  EXPECT_TRUE(State.UseSkin);
  EXPECT_EQ(Entries(), LinesWith(10, "1"));
}

TEST_F(SettingsTest, SetsAndWritesTheDefaultsOverAnything) {
  State.Settings.fill("old");
  DefaultSettings(State, System);
  EXPECT_EQ(Folder.Read("tavrel.ini"), kDefaults);
  EXPECT_TRUE(State.UseSkin);
  EXPECT_EQ(State.Settings[0], "old");
}

TEST_F(SettingsTest, ReadsTwentyLines) {
  LineList lines;
  for (int line = 1; line <= 20; ++line) lines.push_back("value " + std::to_string(line));
  Load(Joined(lines));
  EXPECT_EQ(Entries(), lines);
}

TEST_F(SettingsTest, NeverTouchesEntryZero) {
  State.Settings[0] = "mine";
  Load(std::string(kDefaults));
  EXPECT_EQ(State.Settings[0], "mine");
  EXPECT_EQ(Saved(), kDefaults);
}

TEST_F(SettingsTest, ReadsLineFeedsAloneAndALastLineWithoutItsEnd) {
  Load(Joined(LinesWith(6, "keep"), "\n"));
  EXPECT_EQ(Entries(), LinesWith(6, "keep"));
  const std::string file = Joined(LinesWith(20, "last"));
  Load(file.substr(0, file.size() - 2));
  EXPECT_EQ(Entries(), LinesWith(20, "last"));
}

TEST_F(SettingsTest, IgnoresWhatFollowsTheTwentiethLine) {
  Load(std::string(kDefaults) + "more\r\n");
  EXPECT_EQ(Entries(), LinesWith(10, "1"));
}

TEST_F(SettingsTest, SwitchesSkinsOnForAnyNumberButZero) {
  for (const char* flag : {"1", "-1", "2", " 1", "0.5", "1abc", "-0.5"}) EXPECT_TRUE(IsOnWith(flag)) << flag;
  for (const char* flag : {"", "0", "yes", "00", " ", "0.0", "-", "x1"}) EXPECT_FALSE(IsOnWith(flag)) << flag;
}

TEST_F(SettingsTest, LeavesTheFileAloneWhenReading) {
  for (const char* flag : {"-1", "2", "yes", ""}) {
    const std::string file = Joined(LinesWith(10, flag), "\n");
    Load(file);
    EXPECT_EQ(Folder.Files(), (FileMap{{"tavrel.ini", file}}));
  }
}

TEST_F(SettingsTest, WritesTheFlagAsOneOrZeroAndTheOthersAsTheyWere) {
  LineList lines = LinesWith(10, "-1");
  lines[0] = "any colour";
  lines[5] = "keep";
  lines[19] = "caf\xE9 ";
  Load(Joined(lines));
  lines[9] = "1";
  EXPECT_EQ(Saved(), Joined(lines));
  State.UseSkin = false;
  lines[9] = "0";
  EXPECT_EQ(Saved(), Joined(lines));
}

TEST_F(SettingsTest, SwitchesOnWhatWasOff) {
  LineList lines = LinesWith(6, "keep");
  lines[9] = "0";
  Load(Joined(lines));
  EXPECT_FALSE(State.UseSkin);
  State.UseSkin = true;
  lines[9] = "1";
  EXPECT_EQ(Saved(), Joined(lines));
}

TEST_F(SettingsTest, ReadsFieldsThatEndAtACommaToo) {
  Load(Joined(LinesWith(1, "a,b")));
  EXPECT_FALSE(State.UseSkin);
  EXPECT_EQ(Saved(),
            "a\r\nb\r\n&H000000&\r\n&H800000&\r\n&H000080&\r\n"
            "\r\n\r\n\r\n\r\n"
            "0\r\n1\r\n"
            "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST_F(SettingsTest, TakesAnEmptyFieldAfterATrailingComma) {
  Load(Joined(LinesWith(1, "a,")));
  EXPECT_EQ(State.Settings[1], "a");
  EXPECT_EQ(State.Settings[2], "");
  EXPECT_EQ(State.Settings[3], "&H000000&");
}

TEST_F(SettingsTest, StripsQuotesAndKeepsACommaBetweenThem) {
  Load(Joined(LinesWith(6, "\"keep\"")));
  EXPECT_EQ(Entries(), LinesWith(6, "keep"));
  Load(Joined(LinesWith(6, "\"a,b\"")));
  EXPECT_EQ(Entries(), LinesWith(6, "a,b"));
  Load(Joined(LinesWith(10, "\"0\"")));
  EXPECT_FALSE(State.UseSkin);
}

TEST_F(SettingsTest, ReadsTwentyFieldsOfFewerLines) {
  Load("1,2,3,4,5,6,7,8,9,0\r\n11,12,13,14,15,16,17,18,19,20\r\n");
  EXPECT_EQ(Entries(), (LineList{"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "0",
                                 "11", "12", "13", "14", "15", "16", "17", "18", "19", "20"}));
  EXPECT_FALSE(State.UseSkin);
}

TEST_F(SettingsTest, RefusesFewerThanTwentyFields) {
  for (const std::string& file :
       {std::string(), Joined(LineList(19, "x")), Joined(LineList(19)), std::string("1,2\r\n")}) {
    Folder.Write("tavrel.ini", file);
    EXPECT_THAT([&] { LoadSettings(State, System); },
                ThrowsMessage<RunTimeError>(HasSubstr(PathText(Folder.Path() / "tavrel.ini"))));
    EXPECT_EQ(Folder.Files(), (FileMap{{"tavrel.ini", file}}));
  }
}

TEST_F(SettingsTest, NamesAFileThatCannotBeWrittenAndKeepsTheOldOne) {
  Load(Joined(LinesWith(6, "keep")));
  System.Files.FailAt(FailingFiles::Operation::Write, 1, std::errc::no_space_on_device);
  EXPECT_THAT([&] { SaveSettings(State, System); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "tavrel.ini"))));
  EXPECT_EQ(Folder.Files(), (FileMap{{"tavrel.ini", Joined(LinesWith(6, "keep"))}}));
}

TEST_F(SettingsTest, NamesAFirstFileThatCannotBeMade) {
  System.Files.FailAt(FailingFiles::Operation::CreateNew, 1, std::errc::permission_denied);
  EXPECT_THAT([&] { LoadSettings(State, System); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "tavrel.ini"))));
  EXPECT_TRUE(Folder.Files().empty());
}

}  // namespace
}  // namespace tavrel::test
