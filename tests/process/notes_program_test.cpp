#include <QProcess>
#include <QStringList>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "process/process_test.h"
#include "support/temporary_folder.h"

// The companion for the command line, run as people and scripts run it.

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// Two linked pages; page 2 stands in line 4.
const std::string kSound =
    " 1 ,<song>Blue</song>\r\n"
    "\r\n"
    " 1 ,<title>Start</title><text>See <Part two>.</text><link><linktext>Part "
    "two</linktext><linkto>002</linkto>"
    "</link>\r\n"
    " 2 "
    ",<title>Two</title><text>one<p>two</text><link><linktext>Back</linktext><linkto>001</linkto></link>\r\n";

class NotesProgram : public testing::Test {
 protected:
  void SetUp() override { folder_.Write("Tour.dat", kSound); }

  /// Runs the program in the folder.
  void Run(const QStringList& words) {
    QProcess process;
    process.setWorkingDirectory(QString::fromStdString(folder_.Path().string()));
    process.start(TAVREL_NOTES, words);
    ASSERT_TRUE(process.waitForFinished(kPatience)) << "the program does not end";
    ASSERT_EQ(process.exitStatus(), QProcess::NormalExit);
    status_ = process.exitCode();
    said_ = process.readAllStandardOutput().toStdString();
    told_ = process.readAllStandardError().toStdString();
    std::erase(said_, '\r');
    std::erase(told_, '\r');
  }

  /// Writes a project of these pages, from line 2 on, and checks it.
  void Check(const std::string& pages) {
    folder_.Write("Checked.dat", "\r\n" + pages);
    Run({"check", "Checked.dat"});
  }

  TemporaryFolder folder_;
  int status_ = -1;
  std::string said_;  ///< on the standard output
  std::string told_;  ///< on the standard error
};

TEST_F(NotesProgram, HelpNamesEveryCommandAndOption) {
  Run({"--help"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(told_, "");
  for (const char* word : {"publish", "import", "check", "--notes-menu-link", "--no-background-music",
                           "--overwrite", "--help", "--version"}) {
    EXPECT_NE(said_.find(word), std::string::npos) << word;
  }
}

TEST_F(NotesProgram, AnythingItDoesNotUnderstandIsToldAndNothingIsDone) {
  const std::vector<QStringList> misunderstood = {{},
                                                  {"pubish", "Tour.dat", "notes"},
                                                  {"publish", "Tour.dat"},
                                                  {"publish", "Tour.dat", "notes", "more"},
                                                  {"publish", "--overwrite", "Tour.dat", "notes"},
                                                  {"check", "--help"},
                                                  {"check"}};
  for (const QStringList& words : misunderstood) {
    Run(words);
    EXPECT_EQ(status_, 2) << words.join(' ').toStdString();
    EXPECT_EQ(said_, "");
    EXPECT_NE(told_.find("See tavrel-notes --help."), std::string::npos);
  }
  EXPECT_FALSE(fs::exists(folder_.Path() / "notes"));
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

TEST_F(NotesProgram, AnImpossibleMusicLinkIsToldWithItsLineBeforeAnythingIsWritten) {
  folder_.Write(
      "Bad.dat",
      "\r\n 1 ,<title>A</title>\r\n 2 ,<title>B</title><link><linktext>x</linktext><linkto>M101</linkto>"
      "</link>\r\n");
  Run({"publish", "Bad.dat", "notes"});
  EXPECT_EQ(status_, 2);
  EXPECT_EQ(
      told_,
      "Bad.dat:3: page 002, target of link 1: There can be no music link \"M101\". Publishing stops here.\n");
  EXPECT_FALSE(fs::exists(folder_.Path() / "notes"));
}

TEST_F(NotesProgram, ADamagedProjectIsToldWithItsLine) {
  folder_.Write("Bad.dat", " 1 ,<song>S</song>\r\n 101 ,x\r\n\r\n");
  Run({"publish", "Bad.dat", "notes"});
  EXPECT_EQ(status_, 2);
  EXPECT_EQ(told_.find("tavrel-notes: Bad.dat:2: The document is damaged"), 0U) << told_;
}

TEST_F(NotesProgram, AMissingProjectIsTold) {
  Run({"check", "None.dat"});
  EXPECT_EQ(status_, 2);
  EXPECT_EQ(told_.find("tavrel-notes: None.dat\ncould not be read"), 0U) << told_;
}

TEST_F(NotesProgram, ImportsWhatItHasPublished) {
  Run({"publish", "Tour.dat", "notes"});
  Run({"import", "notes", "Back.dat"});
  EXPECT_EQ(status_, 0) << told_;
  const std::string second =
      "<title>Two</title><text> <p><p><meta name=\"NowPlaying\" content=\"false\"><p>one<p>two<p>Back<p> "
      "</text>"
      "<link><linktext></linktext><linkto>001</linkto></link>\r\n";
  EXPECT_NE(folder_.Read("Back.dat").find(" 2 ," + second), std::string::npos) << folder_.Read("Back.dat");
}

TEST_F(NotesProgram, AProjectIsOverwrittenOnlyWhenTold) {
  folder_.Write("notes/a.txt", "<title>A</title>\r\n");
  Run({"import", "notes", "Tour.dat"});
  EXPECT_EQ(status_, 2);
  EXPECT_NE(told_.find("--overwrite"), std::string::npos);
  EXPECT_EQ(folder_.Read("Tour.dat"), kSound);
  Run({"import", "--overwrite", "notes", "Tour.dat"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_NE(folder_.Read("Tour.dat"), kSound);
}

TEST_F(NotesProgram, ANoteThatCannotBeImportedLeavesNoProject) {
  folder_.Write("notes/a.txt", "<a href=\"z001.txt>no end");
  Run({"import", "notes", "New.dat"});
  EXPECT_EQ(status_, 2);
  EXPECT_NE(told_.find("a.txt"), std::string::npos);
  EXPECT_FALSE(fs::exists(folder_.Path() / "New.dat"));
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

TEST_F(NotesProgram, NamesBehindTwoDashesMayBeginWithADash) {
  folder_.Write("-odd.dat", kSound);
  Run({"check", "--", "-odd.dat"});
  EXPECT_EQ(status_, 0) << told_;
}

}  // namespace
}  // namespace tavrel::test
