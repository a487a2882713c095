#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/document/document_file.h"
#include "core/ipod/imported_note.h"
#include "core/ipod/note_reader.h"
#include "core/ipod/note_writer.h"
#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

class ImportTest : public testing::Test {
 protected:
  ImportTest() {
    State.ProgramFolder = Folder.Path();
    System.FlushesVolumes = false;
  }

  void Write(const std::string& name, const std::string& bytes) const { Folder.Write("Trip/" + name, bytes); }

  /// Publishes a document into the folder that is imported.
  void Publish(std::string_view document) {
    Global published;
    ReadDocumentText(document, published);
    fs::create_directories(NotesFolder());
    PublishNotes(published, System, NotesFolder(), {});
  }

  void Import(const std::vector<fs::path>& names) {
    ImportNotes(State, NotesFolder(), names, System.SystemCodePage(),
                [this](int notes) { Progress.push_back(notes); });
  }

  void ImportAll() {
    std::vector<fs::path> names;
    for (const FolderFile& file : ListFiles(NotesFolder(), ".txt", System.SystemCodePage())) {
      names.push_back(file.Name);
    }
    Import(names);
  }

  void ExpectAdvice(const std::string& advice, const std::vector<fs::path>& names) {
    EXPECT_THAT([&] { Import(names); }, ThrowsMessage<RunTimeError>(HasSubstr(advice)));
  }

  void ExpectErrorNaming(const std::string& name, const std::vector<fs::path>& names) {
    EXPECT_THAT([&] { Import(names); },
                ThrowsMessage<RunTimeError>(HasSubstr(PathText(NotesFolder() / name))));
  }

  fs::path NotesFolder() const { return Folder.Path() / "Trip"; }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
  std::vector<int> Progress;
};

TEST_F(ImportTest, ReadsAPublishedDocument) {
  Publish(kTrio);
  ImportAll();
  EXPECT_EQ(DocumentText(State),
            "\r\n"
            " 1 ,<title>-A</title><text> <p><p>one<p> </text><link></link>\r\n"
            " 2 ,<title>B</title><text> <p><p>two<p> </text><link></link>\r\n"
            " 3 ,<title>C</title><text> <p><p>three<p> </text><link></link>\r\n");
}

TEST_F(ImportTest, GivesPagesTheirPlaceInTheList) {
  Publish(
      "\r\n"
      " 1 ,<title>A</title><text>a</text><link><linktext>x</linktext><linkto>012</linkto></link>\r\n"
      " 5 ,<title>B</title><text>b</text><link><linktext>y</linktext><linkto>007</linkto></link>\r\n"
      " 12 ,<title>C</title><text>c</text><link><linktext>z</linktext><linkto>005</linkto></link>\r\n");
  ImportAll();
  EXPECT_EQ(DocumentText(State),
            "\r\n"
            " 1 ,<title>-A</title><text> <p><p>a<p>x<p> </text>"
            "<link><linktext></linktext><linkto>003</linkto></link>\r\n"
            " 2 ,<title>B</title><text> <p><p>b<p>y<p> </text>"
            "<link><linktext></linktext><linkto>001</linkto></link>\r\n"
            " 3 ,<title>C</title><text> <p><p>c<p>z<p> </text>"
            "<link><linktext></linktext><linkto>002</linkto></link>\r\n");
}

TEST_F(ImportTest, ReadsMusicAndInlineLinks) {
  Publish(kSongs);
  ImportAll();
  EXPECT_EQ(DocumentText(State),
            " 1 ,<song>Blue</song><artist>Kim Low</artist>\r\n"
            "\r\n"
            " 1 ,<title>-Start</title><text> <p><p>Play<p>See Part two<p>Part two<p> </text>"
            "<link><linktext></linktext><linkto>M1</linkto><linktext></linktext><linkto>002</linkto>"
            "<linktext></linktext><linkto>002</linkto></link>\r\n"
            " 2 ,<title>Next</title><text> <p><p>End<p> </text><link></link>\r\n");
}

TEST_F(ImportTest, SharesMusicLinksAmongNotes) {
  Write("a.txt", "<a href=\"ipod:music?song=Blue&artist=Kim\">x</a>\r\n");
  Write("b.txt", "<a href=\"song=BLUE&artist=kim\">y</a>\r\n");
  ImportAll();
  EXPECT_EQ(DocumentText(State),
            " 1 ,<song>Blue</song><artist>Kim</artist>\r\n"
            "\r\n"
            " 1 ,<text> x<p> </text><link><linktext></linktext><linkto>M1</linkto></link>\r\n"
            " 2 ,<text> y<p> </text><link><linktext></linktext><linkto>M1</linkto></link>\r\n");
}

