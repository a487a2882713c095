#include "ui/ipod/manage_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using FileMap = std::map<std::string, std::string>;

/// Projects that are links or hold some.
class ManageLinksTest : public ManageTest {
 protected:
  void SetUp() override { Notes = AddPod("E:"); }

  fs::path Notes;
};

TEST_F(ManageLinksTest, ALinkedProjectIsCopiedAsAFolderAndOnlyItsLinkDeleted) {
  Disks.Write("elsewhere/z001.txt", "one");
  fs::create_directory_symlink(Disks.Path() / "elsewhere", Folder.Path() / "Linked");
  PlayManage([](QWidget& dialog) {
    ClickFor(dialog, "List1", "Linked", "Command2");
    ClickFor(dialog, "List1", "Linked", "Command5");
    EXPECT_TRUE(Rows(dialog, "List1").empty());
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Please confirm|question|Are you sure you want to delete...\r\n" +
                                        (Folder.Path() / "Linked").string() + "|OK/Cancel"});
  EXPECT_FALSE(fs::exists(fs::symlink_status(Folder.Path() / "Linked")));
  EXPECT_EQ(Disks.Files(), (FileMap{{"E/Notes/Linked/z001.txt", "one"}, {"elsewhere/z001.txt", "one"}}));
  EXPECT_FALSE(fs::is_symlink(Notes / "Linked"));
}

TEST_F(ManageLinksTest, WhatALinkInAProjectLeadsToIsNotDeleted) {
  Disks.Write("elsewhere/kept.txt", "kept");
  fs::create_directory(Folder.Path() / "Guide");
  fs::create_symlink(Disks.Path() / "elsewhere" / "kept.txt", Folder.Path() / "Guide" / "z001.txt");
  PlayManage([](QWidget& dialog) { ClickFor(dialog, "List1", "Guide", "Command5"); });
  EXPECT_FALSE(Folder.Has("Guide"));
  EXPECT_EQ(Disks.Read("elsewhere/kept.txt"), "kept");
}

}  // namespace
}  // namespace tavrel::test
