#include "support/tree_snapshot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class TreeSnapshotTest : public testing::Test {
 protected:
  TreeSnapshotTest() {
    Folder.Write("a/one.txt", "one");
    Folder.Write("a/two.txt", "two");
    Folder.Write("b.txt", "b");
  }

  TemporaryFolder Folder;
};

TEST_F(TreeSnapshotTest, ATreeThatIsAsItWasHasNoChanges) {
  const TreeSnapshot before(Folder.Path());
  Folder.Write("b.txt", "b");
  EXPECT_THAT(before.Changes(), IsEmpty());
}

TEST_F(TreeSnapshotTest, WhatIsMadeGoneOrChangedIsNamed) {
  const TreeSnapshot before(Folder.Path());
  Folder.Write("a/one.txt", "One");
  fs::remove(Folder.Path() / "a/two.txt");
  Folder.Write("c/three.txt", "three");
  EXPECT_THAT(before.Changes(),
              ElementsAre("changed: a/one.txt", "gone: a/two.txt", "made: c", "made: c/three.txt"));
}

TEST_F(TreeSnapshotTest, AFileThatBecameAFolderOrLostARightHasChanged) {
  const TreeSnapshot before(Folder.Path());
  fs::permissions(Folder.Path() / "a/one.txt", fs::perms::owner_read);
  fs::remove(Folder.Path() / "b.txt");
  fs::create_directory(Folder.Path() / "b.txt");
  EXPECT_THAT(before.Changes(), ElementsAre("changed: a/one.txt", "changed: b.txt"));
}

TEST_F(TreeSnapshotTest, APermittedEntryMayChangeWithAllBelowIt) {
  const TreeSnapshot before(Folder.Path());
  Folder.Write("a/one.txt", "One");
  Folder.Write("a/deep/three.txt", "three");
  Folder.Write("ab.txt", "not below a");
  EXPECT_THAT(before.Changes({"a"}), ElementsAre("made: ab.txt"));
  EXPECT_THAT(before.Changes({"a/one.txt", "ab.txt", "a/deep"}), IsEmpty());
}

#ifndef _WIN32
TEST_F(TreeSnapshotTest, ALinkIsItsTargetAndNotWhatLiesThere) {
  fs::create_symlink("b.txt", Folder.Path() / "link");
  fs::create_directory_symlink("a", Folder.Path() / "folder link");
  const TreeSnapshot before(Folder.Path());
  Folder.Write("b.txt", "B");
  EXPECT_THAT(before.Changes(), ElementsAre("changed: b.txt"));
  fs::remove(Folder.Path() / "link");
  fs::create_symlink("a/one.txt", Folder.Path() / "link");
  EXPECT_THAT(before.Changes({"b.txt"}), ElementsAre("changed: link"));
}
#endif

}  // namespace
}  // namespace tavrel::test
