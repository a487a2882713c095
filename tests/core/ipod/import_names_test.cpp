#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "core/document/document_file.h"
#include "core/ipod/note_reader.h"
#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "support/tree_snapshot.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

/// Imports folders of any name; the document is saved under the folder's name.
class ImportNamesTest : public testing::Test {
 protected:
  ImportNamesTest() {
    Folder.Write("elsewhere/kept.txt", "kept");
    fs::create_directory(Folder.Path() / "program");
    State.ProgramFolder = Folder.Path() / "program";
  }

  void Import(const fs::path& folder) {
    std::vector<fs::path> notes;
    for (const FolderFile& file : ListFiles(folder, ".txt", System.SystemCodePage()))
      notes.push_back(file.Name);
    ImportNotes(State, folder, notes, System.SystemCodePage(), [](int) {});
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

TEST_F(ImportNamesTest, TheDocumentLiesInTheProgramsFolderWhateverTheFoldersName) {
  for (const std::string name : {"...", "..a", "a.b", "a\\..\\..\\b", "-rf", "~", "con", "NUL", " ", "a ",
                                 "new\nline", "\x01", "caf\xE9", "C:\\x", "&?*"}) {
    Folder.Write(fs::path("notes") / name / "z001.txt", "one");
    const TreeSnapshot before(Folder.Path());
    Import(Folder.Path() / "notes" / name);
    SaveDocument(State, System);
    EXPECT_EQ(State.DocPath.native(), name + ".dat");
    EXPECT_THAT(before.Changes({"program/" + name + ".dat"}), IsEmpty());
    EXPECT_EQ(Folder.Read("program/" + name + ".dat"), "\r\n 1 ,<text> one<p> </text><link></link>\r\n");
  }
}

TEST_F(ImportNamesTest, AFolderThatEndsInASeparatorHasNoName) {
  Folder.Write("notes/z001.txt", "one");
  Import(Folder.Path() / "notes" / "");
  EXPECT_EQ(State.DocPath, ".dat");
  const TreeSnapshot before(Folder.Path());
  SaveDocument(State, System);
  EXPECT_THAT(before.Changes(), ElementsAre("made: program/.dat"));
}

TEST_F(ImportNamesTest, ANameThatIsTooLongWithTheExtensionWritesNothing) {
  const std::string name(252, 'n');
  Folder.Write(fs::path("notes") / name / "z001.txt", "one");
  const TreeSnapshot before(Folder.Path());
  Import(Folder.Path() / "notes" / name);
  EXPECT_THROW(SaveDocument(State, System), FileError);
  EXPECT_THAT(before.Changes(), IsEmpty());
}

TEST_F(ImportNamesTest, NotesThatAreLinksAreOnlyRead) {
  fs::create_directories(Folder.Path() / "notes/Guide");
  fs::create_symlink("../../elsewhere/kept.txt", Folder.Path() / "notes/Guide/a.txt");
  fs::create_symlink("b.txt", Folder.Path() / "notes/Guide/b.txt");
  fs::create_symlink("../../gone", Folder.Path() / "notes/Guide/c.txt");
  fs::create_directory_symlink("..", Folder.Path() / "notes/Guide/d.txt");
  const TreeSnapshot before(Folder.Path());
  Import(Folder.Path() / "notes/Guide");
  SaveDocument(State, System);
  EXPECT_THAT(before.Changes(), ElementsAre("made: program/Guide.dat"));
  EXPECT_EQ(Folder.Read("program/Guide.dat"), "\r\n 1 ,<text> kept<p> </text><link></link>\r\n");
}

TEST_F(ImportNamesTest, NoTextOfANoteBecomesAPlaceToWriteTo) {
  Folder.Write("notes/Guide/a.txt",
               "<title>../../elsewhere/kept.txt</title><a href=\"../../elsewhere/kept.txt\">up</a>"
               "<a href=\"ipod:music?song=../../elsewhere/kept.txt\">hear</a>");
  const TreeSnapshot before(Folder.Path());
  Import(Folder.Path() / "notes/Guide");
  SaveDocument(State, System);
  EXPECT_THAT(before.Changes(), ElementsAre("made: program/Guide.dat"));
}

}  // namespace
}  // namespace tavrel::test
