#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/ipod/find_pod.h"
#include "platform/system_platform.h"
#include "platform/temporary_drive.h"
#include "platform/wine.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> NamesOf(const std::vector<Volume>& volumes) {
  std::vector<std::string> names;
  names.reserve(volumes.size());
  for (const Volume& volume : volumes) names.push_back(volume.Name);
  return names;
}

bool Lists(const Platform& system, const std::string& name) {
  const std::vector<std::string> names = NamesOf(system.Volumes());
  return std::find(names.begin(), names.end(), name) != names.end();
}

class WindowsVolumesTest : public testing::Test {
 protected:
  const TemporaryFolder Folder;
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

/// The drives that the packaging's stand-in for Windows has.
class WineVolumesTest : public WindowsVolumesTest {
 protected:
  void SetUp() override {
    if (!RunsUnderWine()) GTEST_SKIP() << "only there is it known which drives there are";
  }
};

TEST_F(WindowsVolumesTest, AreDriveLettersInTheirOrder) {
  const std::vector<Volume> volumes = System->Volumes();
  const std::vector<std::string> names = NamesOf(volumes);
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
  for (const Volume& volume : volumes) {
    ASSERT_EQ(volume.Name.size(), 2U);
    EXPECT_TRUE(volume.Name[0] >= 'A' && volume.Name[0] <= 'Z') << volume.Name;
    EXPECT_EQ(volume.Name[1], ':');
    EXPECT_EQ(volume.Root.native(), fs::path(volume.Name).native() + L"\\");
  }
}

TEST_F(WineVolumesTest, AreThoseThatTheSystemHas) {
  EXPECT_THAT(NamesOf(System->Volumes()), testing::IsSupersetOf({"C:", "E:", "F:", "Z:"}));
}

TEST_F(WineVolumesTest, ADriveWithoutADiskIsListedAndNotReady) {
  const Volume empty{"F:", "F:\\"};
  ASSERT_TRUE(Lists(*System, "F:"));
  EXPECT_FALSE(System->IsReady(empty));
  EXPECT_EQ(TestPod(*System, empty), std::nullopt);
}

TEST_F(WineVolumesTest, TheOthersAreReady) {
  for (const char* name : {"C:", "E:", "Z:"})
    EXPECT_TRUE(System->IsReady({name, fs::path(name) / "\\"})) << name;
}

TEST_F(WineVolumesTest, TheConnectedPodIsFound) {
  const std::optional<Pod> pod = FindPod(*System, System->Volumes());
  ASSERT_TRUE(pod.has_value());
  EXPECT_EQ(pod->Drive.Name, "E:");
  EXPECT_EQ(pod->Notes.native(), LR"(E:\Notes)");
}

TEST_F(WineVolumesTest, TheLastDriveWithNotesIsThePod) {
  fs::create_directory(Folder.Path() / "NOTES");
  const TemporaryDrive drive(Folder.Path());
  const std::optional<Pod> pod = FindPod(*System, System->Volumes());
  ASSERT_TRUE(pod.has_value());
  EXPECT_EQ(pod->Drive.Name, drive.AsVolume().Name);
  EXPECT_EQ(pod->Notes.native(), (drive.Root() / "NOTES").native());
}

TEST_F(WineVolumesTest, NotesOnTheSystemsOwnDriveAreNoPod) {
  const bool made = fs::create_directory("C:\\Notes");
  const Volume own{"C:", "C:\\"};
  EXPECT_EQ(TestPod(*System, own), fs::path("C:\\Notes"));
  EXPECT_FALSE(FindPod(*System, {own}).has_value());
  if (made) fs::remove("C:\\Notes");
}

TEST_F(WindowsVolumesTest, TheSystemsOwnIsKnownInCapitalsAndSmallLetters) {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(::GetWindowsDirectoryW(folder.data(), MAX_PATH));
  const wchar_t capital = static_cast<wchar_t>(folder[0] & ~0x20);
  const wchar_t small_letter = static_cast<wchar_t>(folder[0] | 0x20);
  const TemporaryDrive other(Folder.Path());
  EXPECT_TRUE(System->IsSystemVolume({"any", std::wstring(1, capital) + L":\\"}));
  EXPECT_TRUE(System->IsSystemVolume({"any", std::wstring(1, small_letter) + L":\\"}));
  EXPECT_FALSE(System->IsSystemVolume(other.AsVolume()));
  EXPECT_FALSE(System->IsSystemVolume({"", ""}));
}

TEST_F(WineVolumesTest, OnlyOneIsTheSystemsOwn) {
  for (const Volume& volume : System->Volumes()) {
    EXPECT_EQ(System->IsSystemVolume(volume), volume.Name == "C:") << volume.Name;
  }
}

TEST_F(WindowsVolumesTest, ADriveIsListedForAsLongAsItIsThere) {
  TemporaryDrive drive(Folder.Path());
  EXPECT_TRUE(Lists(*System, drive.AsVolume().Name));
  drive.TakeOut();
  EXPECT_FALSE(Lists(*System, drive.AsVolume().Name));
}

TEST_F(WindowsVolumesTest, ADiskWithoutFilesIsReady) {
  const TemporaryDrive drive(Folder.Path());
  EXPECT_TRUE(System->IsReady(drive.AsVolume()));
  EXPECT_EQ(TestPod(*System, drive.AsVolume()), std::nullopt);
}

TEST_F(WindowsVolumesTest, AFileInTheNotesFoldersPlaceMakesNoPod) {
  Folder.Write("Notes", "a file");
  const TemporaryDrive drive(Folder.Path());
  EXPECT_EQ(TestPod(*System, drive.AsVolume()), std::nullopt);
}

}  // namespace
}  // namespace tavrel::test