TEST_F(ImportTest, ReadsNotesOfOtherPrograms) {
  Write("a.txt", "Hello");
  Write("b.txt", "<body>one<br>two<p>three</p></body>\r\n");
  Write("c.txt", "<title></title>body\r\n");
  Write("d.txt", "");
  Write("e.txt", "one\ntwo\r\rcaf\xE9");
  ImportAll();
  EXPECT_EQ(DocumentText(State),
            "\r\n"
            " 1 ,<text> Hello<p> </text><link></link>\r\n"
            " 2 ,<text> one<p>two<p>three<p> </text><link></link>\r\n"
            " 3 ,<title></title><text> body<p> </text><link></link>\r\n"
            " 4 ,<text>  </text><link></link>\r\n"
            " 5 ,<text> one<p>two<p><p>caf\xE9<p> </text><link></link>\r\n");
}

TEST_F(ImportTest, ReadsTheNotesInTheGivenOrder) {
  Write("a.txt", "<a href=\"b.txt\">1</a>");
  Write("b.txt", "<a href=\"c.txt\">2</a>");
  Write("c.txt", "<a href=\"a.txt\">3</a>");
  Import({"c.txt", "a.txt"});
  EXPECT_EQ(State.Page(1), TextAndLinks("3\r\n", LinkTo("002")));
  EXPECT_EQ(State.Page(2), TextAndLinks("1\r\n", LinkTo("001")));
  EXPECT_EQ(State.Page(3), "");
}

TEST_F(ImportTest, KnowsNotesByTheirNamesInTheCodePage) {
  Write("a.txt", "<a href=\"caf\xE9.txt\">x</a>");
  fs::copy_file(NotesFolder() / "a.txt", NotesFolder() / u8"caf\u00E9.txt");
  Import({"a.txt", u8"caf\u00E9.txt"});
  EXPECT_EQ(State.Page(1), TextAndLinks("x\r\n", LinkTo("002")));
}

TEST_F(ImportTest, ReplacesTheDocumentInMemory) {
  State.Pages.fill("old");
  State.MusicLinks.fill("old");
  State.IsDocumentShown = true;
  Write("a.txt", "new");
  ImportAll();
  EXPECT_EQ(State.Page(1), TextAndLinks("new\r\n"));
  for (int page = 2; page <= 999; ++page) EXPECT_EQ(State.Page(page), "") << page;
  for (int link = 1; link <= 100; ++link) EXPECT_EQ(State.MusicLink(link), "") << link;
  EXPECT_EQ(State.Page(0) + State.Page(1000) + State.MusicLink(0), "oldoldold");
  EXPECT_FALSE(State.IsDocumentShown);
}

TEST_F(ImportTest, MakesAnEmptyDocumentOfAnEmptyFolder) {
  State.Page(3) = "old";
  Import({});
  EXPECT_EQ(DocumentText(State), "\r\n");
  EXPECT_EQ(State.DocPath, "Trip.dat");
  EXPECT_TRUE(Progress.empty());
}

TEST_F(ImportTest, NamesTheDocumentAfterTheFolder) {
  const fs::path names[] = {"Trip", "My.Notes", "a b", "x.dat", u8"Caf\u00E9"};
  for (const fs::path& name : names) {
    fs::path expected = name;
    expected += ".dat";
    ImportNotes(State, Folder.Path() / name, {}, System.SystemCodePage(), [](int) {});
    EXPECT_EQ(State.DocPath, expected);
  }
}

TEST_F(ImportTest, SavesNothing) {
  Folder.Write("Trip.dat", "from before");
  Write("a.txt", "new");
  const auto before = Folder.Files();
  ImportAll();
  EXPECT_EQ(Folder.Files(), before);
}

TEST_F(ImportTest, IsSavedOverADocumentOfTheSameName) {
  Folder.Write("Trip.dat", "from before");
  Write("a.txt", "new");
  ImportAll();
  SaveDocument(State, System);
  EXPECT_EQ(Folder.Read("Trip.dat"), "\r\n 1 ,<text> new<p> </text><link></link>\r\n");
}

