#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "core/text/run_time_error.h"
#include "platform/system_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using FileMap = std::map<std::string, std::string>;

TEST(SystemPlatform, ListsTheSystemsRootFirst) {
  const std::vector<Volume> volumes = MakeSystemPlatform()->Volumes();
  ASSERT_FALSE(volumes.empty());
  EXPECT_EQ(volumes[0].Name, "/");
  EXPECT_EQ(volumes[0].Root, "/");
}

TEST(SystemPlatform, KnowsWhetherAVolumeCanBeRead) {
  const TemporaryFolder folder;
  folder.Write("file", "x");
  const auto system = MakeSystemPlatform();
  EXPECT_TRUE(system->IsReady({"any", folder.Path()}));
  EXPECT_FALSE(system->IsReady({"any", folder.Path() / "gone"}));
  EXPECT_FALSE(system->IsReady({"any", folder.Path() / "file"}));
}

TEST(SystemPlatform, UsesWindows1252) {
  EXPECT_EQ(MakeSystemPlatform()->SystemCodePage().Decode("\x80\xE9"), U"\u20AC\u00E9");
}

TEST(SystemPlatform, WritesFiles) {
  const TemporaryFolder folder;
  const auto system = MakeSystemPlatform();
  system->WriteWholeFile(folder.Path() / "Guide.dat", "\r\n");
  system->WritePlainFile(folder.Path() / "z001.txt", "note");
  EXPECT_EQ(folder.Files(), (FileMap{{"Guide.dat", "\r\n"}, {"z001.txt", "note"}}));
  EXPECT_THROW(system->WriteWholeFile(folder.Path() / "gone" / "x", "x"), FileError);
  EXPECT_THROW(system->WritePlainFile(folder.Path() / "gone" / "x", "x"), FileError);
}

}  // namespace
}  // namespace tavrel::test
