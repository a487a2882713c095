#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text/run_time_error.h"
#include "platform/system_platform.h"
#include "reliability/written_file.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using FileMap = std::map<std::string, std::string>;

/// Saving where something else is in the file's place.
class OddTargets : public testing::TestWithParam<WrittenFile> {
 protected:
  OddTargets() {
    for (const auto& [name, bytes] : GetParam().Others) Folder.Write(name, bytes);
  }

  fs::path Target() const { return Folder.Path() / GetParam().Name; }

  void ExpectErrorNamingTheFile() {
    EXPECT_THAT(FileErrorOf([&] { GetParam().Save(Folder.Path(), *System); }), HasSubstr(PathText(Target())));
  }

  TemporaryFolder Folder;
  std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_P(OddTargets, AFolderStaysWithWhatItHolds) {
  Folder.Write(GetParam().Name + "/inside", "x");
  const FileMap before = Folder.Files();
  ExpectErrorNamingTheFile();
  EXPECT_EQ(Folder.Files(), before);
}

TEST_P(OddTargets, AnEmptyFolderStays) {
  fs::create_directory(Target());
  ExpectErrorNamingTheFile();
  EXPECT_TRUE(fs::is_directory(Target()));
  EXPECT_EQ(Folder.Files(), GetParam().Others);
}

TEST_P(OddTargets, AWriteProtectedFileStays) {
  Folder.Write(GetParam().Name, GetParam().Old);
  const FileMap before = Folder.Files();
  fs::permissions(Target(), fs::perms::owner_read | fs::perms::group_read);
  ExpectErrorNamingTheFile();
  EXPECT_EQ(Folder.Files(), before);
}

/// The name gets the new file, and a second name of the old one keeps the old bytes.
TEST_P(OddTargets, ASecondNameOfTheOldFileKeepsItsBytes) {
  Folder.Write(GetParam().Name, GetParam().Old);
  fs::create_hard_link(Target(), Folder.Path() / "second name");
  GetParam().Save(Folder.Path(), *System);
  FileMap expected = GetParam().Others;
  expected[GetParam().Name] = GetParam().New;
  expected["second name"] = GetParam().Old;
  EXPECT_EQ(Folder.Files(), expected);
  EXPECT_EQ(fs::hard_link_count(Target()), 1U);
}

INSTANTIATE_TEST_SUITE_P(Files, OddTargets, testing::ValuesIn(WrittenFiles()),
                         [](const auto& file) { return file.param.Title; });

}  // namespace
}  // namespace tavrel::test
