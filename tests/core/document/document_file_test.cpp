#include "core/document/document_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

class DocumentFileTest : public testing::Test {
 protected:
  DocumentFileTest() {
    State.ProgramFolder = Folder.Path();
    State.DocPath = "Guide.dat";
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

using LoadDocumentTest = DocumentFileTest;
using SaveDocumentTest = DocumentFileTest;
using DeleteDocumentTest = DocumentFileTest;

TEST_F(LoadDocumentTest, ReadsTheOpenDocument) {
  Folder.Write("Guide.dat", kGuide);
  LoadDocument(State);
  EXPECT_EQ(
      State.Page(5),
      "<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>999</linkto></link>");
  EXPECT_EQ(State.Page(999), "<title>Last</title><text>Omega</text>");
}

TEST_F(LoadDocumentTest, LeavesNothingOfTheDocumentBefore) {
  Folder.Write("Guide.dat", kGuide);
  LoadDocument(State);
  Folder.Write("Guide.dat", kTrio);
  ClearDocument(State);
  LoadDocument(State);
  EXPECT_EQ(DocumentText(State), kTrio);
}

TEST_F(LoadDocumentTest, KeepsPage0AndPage1000ForTheWholeRun) {
  Folder.Write("Guide.dat", "\r\n 0 ,zero\r\n 1000 ,thousand\r\n");
  LoadDocument(State);
  Folder.Write("Guide.dat", "\r\n 1 ,one\r\n");
  ClearDocument(State);
  LoadDocument(State);
  EXPECT_EQ(State.Page(1000), "thousand");
  EXPECT_EQ(DocumentText(State), "\r\n 0 ,zero\r\n 1 ,one\r\n");
}

TEST_F(LoadDocumentTest, KeepsWhatTheFileDoesNotName) {
  State.Page(4) = "from an import";
  State.MusicLink(100) = "<song>S</song>";
  Folder.Write("Guide.dat", kTrio);
  LoadDocument(State);
  EXPECT_EQ(State.Page(3), "<title>C</title><text>three</text>");
  EXPECT_EQ(State.Page(4), "from an import");
  EXPECT_EQ(State.MusicLink(100), "<song>S</song>");
}

TEST_F(LoadDocumentTest, NamesAFileThatIsMissing) {
  EXPECT_THAT([&] { LoadDocument(State); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "Guide.dat"))));
}

TEST_F(LoadDocumentTest, NamesAFolderInTheFilesPlace) {
  fs::create_directory(Folder.Path() / "Guide.dat");
  EXPECT_THAT([&] { LoadDocument(State); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "Guide.dat"))));
}

TEST_F(LoadDocumentTest, NamesADamagedFileAndChangesNothing) {
  for (const std::string damaged : {"", " 101 ,x\r\n\r\n", "\r\n 1 ,x\r\n 1001 ,y\r\n", " 1 ,x\r\n"}) {
    Folder.Write("Guide.dat", damaged);
    EXPECT_THAT([&] { LoadDocument(State); },
                ThrowsMessage<RunTimeError>(HasSubstr(PathText(Folder.Path() / "Guide.dat"))));
    EXPECT_EQ(State.Pages, Global().Pages);
    EXPECT_EQ(State.MusicLinks, Global().MusicLinks);
    EXPECT_EQ(Folder.Read("Guide.dat"), damaged);
  }
}

TEST_F(SaveDocumentTest, WritesTheFile) {
  ReadDocumentText(kSongs, State);
  SaveDocument(State, System);
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", std::string(kSongs)}}));
}

TEST_F(SaveDocumentTest, ReplacesALongerFile) {
  Folder.Write("Guide.dat", kGuide);
  SaveDocument(State, System);
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "\r\n"}}));
}

TEST_F(SaveDocumentTest, MakesTheProgramsFolderCurrent) {
  const TemporaryFolder elsewhere;
  fs::current_path(elsewhere.Path());
  SaveDocument(State, System);
  EXPECT_EQ(fs::current_path(), Folder.Path());
}

TEST_F(SaveDocumentTest, LeavesTheOldFileIfAnythingFails) {
  Folder.Write("Guide.dat", kGuide);
  ReadDocumentText(kTrio, State);
  for (const Operation step :
       {Operation::CreateNew, Operation::Write, Operation::Flush, Operation::Close, Operation::Replace}) {
    System.Files.FailAt(step, 1, std::errc::no_space_on_device);
    EXPECT_THAT([&] { SaveDocument(State, System); },
                ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "Guide.dat"))));
    EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", std::string(kGuide)}}));
  }
}

TEST_F(SaveDocumentTest, NamesAFolderThatIsGone) {
  State.ProgramFolder = Folder.Path() / "gone";
  EXPECT_THAT([&] { SaveDocument(State, System); },
              ThrowsMessage<FileError>(HasSubstr(PathText(State.ProgramFolder))));
}

TEST_F(DeleteDocumentTest, DeletesTheDocumentAndItsBackupOnly) {
  for (const char* name : {"Guide.dat", "Guide.bak", "Guide.pln", "Guide2.bak"}) Folder.Write(name, "x");
  DeleteDocument(Folder.Path(), "Guide.dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.pln", "x"}, {"Guide2.bak", "x"}}));
}

TEST_F(DeleteDocumentTest, KeepsFullStopsInTheBackupsName) {
  for (const char* name : {"my.notes.dat", "my.notes.bak", "my.bak"}) Folder.Write(name, "x");
  DeleteDocument(Folder.Path(), "my.notes.dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{"my.bak", "x"}}));
}

TEST_F(DeleteDocumentTest, TakesMissingFilesForDeleted) {
  Folder.Write("Guide.bak", "x");
  DeleteDocument(Folder.Path(), "Guide.dat");
  EXPECT_EQ(Folder.Files(), FileMap());
  EXPECT_NO_THROW(DeleteDocument(Folder.Path(), "Guide.dat"));
}

TEST_F(DeleteDocumentTest, NeverDeletesAFolder) {
  Folder.Write("Guide.dat", "x");
  fs::create_directory(Folder.Path() / "Guide.bak");
  DeleteDocument(Folder.Path(), "Guide.dat");
  EXPECT_FALSE(Folder.Has("Guide.dat"));
  EXPECT_TRUE(Folder.Has("Guide.bak"));
}

}  // namespace
}  // namespace tavrel::test
