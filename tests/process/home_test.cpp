#include "process/process_test.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// The program's folder is in the home folder that the environment names.
using HomeTest = ProcessTest;

TEST_F(HomeTest, TheFirstStartMakesTheFolderWithAllThatBelongsIntoIt) {
  Run({"exit"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(output_, "");
  for (const char* name :
       {"tavrel.ini", "Writing for the iPod.dat", "Skin1.jpg", "Skin2.jpg", "SkinBackup.jpg", "help.html"}) {
    EXPECT_TRUE(home_.Has(folder_ / name)) << name;
  }
}

TEST_F(HomeTest, ADiskTooFullForTheHelpPageDoesNotKeepTheProgramFromStarting) {
  Run({"exit"});
  fs::remove(home_.Path() / folder_ / "help.html");
  // No file may become larger than some kilobytes.
  Run({"-c", "trap '' XFSZ; ulimit -f 64; exec \"$0\" exit", DRIVEN_WRITER}, "sh");
  EXPECT_EQ(status_, 0);
  EXPECT_FALSE(Says("message:")) << output_;
}

TEST_F(HomeTest, ADeletedSampleProjectStaysDeleted) {
  Run({"exit"});
  fs::remove(home_.Path() / folder_ / "Writing for the iPod.dat");
  Run({"exit"});
  EXPECT_EQ(status_, 0);
  EXPECT_FALSE(home_.Has(folder_ / "Writing for the iPod.dat"));
}

TEST_F(HomeTest, AProjectOfTheSamplesNameIsNeverReplaced) {
  home_.Write(folder_ / "Writing for the iPod.dat", kGuide);
  Run({"exit"});
  EXPECT_EQ(home_.Read(folder_ / "Writing for the iPod.dat"), kGuide);
}

TEST_F(HomeTest, TheSampleProjectIsStoredUnchangedByASave) {
  Run({"close"});
  const std::string sample = home_.Read(folder_ / "Writing for the iPod.dat");
  Run({"open=Writing for the iPod", "save", "close"});
  EXPECT_TRUE(Says("Project saved...    "));
  EXPECT_EQ(home_.Read(folder_ / "Writing for the iPod.dat"), sample);
}

TEST_F(HomeTest, WhatWasTypedIsRescuedIntoTheHomeFolderWhenTheProgramsFolderIsGone) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  Run({"open=Trio", "title=Typed", "vanish", "save"});
  EXPECT_EQ(status_, 1);
  EXPECT_TRUE(Says("could not be opened"));
  EXPECT_TRUE(Says("Trio (rescued).dat"));
  EXPECT_NE(home_.Read("home/Trio (rescued).dat").find("<title>Typed</title>"), std::string::npos);
}

TEST_F(HomeTest, WhatWasTypedIsRescuedIntoTheTemporaryFolderWhenNothingElseIsLeft) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  fs::create_directory(home_.Path() / "temporary");
  Run({"open=Trio", "title=Typed", "vanish-home", "save"}, DRIVEN_WRITER);
  EXPECT_EQ(status_, 1);
  EXPECT_NE(home_.Read("temporary/Trio (rescued).dat").find("<title>Typed</title>"), std::string::npos);
}

}  // namespace
}  // namespace tavrel::test
