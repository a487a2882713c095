#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "core/ipod/find_pod.h"
#include "core/text/run_time_error.h"
#include "platform/system_platform.h"
#include "platform/temporary_drive.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::ThrowsMessage;

/// A drive with a Notes folder and a file, which was there a moment ago.
class VanishedDriveTest : public testing::Test {
 protected:
  VanishedDriveTest() : Drive(Disk.Path()) {
    Disk.Write("Notes/Guide/z001.txt", "note");
    Outside.Write("z001.txt", "at home");
  }

  void SetUp() override {
    ASSERT_TRUE(System->IsReady(Drive.AsVolume()));
    ASSERT_TRUE(fs::exists(OnDrive()));
    Drive.TakeOut();
  }

  fs::path OnDrive() const { return Drive.Root() / "Notes" / "Guide" / "z001.txt"; }
  fs::path AtHome() const { return Outside.Path() / "z001.txt"; }

  /// The error must name the file, tell why and give a next step.
  template <typename Action>
  static void ExpectErrorNaming(const fs::path& file, const std::string& attempt, const Action& action) {
    EXPECT_THAT(action, ThrowsMessage<FileError>(
                            AllOf(HasSubstr(PathText(file) + "\n" + attempt + ": "),
                                  EndsWith("\nLook whether the file or its folder was moved or renamed."))));
  }

  const TemporaryFolder Disk;
  const TemporaryFolder Outside;
  TemporaryDrive Drive;
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_F(VanishedDriveTest, IsNotReadyAndNoPod) {
  EXPECT_FALSE(System->IsReady(Drive.AsVolume()));
  EXPECT_EQ(TestPod(*System, Drive.AsVolume()), std::nullopt);
}

TEST_F(VanishedDriveTest, IsNotTakenForThePodByAnOldList) {
  EXPECT_FALSE(FindPod(*System, {Drive.AsVolume()}).has_value());
}

TEST_F(VanishedDriveTest, CannotBeWrittenTo) {
  ExpectErrorNaming(OnDrive(), "could not be written", [this] { System->WriteWholeFile(OnDrive(), "new"); });
  ExpectErrorNaming(OnDrive(), "could not be written", [this] { System->WritePlainFile(OnDrive(), "new"); });
  EXPECT_EQ(System->WhyNotWritable(Drive.Root()), std::errc::no_such_file_or_directory);
  EXPECT_EQ(Disk.Read("Notes/Guide/z001.txt"), "note");
}

TEST_F(VanishedDriveTest, CannotBeCopiedFromOrTo) {
  ExpectErrorNaming(OnDrive(), "could not be read", [this] { System->CopyPlainFile(OnDrive(), AtHome()); });
  ExpectErrorNaming(OnDrive(), "could not be written",
                    [this] { System->CopyPlainFile(AtHome(), OnDrive()); });
  EXPECT_EQ(Outside.Read("z001.txt"), "at home");
}

TEST_F(VanishedDriveTest, CannotBeFlushed) {
  for (const fs::path& folder : {Drive.Root(), Drive.Root() / "Notes"}) {
    ExpectErrorNaming(folder, "could not be brought to the disk", [&] { System->FlushVolumeOf(folder); });
  }
}

TEST_F(VanishedDriveTest, StartsNoProgram) {
  const fs::path program = Drive.Root() / "msinfo32.exe";
  ExpectErrorNaming(program, "could not be started", [&] { System->StartProgram(program); });
}

TEST_F(VanishedDriveTest, HidesNothing) {
  EXPECT_FALSE(System->IsHidden(OnDrive()));
  EXPECT_FALSE(System->IsHidden(Drive.Root()));
}

}  // namespace
}  // namespace tavrel::test
