#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "process/notes_program.h"

// Importing, as a process.

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

const std::string kNoQuote =
    "The target of a link has no closing quote. Correct it in a text editor and import again.";
const std::string kNoEnd = "A link has no </a> at its end. Correct it in a text editor and import again.";

/// A name with letters of several alphabets.
const char* const kForeignName = "Caf\u00E9 \u0141\u00F3d\u017A \u65E5\u672C";

class NotesImport : public NotesProgram {
 protected:
  /// A project that must not be made was not made.
  void ExpectNoProject() const { EXPECT_FALSE(fs::exists(folder_.Path() / "New.dat")); }

  void WriteNotes(int count) const {
    for (int note = 1; note <= count; ++note)
      folder_.Write("notes/" + std::to_string(10'000 + note) + ".txt", "x");
  }
};

TEST_F(NotesImport, TakesWhatWasPublished) {
  Run({"publish", "Tour.dat", "notes"});
  Run({"import", "notes", "Back.dat"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_EQ(told_, "");
  const std::string second =
      "<title>Two</title><text> <p><p><meta name=\"NowPlaying\" content=\"false\"><p>one<p>two<p>Back<p> "
      "</text>"
      "<link><linktext></linktext><linkto>001</linkto></link>\r\n";
  EXPECT_NE(folder_.Read("Back.dat").find(" 2 ," + second), std::string::npos) << folder_.Read("Back.dat");
}

TEST_F(NotesImport, AProjectIsOverwrittenOnlyWhenTold) {
  folder_.Write("notes/a.txt", "<title>A</title>\r\n");
  Run({"import", "notes", "Tour.dat"});
  ExpectRefusal("Tour.dat: The project is there already. With --overwrite it is replaced.");
  EXPECT_EQ(folder_.Read("Tour.dat"), kTwoPages);
  Run({"import", "--overwrite", "notes", "Tour.dat"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_EQ(folder_.Read("Tour.dat"), "\r\n 1 ,<title>A</title><text> <p> </text><link></link>\r\n");
}

TEST_F(NotesImport, AFolderWithoutNotesLeavesTheProjectAsItIs) {
  folder_.Write("notes/readme.md", "x");
  Run({"import", "notes", "New.dat"});
  ExpectRefusal("notes: The folder holds no notes, which are files named *.txt.");
  ExpectNoProject();
  Run({"import", "--overwrite", "notes", "Tour.dat"});
  ExpectRefusal("notes: The folder holds no notes, which are files named *.txt.");
  EXPECT_EQ(folder_.Read("Tour.dat"), kTwoPages);
}

TEST_F(NotesImport, ABrokenLinkIsToldWithItsLineAndLeavesNoProject) {
  folder_.Write("notes/a.txt", "<title>A</title>\r\none<br>two\r\n<a href=\"a.txt>no end\r\nlast\r\n");
  Run({"import", "notes", "New.dat"});
  ExpectRefusal((fs::path("notes") / "a.txt").string() + ":3: " + kNoQuote);
  ExpectNoProject();
}

TEST_F(NotesImport, TheLineIsCountedAsTheFileStandsWhateverItsLinesEndWith) {
  for (const std::string end : {"\r\n", "\n", "\r"}) {
    folder_.Write("notes/a.txt", end + "one" + end + end + "<a href=\"a.txt\">x");
    Run({"import", "notes", "New.dat"});
    ExpectRefusal((fs::path("notes") / "a.txt").string() + ":4: " + kNoEnd);
  }
  ExpectNoProject();
}

TEST_F(NotesImport, AMissingFolderIsTold) {
  Run({"import", "none", "New.dat"});
  ExpectRefusalBeginning("none: Could not be read: ");
  ExpectNoProject();
}

TEST_F(NotesImport, AFileIsNoFolderOfNotes) {
  Run({"import", "Tour.dat", "New.dat"});
  ExpectRefusalBeginning("Tour.dat: Could not be read: ");
  ExpectNoProject();
}

TEST_F(NotesImport, AProjectInAFolderThatIsMissingIsTold) {
  WriteNotes(1);
  const std::string project = (fs::path("none") / "New.dat").string();
  Run({"import", "notes", QString::fromStdString(project)});
  ExpectRefusalBeginning(project + ": Could not be written: ");
}

TEST_F(NotesImport, AFolderIsNotReplacedByAProject) {
  WriteNotes(1);
  fs::create_directory(folder_.Path() / "New.dat");
  Run({"import", "notes", "New.dat"});
  ExpectRefusalBeginning("New.dat: The project is there already.");
  Run({"import", "--overwrite", "notes", "New.dat"});
  ExpectRefusalBeginning("New.dat: Could not be written: ");
  EXPECT_TRUE(fs::is_directory(folder_.Path() / "New.dat"));
}

TEST_F(NotesImport, ANameThatIsTooLongIsTold) {
  WriteNotes(1);
  const std::string name(5000, 'n');
  Run({"import", "notes", QString::fromStdString(name)});
  ExpectRefusalBeginning(name + ": ");
  Run({"import", QString::fromStdString(name), "New.dat"});
  ExpectRefusalBeginning(name + ": Could not be read: ");
  ExpectNoProject();
}

TEST_F(NotesImport, AllThatAProjectCanStoreIsImported) {
  WriteNotes(998);
  std::string songs;
  for (int song = 1; song <= 99; ++song) songs += "<a href=\"song=" + std::to_string(song) + "\">x</a>";
  folder_.Write("notes/songs.txt", songs);
  Run({"import", "notes", "New.dat"});
  EXPECT_EQ(status_, 0) << told_;
  EXPECT_EQ(told_, "");
  const std::string project = folder_.Read("New.dat");
  EXPECT_NE(project.find(" 999 ,"), std::string::npos);
  EXPECT_NE(project.find(" 99 ,<song>99</song>"), std::string::npos);
}

TEST_F(NotesImport, A1000thNoteWouldBeLostSoNothingIsWritten) {
  WriteNotes(1000);
  Run({"import", "notes", "New.dat"});
  ExpectRefusal((fs::path("notes") / "11000.txt").string() +
                ": A project stores 999 pages, so this note would be lost. Move some of them to another "
                "folder and import again.");
  ExpectNoProject();
}

TEST_F(NotesImport, A1001stNoteIsTold) {
  WriteNotes(1001);
  Run({"import", "notes", "New.dat"});
  ExpectRefusal((fs::path("notes") / "11001.txt").string() +
                ": The folder holds more notes than a project has pages. Move some of them to another folder "
                "and import again.");
  ExpectNoProject();
}

TEST_F(NotesImport, A100thPieceOfMusicWouldBeLostSoNothingIsWritten) {
  std::string songs;
  for (int song = 1; song <= 100; ++song) songs += "<a href=\"song=" + std::to_string(song) + "\">x</a>";
  folder_.Write("notes/songs.txt", songs);
  folder_.Write("Old.dat", "as it was");
  for (const QStringList& words : {QStringList{"import", "notes", "New.dat"},
                                   QStringList{"import", "--overwrite", "notes", "Old.dat"}}) {
    Run(words);
    ExpectRefusal(
        "notes: A project stores 99 music links, so a piece of music would be lost. Move some of the notes "
        "to "
        "another folder and import again.");
  }
  ExpectNoProject();
  EXPECT_EQ(folder_.Read("Old.dat"), "as it was");
}

TEST_F(NotesImport, A101stPieceOfMusicIsToldWithItsLine) {
  std::string songs;
  for (int song = 1; song <= 101; ++song) songs += "<a href=\"song=" + std::to_string(song) + "\">x</a>\r\n";
  folder_.Write("notes/songs.txt", songs);
  Run({"import", "notes", "New.dat"});
  ExpectRefusal((fs::path("notes") / "songs.txt").string() +
                ":101: The notes link to more than 100 pieces of music. Move some of them to another folder "
                "and import again.");
}

TEST_F(NotesImport, NamesMayHoldLettersOfAnyAlphabet) {
  const fs::path name = fs::path(std::u8string(reinterpret_cast<const char8_t*>(kForeignName)));
  const QString foreign = QString::fromUtf8(kForeignName);
  fs::copy_file(folder_.Path() / "Tour.dat", folder_.Path() / name);
  Run({"publish", foreign, foreign + " notes"});
  EXPECT_EQ(status_, 0) << told_;
  Run({"import", foreign + " notes", foreign + " 2.dat"});
  EXPECT_EQ(status_, 0) << told_;
  Run({"check", foreign + " 2.dat"});
  EXPECT_NE(status_, 2) << told_;
  Run({"import", foreign + " notes", foreign});
  ExpectRefusalBeginning(std::string(kForeignName) + ": The project is there already.");
  Run({"check", foreign + " 3.dat"});
  ExpectRefusalBeginning(std::string(kForeignName) + " 3.dat: Could not be read: ");
}

}  // namespace
}  // namespace tavrel::test
