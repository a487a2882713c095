#include "ui/shell/program_place.h"

#include <chrono>
#include <gtest/gtest.h>

#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

const std::string kPage = "\r\n 1 ,<title>A</title>\r\n";
const std::string kDraft = "recovery,24,Guide.dat\r\n" + kPage;

class ProgramPlaceTest : public testing::Test {
 protected:
  FoundAtStart Enter(ProgramPlace& place) { return place.Enter(Folder.Path(), System); }

  TemporaryFolder Folder;
  FakePlatform System;
  ProgramPlace First;
  ProgramPlace Second;
};

TEST_F(ProgramPlaceTest, TheFirstProgramHasTheFirstPlace) {
  const FoundAtStart found = Enter(First);
  EXPECT_TRUE(found.Documents.empty());
  EXPECT_TRUE(found.Troubles.empty());
  EXPECT_EQ(First.RecoveryFile(), Folder.Path() / ".tavrel-1.recovery");
}

TEST_F(ProgramPlaceTest, ARunningProgramsDraftIsLeftAlone) {
  Enter(First);
  Folder.Write(First.RecoveryFile(), kDraft);
  const FoundAtStart found = Enter(Second);
  EXPECT_TRUE(found.Documents.empty());
  EXPECT_EQ(Second.RecoveryFile(), Folder.Path() / ".tavrel-2.recovery");
  EXPECT_EQ(Folder.Read(First.RecoveryFile()), kDraft);
}

TEST_F(ProgramPlaceTest, TheDraftOfAProgramThatEndedIsBroughtBack) {
  Enter(First);
  Folder.Write(First.RecoveryFile(), kDraft);
  First.Leave();
  const FoundAtStart found = Enter(Second);
  ASSERT_EQ(found.Documents.size(), 1U);
  EXPECT_EQ(found.Documents[0].Document, Folder.Path() / "Guide (recovered).dat");
  EXPECT_EQ(Folder.Read("Guide (recovered).dat"), kPage);
  EXPECT_EQ(Second.RecoveryFile(), Folder.Path() / ".tavrel-1.recovery");
  EXPECT_FALSE(Folder.Has(".tavrel-1.recovery"));
}

TEST_F(ProgramPlaceTest, DraftsOfSeveralProgramsAreBroughtBackAtOnce) {
  for (const std::string place : {"1", "3", "99"})
    Folder.Write(".tavrel-" + place + ".recovery", "recovery," + std::to_string(10 + place.size()) +
                                                       ",Guide.dat\r\n\r\n 1 ,<" + place + ">\r\n");
  EXPECT_EQ(Enter(First).Documents.size(), 3U);
  EXPECT_EQ(Folder.Read("Guide (recovered).dat"), "\r\n 1 ,<1>\r\n");
  EXPECT_EQ(Folder.Read("Guide 2 (recovered).dat"), "\r\n 1 ,<3>\r\n");
  EXPECT_EQ(Folder.Read("Guide 3 (recovered).dat"), "\r\n 1 ,<99>\r\n");
}

TEST_F(ProgramPlaceTest, NoClockCountsOnlyWhetherTheProgramStillRuns) {
  Enter(First);
  Folder.Write(First.RecoveryFile(), kDraft);
  for (const std::chrono::hours shift : {std::chrono::hours(-100000), std::chrono::hours(100000)}) {
    const auto moved = fs::file_time_type::clock::now() + shift;
    fs::last_write_time(First.RecoveryFile(), moved);
    std::error_code not_while_it_is_held;
    fs::last_write_time(Folder.Path() / ".tavrel-1.lock", moved, not_while_it_is_held);
    EXPECT_TRUE(Enter(Second).Documents.empty());
    Second.Leave();
  }
  First.Leave();
  EXPECT_EQ(Enter(Second).Documents.size(), 1U);
}

TEST_F(ProgramPlaceTest, AnUnreadableDraftIsToldAndItsPlaceLeftAlone) {
  fs::create_directory(Folder.Path() / ".tavrel-1.recovery");
  const FoundAtStart found = Enter(First);
  ASSERT_EQ(found.Troubles.size(), 1U);
  EXPECT_NE(found.Troubles[0].find(".tavrel-1.recovery\ncould not be read"), std::string::npos)
      << found.Troubles[0];
  EXPECT_EQ(First.RecoveryFile(), Folder.Path() / ".tavrel-2.recovery");
  EXPECT_TRUE(fs::is_directory(Folder.Path() / ".tavrel-1.recovery"));
}

TEST_F(ProgramPlaceTest, ALockThatNobodyHoldsKeepsNoDraftBack) {
  for (const std::string& lock :
       {std::string(), std::string("garbage"), std::string("1\nother\nanother-host\n"),
        "999999999\ntavrel_writer\n" + QSysInfo::machineHostName().toStdString() + "\n"}) {
    Folder.Write(".tavrel-1.recovery", kDraft);
    Folder.Write(".tavrel-1.lock", lock);
    EXPECT_EQ(Enter(First).Documents.size(), 1U) << lock;
    EXPECT_EQ(First.RecoveryFile(), Folder.Path() / ".tavrel-1.recovery") << lock;
    First.Leave();
    fs::remove(Folder.Path() / "Guide (recovered).dat");
  }
}

TEST_F(ProgramPlaceTest, WhatIsHalfWrittenIsClearedUnlessAnotherProgramRuns) {
  Folder.Write(".tavrel-5.tmp", "half");
  Enter(First);
  EXPECT_FALSE(Folder.Has(".tavrel-5.tmp"));
  Folder.Write(".tavrel-5.tmp", "being written");
  Enter(Second);
  EXPECT_TRUE(Folder.Has(".tavrel-5.tmp"));
}

TEST_F(ProgramPlaceTest, NothingIsLeftBehind) {
  Enter(First);
  Enter(Second);
  First.Leave();
  Second.Leave();
  EXPECT_TRUE(Folder.Files().empty());
}

TEST_F(ProgramPlaceTest, WithoutAFolderToWriteToThereIsNoPlace) {
  const FoundAtStart found = First.Enter(Folder.Path() / "gone", System);
  EXPECT_TRUE(found.Documents.empty());
  EXPECT_TRUE(First.RecoveryFile().empty());
  EXPECT_FALSE(found.IsPlaceFree);
}

}  // namespace
}  // namespace tavrel::test
