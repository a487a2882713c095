#include "process/notes_program.h"

#include <filesystem>
#include <vector>

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

TEST_F(NotesProgram, HelpNamesEveryCommandAndOption) {
  Run({"--help"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(told_, "");
  for (const char* word : {"publish", "import", "check", "--notes-menu-link", "--no-background-music",
                           "--overwrite", "--help", "--version"}) {
    EXPECT_NE(said_.find(word), std::string::npos) << word;
  }
}

TEST_F(NotesProgram, TellsItsVersion) {
  Run({"--version"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(said_, "tavrel-notes 1.2.1\n");
  EXPECT_EQ(told_, "");
}

TEST_F(NotesProgram, AnythingItDoesNotUnderstandIsToldAndNothingIsDone) {
  const std::vector<QStringList> misunderstood = {{},
                                                  {"pubish", "Tour.dat", "notes"},
                                                  {"pub\nish", "Tour.dat", "notes"},
                                                  {"publish", "Tour.dat"},
                                                  {"publish", "Tour.dat", "notes", "more"},
                                                  {"publish", "--overwrite", "Tour.dat", "notes"},
                                                  {"check", "--help"},
                                                  {"check"}};
  for (const QStringList& words : misunderstood) {
    Run(words);
    ExpectRefusalBeginning("tavrel-notes: ");
    EXPECT_NE(told_.find("See tavrel-notes --help."), std::string::npos) << words.join(' ').toStdString();
  }
  EXPECT_FALSE(fs::exists(folder_.Path() / "notes"));
}

TEST_F(NotesProgram, AnEmptyNameIsNone) {
  const std::vector<QStringList> empty = {{"check", ""},
                                          {"publish", "", "notes"},
                                          {"publish", "Tour.dat", ""},
                                          {"import", "", "New.dat"},
                                          {"import", ".", ""}};
  const auto files = folder_.Files();
  for (const QStringList& words : empty) {
    Run(words);
    ExpectRefusal("tavrel-notes: A name is empty. See tavrel-notes --help.");
  }
  EXPECT_EQ(folder_.Files(), files);
}

TEST_F(NotesProgram, PublishesAsTheDialogDoesWithNothingChanged) {
  Run({"publish", "Tour.dat", "notes"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_EQ(told_, "");
  EXPECT_EQ(folder_.Read("notes/z001.txt"),
            "<title>-Start</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n"
            "<meta name=\"NowPlaying\" content=\"false\">\r\nSee <a href=\"z002.txt\">Part two</a>.\r\n"
            "<a href=\"z002.txt\">Part two</a>\r\n");
  EXPECT_EQ(
      folder_.Read("notes/z002.txt"),
      "<title>Two</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n"
      "<meta name=\"NowPlaying\" content=\"false\">\r\none\r\ntwo\r\n<a href=\"z001.txt\">Back</a>\r\n");
}

TEST_F(NotesProgram, PublishesWithTheTickBoxesTheOtherWay) {
  Run({"publish", "--notes-menu-link", "--no-background-music", "Tour.dat", "notes"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_EQ(folder_.Read("notes/z002.txt"),
            "<title>Two</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\none\r\ntwo\r\n"
            "<a href=\"z001.txt\">Back</a>\r\n<a href=\"\\\">Notes menu</a>\r\n");
}

TEST_F(NotesProgram, MoreNotesThanAnIpodShowsAreToldAndPublished) {
  for (int note = 1; note <= 998; ++note) folder_.Write("notes/other" + std::to_string(note) + ".txt", "x");
  folder_.Write("notes/z002.txt", "replaced");
  folder_.Write("notes/picture.jpg", "no note");
  Run({"publish", "Tour.dat", "notes"});
  EXPECT_EQ(told_, "");
  folder_.Write("notes/one more.txt", "x");
  Run({"publish", "Tour.dat", "notes"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(told_, "Tour.dat: There would be 1001 notes. An iPod shows 1,000.\n");
  EXPECT_TRUE(folder_.Read("notes/z002.txt").starts_with("<title>Two</title>"));
}

TEST_F(NotesProgram, AFolderToPublishIntoThatIsAFileIsToldAndStaysAFile) {
  folder_.Write("taken", "a file");
  Run({"publish", "Tour.dat", "taken"});
  ExpectRefusalBeginning("taken: Could not be made: ");
  EXPECT_EQ(folder_.Read("taken"), "a file");
}

TEST_F(NotesProgram, AFolderWhoseParentIsMissingIsTold) {
  Run({"publish", "Tour.dat", "none/notes"});
  ExpectRefusal(
      "none/notes: Could not be made: No such file or directory. Look whether the file or its folder was "
      "moved or renamed.");
}

TEST_F(NotesProgram, AnImpossibleMusicLinkIsToldWithItsLineBeforeAnythingIsWritten) {
  folder_.Write(
      "Bad.dat",
      "\r\n 1 ,<title>A</title>\r\n 2 ,<title>B</title><link><linktext>x</linktext><linkto>M101</linkto>"
      "</link>\r\n");
  Run({"publish", "Bad.dat", "notes"});
  ExpectRefusal(
      "Bad.dat:3: page 002, target of link 1: There can be no music link \"M101\". Publishing stops here.");
  EXPECT_FALSE(fs::exists(folder_.Path() / "notes"));
}

TEST_F(NotesProgram, ADamagedProjectIsToldWithItsLine) {
  folder_.Write("Bad.dat", " 1 ,<song>S</song>\r\n 101 ,x\r\n\r\n");
  const std::string line =
      "Bad.dat:2: The document is damaged: it has an entry numbered \"101\", but only 0 to 100 exist. "
      "Restore its backup or repair it in a text editor.";
  Run({"publish", "Bad.dat", "notes"});
  ExpectRefusal(line);
  Run({"check", "Bad.dat"});
  ExpectRefusal(line);
}

TEST_F(NotesProgram, AProjectWithoutAnyLineIsToldWithoutOne) {
  folder_.Write("Empty.dat", "");
  Run({"check", "Empty.dat"});
  ExpectRefusal(
      "Empty.dat: The document is damaged: it ends before its pages. Restore its backup or repair it in a "
      "text editor.");
}

TEST_F(NotesProgram, AMissingProjectIsTold) {
  Run({"check", "None.dat"});
  ExpectRefusal(
      "None.dat: Could not be read: No such file or directory. Look whether the file or its folder was moved "
      "or renamed.");
}

TEST_F(NotesProgram, AFolderIsNoProject) {
  fs::create_directory(folder_.Path() / "Folder.dat");
  Run({"check", "Folder.dat"});
  ExpectRefusalBeginning("Folder.dat: Could not be read: ");
}

TEST_F(NotesProgram, ASoundProjectIsSilent) {
  Run({"check", "Tour.dat"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(told_, "");
}

TEST_F(NotesProgram, WhatWouldGoWrongIsToldWithFileLinePageAndField) {
  Check(
      " 1 ,<title>A</title><link><linktext>x</linktext><linkto>007</linkto></link>\r\n"
      " 3 ,<text>t</text>\r\n");
  EXPECT_EQ(status_, 1);
  EXPECT_EQ(told_,
            "Checked.dat:2: page 001, target of link 1: Page 007 is empty.\n"
            "Checked.dat:3: page 003, title: The page has no title, so the Notes menu shows its file name.\n"
            "Checked.dat:3: page 003: No links lead here from page 001.\n");
}

TEST_F(NotesProgram, APrivateNoteIsNamedAsOne) {
  Check(" 1 ,<title>A</title><note>x <title> y</note><text>t</text>\r\n");
  EXPECT_EQ(status_, 1);
  EXPECT_TRUE(told_.starts_with("Checked.dat:2: page 001, note: ")) << told_;
}

TEST_F(NotesProgram, WhatBelongsToTheWholeProjectHasNoLine) {
  folder_.Write("Hundred.dat", " 100 ,<song>S</song>\r\n\r\n 0 ,<text>x</text>\r\n 1 ,<title>A</title>\r\n");
  Run({"check", "Hundred.dat"});
  EXPECT_EQ(status_, 1);
  EXPECT_EQ(told_, "Hundred.dat: Music link M100 is not stored in the project's file.\n");
}

TEST_F(NotesProgram, APageThatHasNoLineIsToldWithoutOne) {
  Check(" 2 ,<title>A</title>\r\n");
  EXPECT_EQ(status_, 1);
  EXPECT_EQ(told_, "Checked.dat: page 001: The page is empty, so no page is reached from it.\n");
}

TEST_F(NotesProgram, NamesBehindTwoDashesMayBeginWithADash) {
  folder_.Write("-odd.dat", kTwoPages);
  Run({"check", "--", "-odd.dat"});
  EXPECT_EQ(status_, 0) << told_;
}

}  // namespace
}  // namespace tavrel::test
