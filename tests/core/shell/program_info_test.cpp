#include "core/shell/program_info.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace tavrel::test {
namespace {

using testing::StartsWith;

constexpr std::string_view kScheme = "https://";

bool IsMadeOf(std::string_view text, std::string_view signs) {
  return text.find_first_not_of(std::string("abcdefghijklmnopqrstuvwxyz").append(signs)) == text.npos;
}

/// Whether a text is words with full stops between them.
bool IsHost(std::string_view text) {
  return IsMadeOf(text, ".") && text.find('.') != text.npos && !text.starts_with('.') && !text.ends_with('.');
}

/// Whether a text is "https://", a host and a path.
bool IsWebAddress(std::string_view text) {
  if (!text.starts_with(kScheme)) return false;
  text.remove_prefix(kScheme.size());
  const std::size_t slash = text.find('/');
  return slash != text.npos && IsHost(text.substr(0, slash)) && IsMadeOf(text.substr(slash), "/");
}

bool IsMailAddress(std::string_view text) {
  const std::size_t at = text.find('@');
  return at != text.npos && at > 0 && IsMadeOf(text.substr(0, at), "") && IsHost(text.substr(at + 1));
}

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
    EXPECT_TRUE(IsWebAddress(address)) << address;
  }
  EXPECT_THAT(kIpodSite, StartsWith("https://www.apple.com/"));
  EXPECT_THAT(kItunesSite, StartsWith("https://www.apple.com/"));
  EXPECT_STRNE(kIpodSite, kItunesSite);
  EXPECT_TRUE(IsMailAddress(kSupportAddress)) << kSupportAddress;
}

}  // namespace
}  // namespace tavrel::test
