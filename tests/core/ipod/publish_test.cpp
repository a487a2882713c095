#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "core/document/default_pages.h"
#include "core/document/document_file.h"
#include "core/document/page_record.h"
#include "core/ipod/meta_lines.h"
#include "core/ipod/note_writer.h"
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

/// The note of a page of Trio.dat.
std::string TrioNote(const std::string& title, const std::string& text) {
  return "<title>" + title + "</title>\r\n" + kMeta + text + "\r\n";
}

const FileMap kTrioNotes = {{"Trio/z001.txt", TrioNote("-A", "one")},
                            {"Trio/z002.txt", TrioNote("B", "two")},
                            {"Trio/z003.txt", TrioNote("C", "three")}};

class PublishTest : public testing::Test {
 protected:
  PublishTest() { ReadDocumentText(kTrio, State); }

  void Publish(const PublishOptions& options = {}) {
    PublishNotes(State, System, Folder.Path() / "Trio", options);
  }

  void ExpectErrorNaming(const fs::path& name) {
    const std::string text = PathText((Folder.Path() / name).make_preferred());
    EXPECT_THAT([&] { Publish(); }, ThrowsMessage<FileError>(HasSubstr(text)));
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

TEST_F(PublishTest, MakesTheFolderWithANoteForEachPage) {
  Publish();
  EXPECT_EQ(Folder.Files(), kTrioNotes);
}

TEST_F(PublishTest, WritesNoNoteForEmptyPagesAndForPagesBeyondTheLast) {
  State = Global();
  for (const int page : {0, 1, 5, 12, 999, 1000}) State.Page(page) = "<text>x</text>";
  Publish();
  FileMap expected;
  for (const char* name : {"z001", "z005", "z012", "z999"}) {
    expected["Trio/" + std::string(name) + ".txt"] = TrioNote(name == std::string("z001") ? "-" : "", "x");
  }
  EXPECT_EQ(Folder.Files(), expected);
}

TEST_F(PublishTest, PublishesANewDocumentOfTwoPages) {
  State = Global();
  MakeDefaultPages(State, {.Title = true, .Contents = true});
  PageFields first = ReadPage(State.Page(1));
  first.Body = "See <Contents> now";
  State.Page(1) = BuildPage(first, System.SystemCodePage());
  Publish({.BackgroundMusic = true});
  EXPECT_EQ(Folder.Files(), (FileMap{{"Trio/z001.txt", "<title>-Title</title>\r\n" + kMeta + kNow +
                                                           "See <a href=\"z002.txt\">Contents</a> now\r\n"
                                                           "<a href=\"z002.txt\">Contents</a>\r\n"},
                                     {"Trio/z002.txt", "<title>Contents</title>\r\n" + kMeta + kNow +
                                                           "Contents page with links to other pages\r\n"
                                                           "<a href=\"z001.txt\">Title page</a>\r\n"}}));
}

TEST_F(PublishTest, ReusesTheFolderAndLeavesStaleNotes) {
  Publish();
  Folder.Write("Trio/other.txt", "mine");
  State.Page(1) = "<title>New</title><text>1</text>";
  State.Page(2).clear();
  Publish();
  FileMap expected = kTrioNotes;
  expected["Trio/other.txt"] = "mine";
  expected["Trio/z001.txt"] = TrioNote("-New", "1");
  EXPECT_EQ(Folder.Files(), expected);
}

TEST_F(PublishTest, MakesTheFolderEvenWithoutPages) {
  State = Global();
  Publish();
  EXPECT_TRUE(fs::is_directory(Folder.Path() / "Trio"));
  EXPECT_TRUE(Folder.Files().empty());
}

TEST_F(PublishTest, DoesNotChangeTheDocument) {
  const Global before = State;
  Publish({.NotesMenuLink = true, .BackgroundMusic = true});
  EXPECT_EQ(State.Pages, before.Pages);
  EXPECT_EQ(State.MusicLinks, before.MusicLinks);
}

TEST_F(PublishTest, NamesAFileInTheFoldersPlace) {
  Folder.Write("Trio", "a file");
  ExpectErrorNaming("Trio");
  EXPECT_EQ(Folder.Files(), (FileMap{{"Trio", "a file"}}));
}

TEST_F(PublishTest, NamesAFolderThatCannotBeMade) {
  const fs::path folder = Folder.Path() / "gone" / "Trio";
  EXPECT_THAT([&] { PublishNotes(State, System, folder, {}); },
              ThrowsMessage<FileError>(HasSubstr(PathText(folder))));
}

TEST_F(PublishTest, NamesAFolderInANotesPlace) {
  fs::create_directories(Folder.Path() / "Trio" / "z002.txt");
  ExpectErrorNaming("Trio/z002.txt");
  EXPECT_TRUE(fs::is_directory(Folder.Path() / "Trio" / "z002.txt"));
}

TEST_F(PublishTest, LeavesCompleteNotesOrNoneWhereverWritingFails) {
  System.Files.CutWritesAt(40);
  const std::string names[] = {"Trio/z001.txt", "Trio/z002.txt", "Trio/z003.txt"};
  for (const Operation step : {Operation::CreateOrEmpty, Operation::Write, Operation::Close}) {
    // Each note is longer than 40 and shorter than 80 characters: two writes, one of all else.
    const int calls = step == Operation::Write ? 2 : 1;
    for (int failing = 1; failing <= 3 * calls; ++failing) {
      fs::remove_all(Folder.Path() / "Trio");
      System.Files.FailAt(step, failing, std::errc::no_space_on_device);
      const int notes_before = (failing - 1) / calls;
      ExpectErrorNaming(names[notes_before]);
      FileMap expected;
      for (int i = 0; i < notes_before; ++i) expected[names[i]] = kTrioNotes.at(names[i]);
      EXPECT_EQ(Folder.Files(), expected);
    }
  }
}

TEST_F(PublishTest, LeavesNoHalfOfANoteThatItReplaces) {
  Folder.Write("Trio/z002.txt", "from before");
  System.Files.CutWritesAt(40);
  System.Files.FailAt(Operation::Write, 4, std::errc::io_error);
  ExpectErrorNaming("Trio/z002.txt");
  EXPECT_EQ(Folder.Files(), (FileMap{{"Trio/z001.txt", kTrioNotes.at("Trio/z001.txt")}}));
}

TEST_F(PublishTest, StopsAtAnImpossibleMusicLink) {
  State.Page(2) = "<text><x></text><link><linktext>x</linktext><linkto>M101</linkto></link>";
  EXPECT_THROW(Publish(), RunTimeError);
  EXPECT_EQ(Folder.Files(), (FileMap{{"Trio/z001.txt", kTrioNotes.at("Trio/z001.txt")}}));
}

}  // namespace
}  // namespace tavrel::test
