#include <filesystem>
#include <string>
#include <unistd.h>

#include "process/notes_program.h"

// Symbolic links, rights and devices, as the companion for the command line meets them.

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

class NotesOnUnix : public NotesProgram {
 protected:
  void Link(const std::string& to, const std::string& name) const {
    fs::create_symlink(to, folder_.Path() / name);
  }

  bool IsLink(const std::string& name) const { return fs::is_symlink(folder_.Path() / name); }

  void WriteNote() const { folder_.Write("notes/a.txt", "<title>A</title>\r\n"); }

  /// What becomes of that note.
  const std::string imported_ = "\r\n 1 ,<title>A</title><text> <p> </text><link></link>\r\n";
};

TEST_F(NotesOnUnix, AProjectBehindALinkIsRead) {
  Link("Tour.dat", "Link.dat");
  Run({"check", "Link.dat"});
  EXPECT_EQ(status_, 0) << told_;
  Run({"publish", "Link.dat", "notes"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_TRUE(folder_.Has("notes/z002.txt"));
}

TEST_F(NotesOnUnix, FoldersBehindLinksAreReadAndWritten) {
  fs::create_directory(folder_.Path() / "real");
  Link("real", "link");
  Run({"publish", "Tour.dat", "link"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_TRUE(folder_.Has("real/z001.txt"));
  EXPECT_TRUE(IsLink("link"));
  Run({"import", "link", "New.dat"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_TRUE(folder_.Has("New.dat"));
}

TEST_F(NotesOnUnix, ANoteIsNeverWrittenThroughALink) {
  folder_.Write("elsewhere.txt", "mine");
  fs::create_directory(folder_.Path() / "notes");
  Link("../elsewhere.txt", "notes/z001.txt");
  Run({"publish", "Tour.dat", "notes"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_EQ(folder_.Read("elsewhere.txt"), "mine");
  EXPECT_FALSE(IsLink("notes/z001.txt"));
}

TEST_F(NotesOnUnix, AProjectBehindALinkIsOverwrittenOnlyWhenTold) {
  WriteNote();
  Link("Tour.dat", "Link.dat");
  Run({"import", "notes", "Link.dat"});
  ExpectRefusal("Link.dat: The project is there already. With --overwrite it is replaced.");
  EXPECT_EQ(folder_.Read("Tour.dat"), kTwoPages);
  Run({"import", "--overwrite", "notes", "Link.dat"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_TRUE(IsLink("Link.dat"));
  EXPECT_EQ(folder_.Read("Tour.dat"), imported_);
}

TEST_F(NotesOnUnix, ALinkThatLeadsNowhereIsThereAlready) {
  WriteNote();
  Link("elsewhere.dat", "Link.dat");
  Run({"import", "notes", "Link.dat"});
  ExpectRefusal("Link.dat: The project is there already. With --overwrite it is replaced.");
  EXPECT_FALSE(folder_.Has("elsewhere.dat"));
}

TEST_F(NotesOnUnix, LinksInACircleAreTold) {
  WriteNote();
  Link("circle", "circle");
  Run({"check", "circle"});
  ExpectRefusalBeginning("circle: Could not be read: ");
  Run({"publish", "Tour.dat", "circle"});
  ExpectRefusalBeginning("circle: Could not be made: ");
  Run({"import", "circle", "New.dat"});
  ExpectRefusalBeginning("circle: Could not be read: ");
  Run({"import", "notes", "circle/New.dat"});
  ExpectRefusalBeginning("circle/New.dat: ");
  Run({"import", "--overwrite", "notes", "circle"});
  ExpectRefusalBeginning("circle: Could not be written: ");
}

TEST_F(NotesOnUnix, ANameOfTwoLinesIsToldInOne) {
  folder_.Write("Two\nlines.dat", "");
  Run({"check", "Two\nlines.dat"});
  ExpectRefusalBeginning("Two lines.dat: The document is damaged");
  Run({"check", "No\nfile.dat"});
  ExpectRefusalBeginning("No file.dat: Could not be read: ");
  folder_.Write("no\ntes/a\nb.txt", "<a href=\"");
  Run({"import", "no\ntes", "New.dat"});
  ExpectRefusalBeginning("no tes/a b.txt:1: The target");
}

TEST_F(NotesOnUnix, WhatMayNotBeReadIsTold) {
  if (geteuid() == 0) GTEST_SKIP() << "the superuser may read anything";
  WriteNote();
  fs::permissions(folder_.Path() / "Tour.dat", fs::perms::none);
  Run({"check", "Tour.dat"});
  ExpectRefusalBeginning("Tour.dat: Could not be read: Permission denied.");
  fs::permissions(folder_.Path() / "notes", fs::perms::owner_exec);
  Run({"import", "notes", "New.dat"});
  ExpectRefusalBeginning("notes: Could not be read: Permission denied.");
  fs::permissions(folder_.Path() / "notes", fs::perms::none);
  Run({"import", ".", "notes/New.dat"});
  ExpectRefusalBeginning("notes/New.dat: ");
  EXPECT_FALSE(folder_.Has("New.dat"));
}

TEST_F(NotesOnUnix, AFolderThatTakesNoFilesIsTold) {
  if (geteuid() == 0) GTEST_SKIP() << "the superuser may write anywhere";
  fs::create_directory(folder_.Path() / "locked");
  fs::permissions(folder_.Path() / "locked", fs::perms::owner_read | fs::perms::owner_exec);
  Run({"publish", "Tour.dat", "locked"});
  ExpectRefusalBeginning("locked/z001.txt: Could not be written: Permission denied.");
  Run({"publish", "Tour.dat", "locked/notes"});
  ExpectRefusalBeginning("locked/notes: Could not be made: Permission denied.");
}

class NotesOnAFullDisk : public NotesOnUnix {
 protected:
  void SetUp() override {
    NotesOnUnix::SetUp();
    if (!fs::exists(kFull)) GTEST_SKIP() << "the system has no full device";
  }

  const char* const kFull = "/dev/full";
};

TEST_F(NotesOnAFullDisk, AnAnswerThatCannotBeWrittenIsAFailure) {
  for (const char* option : {"--help", "--version"}) {
    Run({option}, kFull);
    ExpectRefusal("tavrel-notes: The standard output could not be written.");
  }
}

TEST_F(NotesOnAFullDisk, ADeviceIsNoProjectAndNoFolder) {
  WriteNote();
  Run({"check", kFull});
  ExpectRefusalBeginning("/dev/full: Could not be read: ");
  Run({"publish", "Tour.dat", kFull});
  ExpectRefusalBeginning("/dev/full: Could not be made: ");
  Run({"import", kFull, "New.dat"});
  ExpectRefusalBeginning("/dev/full: Could not be read: ");
  Run({"import", "notes", kFull});
  ExpectRefusalBeginning("/dev/full: The project is there already.");
  Run({"import", "--overwrite", "notes", kFull});
  ExpectRefusalBeginning("/dev/full: Could not be written: ");
}

}  // namespace
}  // namespace tavrel::test
