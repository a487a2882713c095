#include "core/shell/program_info.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tavrel::test {
namespace {

using testing::MatchesRegex;
using testing::StartsWith;

TEST(ProgramInfo, TheFilesVersionHasFourNumbers) {
  EXPECT_EQ(kMajor, 1);
  EXPECT_EQ(kMinor, 2);
  EXPECT_EQ(kBuild, 0);
  EXPECT_EQ(kRevision, 1);
}

TEST(ProgramInfo, PeopleAreToldTheVersionWithoutTheBuild) {
  EXPECT_EQ(VersionNumber(), "1.2.1");
}

TEST(ProgramInfo, TheHelpPageIsAFileBesideTheProgram) {
  EXPECT_STREQ(kHelpPage, "help.html");
}

TEST(ProgramInfo, TheAddressesAreWhole) {
  for (const char* address : {kHomePage, kIpodSite, kItunesSite}) {
    EXPECT_THAT(address, MatchesRegex("https://[a-z]+[a-z.]+/[a-z/]*"));
  }
  EXPECT_THAT(kIpodSite, StartsWith("https://www.apple.com/"));
  EXPECT_THAT(kItunesSite, StartsWith("https://www.apple.com/"));
  EXPECT_STRNE(kIpodSite, kItunesSite);
  EXPECT_THAT(kSupportAddress, MatchesRegex("[a-z]+@[a-z]+[a-z.]+"));
}

}  // namespace
}  // namespace tavrel::test