TEST_F(ImportTest, TellsItsProgressAfterEachNote) {
  for (const char* name : {"a.txt", "b.txt", "c.txt"}) Write(name, "x");
  ImportAll();
  EXPECT_THAT(Progress, ElementsAre(1, 2, 3));
}

TEST_F(ImportTest, TakesAThousandNotesOfWhichTheLastIsNeverSaved) {
  Write("a.txt", "x");
  std::vector<fs::path> names(999, "a.txt");
  Import(names);
  EXPECT_EQ(State.Page(999), TextAndLinks("x\r\n"));
  EXPECT_EQ(State.Page(1000), "");
  const std::string saved = DocumentText(State);

  names.emplace_back("a.txt");
  Import(names);
  EXPECT_EQ(State.Page(1000), TextAndLinks("x\r\n"));
  EXPECT_EQ(DocumentText(State), saved);
  EXPECT_EQ(LastPage(State), 999);
}

TEST_F(ImportTest, TakesNoMoreThanAThousandNotes) {
  Write("a.txt", "x");
  Write("one too many.txt", "x");
  std::vector<fs::path> names(1000, "a.txt");
  names.emplace_back("one too many.txt");
  ExpectErrorNaming("one too many.txt", names);
  ExpectAdvice("Move some of them to another folder and import again.", names);
  EXPECT_EQ(Progress.size(), 2000U);  // of both attempts
}

TEST_F(ImportTest, LeavesThe1000thNoteOfAnEarlierImport) {
  Write("a.txt", "x");
  Import(std::vector<fs::path>(1000, "a.txt"));
  Import({"a.txt"});
  EXPECT_EQ(State.Page(1000), TextAndLinks("x\r\n"));
  EXPECT_EQ(LastPage(State), 1);
}

TEST_F(ImportTest, NamesANoteThatHasVanished) {
  Write("a.txt", "x");
  ExpectErrorNaming("gone.txt", {"a.txt", "gone.txt"});
  EXPECT_THAT(Progress, ElementsAre(1));
}

TEST_F(ImportTest, NamesANoteThatCannotBeRead) {
  fs::create_directories(NotesFolder() / "folder.txt");
  ExpectErrorNaming("folder.txt", {"folder.txt"});
}

TEST_F(ImportTest, NamesANoteWithABrokenAnchor) {
  Write("a.txt", "<a href=\"a.txt\">x</a>");
  Write("b.txt", "<a href=\"a.txt\">x");
  Write("c.txt", "<a href=\"a.txt");
  ExpectErrorNaming("b.txt", {"a.txt", "b.txt"});
  ExpectErrorNaming("c.txt", {"a.txt", "c.txt"});
  for (const char* broken : {"b.txt", "c.txt"})
    ExpectAdvice("Correct it in a text editor and import again.", {broken});
}

TEST_F(ImportTest, NamesTheNoteWithTheMusicLinkThatIsTooMany) {
  std::string note;
  for (int i = 1; i <= 100; ++i) note += "<a href=\"song=" + std::to_string(i) + "\">x</a>";
  Write("a.txt", note);
  Write("b.txt", "<a href=\"song=101\">x</a>");
  Import({"a.txt"});
  EXPECT_EQ(State.MusicLink(100), "<song>100</song>");
  ExpectErrorNaming("b.txt", {"a.txt", "b.txt"});
  ExpectAdvice("Move some of them to another folder and import again.", {"a.txt", "b.txt"});
}

TEST_F(ImportTest, LeavesTheDocumentsFileWhenItFails) {
  Folder.Write("Trip.dat", "from before");
  Folder.Write("Guide.dat", "open before");
  State.DocPath = "Guide.dat";
  Write("a.txt", "x");
  Write("b.txt", "<a href=\"a.txt\">x");
  fs::current_path(Folder.Path());
  const auto before = Folder.Files();
  ExpectErrorNaming("b.txt", {"a.txt", "b.txt"});
  ExpectErrorNaming("gone.txt", {"a.txt", "gone.txt"});
  EXPECT_EQ(Folder.Files(), before);
  EXPECT_EQ(fs::current_path(), Folder.Path());
}

TEST_F(ImportTest, ReadsALargeFile) {
  Write("a.txt", std::string(10'000'000, 'x'));
  Import({"a.txt"});
  EXPECT_EQ(State.Page(1), TextAndLinks(std::string(10'000'000, 'x') + "\r\n"));
}

}  // namespace
}  // namespace tavrel::test
