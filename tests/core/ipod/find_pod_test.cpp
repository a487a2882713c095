#include "core/ipod/find_pod.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

class FindPodTest : public testing::Test {
 protected:
  /// Volumes with these letters in this order; the capital ones have a Notes folder.
  void MakeVolumes(const std::string& letters) {
    System.FakeVolumes.clear();
    for (const char letter : letters) {
      const std::string name = CodePage::Windows1252().Lower(std::string(1, letter)) + ":";
      fs::create_directory(Root(name));
      if (name[0] != letter) fs::create_directory(Root(name) / "Notes");
      System.FakeVolumes.push_back({name, Root(name)});
    }
  }

  fs::path Root(const std::string& name) const { return Folder.Path() / name.substr(0, 1); }

  /// The drive that is taken for the iPod; empty if none is.
  std::string Found() const {
    const std::optional<Pod> pod = FindPod(System, System.Volumes());
    if (!pod) return "";
    EXPECT_EQ(pod->Notes.parent_path(), pod->Drive.Root);
    EXPECT_EQ(pod->Drive.Root, Root(pod->Drive.Name));
    return pod->Drive.Name;
  }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_F(FindPodTest, FindsNothingWithoutANotesFolder) {
  MakeVolumes("cef");
  EXPECT_EQ(Found(), "");
  MakeVolumes("");
  EXPECT_EQ(Found(), "");
}

TEST_F(FindPodTest, FindsTheDriveWithANotesFolder) {
  MakeVolumes("cdEf");
  EXPECT_EQ(Found(), "e:");
  EXPECT_EQ(FindPod(System, System.Volumes())->Notes, Root("e:") / "Notes");
}

TEST_F(FindPodTest, TakesTheLastOfSeveralDrives) {
  MakeVolumes("cEF");
  EXPECT_EQ(Found(), "f:");
  MakeVolumes("FcE");
  EXPECT_EQ(Found(), "e:");
}

TEST_F(FindPodTest, NeverTakesTheSystemsDrive) {
  MakeVolumes("Cde");
  EXPECT_EQ(Found(), "");
}

TEST_F(FindPodTest, TakesADriveBehindTheSystemsDrive) {
  MakeVolumes("CEg");
  EXPECT_EQ(Found(), "e:");
}

TEST_F(FindPodTest, FindsNothingIfTheSystemsDriveIsTheLastOne) {
  MakeVolumes("AC");
  EXPECT_EQ(Found(), "");
  MakeVolumes("ACg");
  EXPECT_EQ(Found(), "");
}

TEST_F(FindPodTest, PassesByDrivesThatAreNotReady) {
  MakeVolumes("cEF");
  System.NotReady = {"f:"};
  EXPECT_EQ(Found(), "e:");
  System.NotReady = {"e:", "f:"};
  EXPECT_EQ(Found(), "");
  MakeVolumes("EC");
  System.NotReady = {"c:"};
  EXPECT_EQ(Found(), "e:");
}

TEST_F(FindPodTest, PassesByADriveThatHasGone) {
  MakeVolumes("cEF");
  fs::remove_all(Root("f:"));
  EXPECT_EQ(Found(), "e:");
}

TEST_F(FindPodTest, PassesByANotesFile) {
  MakeVolumes("cEf");
  Folder.Write("f/Notes", "a file");
  EXPECT_EQ(Found(), "e:");
}

TEST_F(FindPodTest, KnowsTheNotesFolderInAnyLetterCase) {
  MakeVolumes("ce");
  const Volume drive = System.FakeVolumes.back();
  for (const char* name : {"NOTES", "notes", "nOtEs"}) {
    fs::create_directory(drive.Root / name);
    EXPECT_EQ(TestPod(System, drive), drive.Root / name);
    EXPECT_EQ(Found(), "e:");
    fs::remove(drive.Root / name);
  }
}

TEST_F(FindPodTest, KnowsNoOtherFolder) {
  MakeVolumes("ce");
  for (const char* name : {"Notes2", "My Notes", "Note", ".Notes", "Music/Notes"}) {
    fs::create_directories(Root("e:") / name);
  }
  EXPECT_EQ(TestPod(System, System.FakeVolumes.back()), std::nullopt);
  EXPECT_EQ(Found(), "");
}

}  // namespace
}  // namespace tavrel::test
