#include <array>
#include <cstdio>
#include <functional>

#include "core/document/document_file.h"
#include "core/document/page_record.h"
#include "core/text/numbers.h"
#include "support/full_size_document.h"
#include "ui/ipod/import_test.h"

namespace tavrel::test {
namespace {

using ImportFilesTest = ImportTest;

/// The document of one page without links.
std::string OnePage(const std::string& text) {
  return "\r\n 1 ,<text> " + text + " </text><link></link>\r\n";
}

std::string LinkTo(const std::string& target) {
  return "<linktext></linktext><linkto>" + target + "</linkto>";
}

/// A file name whose number has four digits.
std::string NumberedName(int number) {
  std::array<char, 16> name{};
  std::snprintf(name.data(), name.size(), "n%04d.txt", number);
  return name.data();
}

TEST_F(ImportFilesTest, PageNumbersFollowThePlacesInTheList) {
  PublishPlain(
      " 1 ,<title>A</title><text>a</text><link><linktext>x</linktext><linkto>012</linkto></link>\r\n"
      " 5 ,<title>B</title><text>b</text><link><linktext>y</linktext><linkto>007</linkto></link>\r\n"
      " 12 ,<title>C</title><text>c</text><link><linktext>z</linktext><linkto>005</linkto></link>\r\n");
  ImportFolder("Doc");
  EXPECT_EQ(Folder.Read("Doc.dat"), "\r\n 1 ,<title>-A</title><text> <p><p>a<p>x<p> </text><link>" +
                                        LinkTo("003") +
                                        "</link>\r\n"
                                        " 2 ,<title>B</title><text> <p><p>b<p>y<p> </text><link>" +
                                        LinkTo("001") +
                                        "</link>\r\n"
                                        " 3 ,<title>C</title><text> <p><p>c<p>z<p> </text><link>" +
                                        LinkTo("002") + "</link>\r\n");
}

TEST_F(ImportFilesTest, MusicAndInlineLinksComeBackAsPageLinksOnTopOfTheList) {
  OpenDocument("Songs.dat", kSongs);
  Publish({"Check2"});
  ImportFolder("Songs");
  EXPECT_EQ(Folder.Read("Songs.dat"),
            " 1 ,<song>Blue</song><artist>Kim Low</artist>\r\n"
            "\r\n"
            " 1 ,<title>-Start</title><text> <p><p>Play<p>See Part two<p>Part two<p> </text><link>" +
                LinkTo("M1") + LinkTo("002") + LinkTo("002") +
                "</link>\r\n"
                " 2 ,<title>Next</title><text> <p><p>End<p> </text><link></link>\r\n");
}

TEST_F(ImportFilesTest, TheBackgroundMusicLineStaysInTheText) {
  OpenDocument("Trio.dat", kTrio);
  Publish();
  ImportFolder("Trio");
  const std::string now = "<meta name=\"NowPlaying\" content=\"false\">";
  EXPECT_EQ(Folder.Read("Trio.dat"), "\r\n 1 ,<title>-A</title><text> <p><p>" + now +
                                         "<p>one<p> </text><link></link>\r\n"
                                         " 2 ,<title>B</title><text> <p><p>" +
                                         now +
                                         "<p>two<p> </text><link></link>\r\n"
                                         " 3 ,<title>C</title><text> <p><p>" +
                                         now + "<p>three<p> </text><link></link>\r\n");
}

TEST_F(ImportFilesTest, TheNotesMenuLinkLeadsToPage1) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>A</title><text>a</text>\r\n");
  Publish({"Check1", "Check2"});
  ImportFolder("Doc");
  EXPECT_EQ(Folder.Read("Doc.dat"), "\r\n 1 ,<title>-A</title><text> <p><p>a<p>Notes menu<p> </text><link>" +
                                        LinkTo("001") + "</link>\r\n");
}

TEST_F(ImportFilesTest, ANoteWithoutALineEndGetsOne) {
  EXPECT_EQ(Imported({{"a.txt", "Hello"}}), OnePage("Hello<p>"));
}

TEST_F(ImportFilesTest, SongsThatDifferOnlyInLetterCaseShareAMusicLink) {
  EXPECT_EQ(Imported({{"a.txt", "<a href=\"ipod:music?song=Blue&artist=Kim\">x</a>\r\n"},
                      {"b.txt", "<a href=\"song=BLUE&artist=kim\">y</a>\r\n"}}),
            " 1 ,<song>Blue</song><artist>Kim</artist>\r\n"
            "\r\n"
            " 1 ,<text> x<p> </text><link>" +
                LinkTo("M1") +
                "</link>\r\n"
                " 2 ,<text> y<p> </text><link>" +
                LinkTo("M1") + "</link>\r\n");
}

TEST_F(ImportFilesTest, AMusicLinksFieldsAreInTheirOwnOrder) {
  EXPECT_EQ(Imported({{"a.txt", "<a href=\"ipod:music?artist=Kim&song=Blue&genre=Pop\">x</a>\r\n"}}),
            " 1 ,<song>Blue</song><artist>Kim</artist><genre>Pop</genre>\r\n"
            "\r\n"
            " 1 ,<text> x<p> </text><link>" +
                LinkTo("M1") + "</link>\r\n");
}

TEST_F(ImportFilesTest, BreaksAndParagraphsBecomeLineBreaks) {
  EXPECT_EQ(Imported({{"a.txt", "<body>one<br>two<p>three</p></body>\r\n"}}),
            OnePage("one<p>two<p>three<p>"));
}

TEST_F(ImportFilesTest, CapitalTagsAreText) {
  EXPECT_EQ(Imported({{"a.txt", "one<BR>two<A HREF=\"a.txt\">x</A>"}}),
            OnePage("one<BR>two<A HREF=\"a.txt\">x</A><p>"));
}

TEST_F(ImportFilesTest, AnEmptyTitleIsATitle) {
  EXPECT_EQ(Imported({{"b.txt", "<title></title>body\r\n"}}),
            "\r\n 1 ,<title></title><text> body<p> </text><link></link>\r\n");
}

TEST_F(ImportFilesTest, OnlyVisibleTextFilesAreListedAndImportedInAlphabeticalOrder) {
  for (const char* note : {"z2.txt", "B.TXT", "a.txt", "z10.txt", "C.Txt", ".hidden.txt", "d.doc", "etxt"})
    Folder.Write(std::string("Notes/") + note, note);
  std::filesystem::create_directory(Folder.Path() / "Notes" / "folder.txt");
  PlayImport([](QWidget& dialog) {
    OpenFolder(dialog, "Notes");
    EXPECT_EQ(Rows(dialog, "File1"), (QStringList{"a.txt", "B.TXT", "C.Txt", "z10.txt", "z2.txt"}));
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Folder.Read("Notes.dat"),
            "\r\n"
            " 1 ,<text> a.txt<p> </text><link></link>\r\n"
            " 2 ,<text> B.TXT<p> </text><link></link>\r\n"
            " 3 ,<text> C.Txt<p> </text><link></link>\r\n"
            " 4 ,<text> z10.txt<p> </text><link></link>\r\n"
            " 5 ,<text> z2.txt<p> </text><link></link>\r\n");
  EXPECT_EQ(Seen(Messages.Shown), Texts{ImportFinished("5")});
}

TEST_F(ImportFilesTest, ALinkFindsItsNoteByTheExactName) {
  Folder.Write(std::filesystem::path(u8"Notes/\u00e9.txt"), "");
  EXPECT_EQ(Imported({{"a.txt", "<a href=\"B.TXT\">x</a><a href=\"b.txt\">y</a><a href=\"\xe9.txt\">z</a>"},
                      {"B.TXT", ""}}),
            "\r\n 1 ,<text> xyz<p> </text><link>" + LinkTo("002") + LinkTo("001") + LinkTo("003") +
                "</link>\r\n 2 ,<text>  </text><link></link>\r\n 3 ,<text>  </text><link></link>\r\n");
}

TEST_F(ImportFilesTest, NotesOfOtherProgramsKeepTheirTextAndLines) {
  using namespace std::string_literals;
  EXPECT_EQ(Imported({{"a.txt", "one\ntwo\n"},
                      {"b.txt", "one\rtwo"},
                      {"c.txt", ""},
                      {"d.txt", "caf\xe9 \x80\x93, \"5 < 6\" & more\n\n"},
                      {"e.txt", "a\0b"s},
                      {"f.txt", "\r\n"}}),
            "\r\n"
            " 1 ,<text> one<p>two<p> </text><link></link>\r\n"
            " 2 ,<text> one<p>two<p> </text><link></link>\r\n"
            " 3 ,<text>  </text><link></link>\r\n"
            " 4 ,<text> caf\xe9 \x80\x93, \"5 < 6\" & more<p><p> </text><link></link>\r\n"
            " 5 ,<text> a\0b<p> </text><link></link>\r\n"
            " 6 ,<text> <p> </text><link></link>\r\n"s);
  EXPECT_EQ(Body().Bytes(), " one\r\ntwo\r\n ");
}

TEST_F(ImportFilesTest, AVeryLargeNoteIsImportedWhole) {
  constexpr int kLines = 10 * 1024 * 1024 / 64;
  const std::string line(63, 'x');
  std::string note;
  std::string text;
  for (int i = 0; i < kLines; ++i) {
    note += line + "\n";
    text += line + "<p>";
  }
  EXPECT_TRUE(Imported({{"a.txt", note}, {"b.txt", "small"}}) ==
              "\r\n 1 ,<text> " + text +
                  " </text><link></link>\r\n 2 ,<text> small<p> </text><link></link>\r\n");
  EXPECT_EQ(Seen(Messages.Shown), Texts{ImportFinished("2")});
}

/// What a page of the full-size document is after publishing and importing: its music and its links are page
/// links, and music links are numbered in the order in which the notes name them, from page 1 on.
std::string FullSizePageImported(const PageFields& page, int number) {
  constexpr int kMusicLinks = 99;
  std::string text = " \r\n\r\n" + page.MusicText + "\r\n" + page.Body + "\r\n";
  std::string links = LinkTo("M" + std::to_string((number - 1) % kMusicLinks + 1));
  for (const Link& link : page.Links) {
    if (link.Text.empty()) break;
    text += link.Text + "\r\n";
    links += LinkTo(link.Target);
  }
  return "<title>" + std::string(number == 1 ? "-" : "") + page.Title + "</title><text>" + text +
         " </text><link>" + links + "</link>";
}

TEST_F(ImportFilesTest, TheNotesOfAFullSizeDocumentComeBack) {
  Global full;
  MakeFullSizeDocument(full);
  OpenDocument("Full.dat", DocumentText(full));
  Publish({"Check2"});
  ImportFolder("Full");
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kImportQuestion, ImportFinished("999")}));
  for (int page = 1; page <= kLastPage; ++page)
    ASSERT_EQ(State.Page(page), FullSizePageImported(ReadPage(full.Page(page)), page)) << page;
  EXPECT_EQ(State.MusicLink(1), "<song>Song 2</song><artist>Artist 2</artist>");
  EXPECT_EQ(State.MusicLink(99), "<song>Song 1</song><artist>Artist 1</artist>");
  EXPECT_TRUE(State.MusicLink(100).empty());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ImportFilesTest, AThousandthNoteIsReadButNotWritten) {
  for (int note = 1; note <= 1000; ++note) Folder.Write("Notes/" + NumberedName(note), "");
  ImportFolder("Notes");
  EXPECT_EQ(Seen(Messages.Shown), Texts{ImportFinished("999")});
  EXPECT_TRUE(Folder.Read("Notes.dat").ends_with("\r\n 999 ,<text>  </text><link></link>\r\n"));
  EXPECT_EQ(State.Page(1000), "<text>  </text><link></link>");
}

/// Imports that end the program.
class FailingImportTest : public ImportTest {
 protected:
  static constexpr const char* kOldFile = "\r\n 1 ,<text>old</text>\r\n";

  void SetUp() override { Folder.Write("Notes.dat", kOldFile); }

  /// Imports the folder "Notes" after `harm` has been done to it behind the dialog's back.
  void ExpectFailure(const std::function<void()>& harm = [] {}) {
    PlayImport([&](QWidget& dialog) {
      OpenFolder(dialog, "Notes");
      harm();
      const auto files = Folder.Files();
      Click(dialog, "Command2");
      EXPECT_EQ(Program.Failures.size(), 1U);
      EXPECT_TRUE(Messages.Shown.empty());
      EXPECT_EQ(Folder.Files(), files);
      EXPECT_EQ(Folder.Read("Notes.dat"), kOldFile);
      EXPECT_EQ(QApplication::overrideCursor(), nullptr);
      // The program has ended here: what waits for the dialog does not go on.
      State.DocPath.clear();
      dialog.close();
    });
  }
};

class DamagedNoteTest : public FailingImportTest, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedNoteTest, EndsTheProgramAndLeavesTheDocumentsFile) {
  Folder.Write("Notes/a.txt", "good");
  Folder.Write("Notes/b.txt", GetParam());
  ExpectFailure();
  EXPECT_NE(Program.Failures.at(0).find("b.txt"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Anchors, DamagedNoteTest,
                         testing::Values("<a href=\"a.txt>x</a>", "<a href=\"a.txt\">x", "<a href=\"a.txt\"",
                                         "<a href=", "</a><a href=\"a.txt\">x",
                                         "<a href=\"a.txt\">x</a><a href=\"a.txt\">y"));

TEST_F(FailingImportTest, ANoteThatVanishesEndsTheProgram) {
  Folder.Write("Notes/a.txt", "good");
  Folder.Write("Notes/b.txt", "good");
  ExpectFailure([this] { std::filesystem::remove(Folder.Path() / "Notes" / "b.txt"); });
}

TEST_F(FailingImportTest, ANoteThatCannotBeReadEndsTheProgram) {
  Folder.Write("Notes/b.txt", "good");
  ExpectFailure([this] {
    std::filesystem::remove(Folder.Path() / "Notes" / "b.txt");
    std::filesystem::create_directory(Folder.Path() / "Notes" / "b.txt");
  });
}

TEST_F(FailingImportTest, MoreThanAThousandNotesEndTheProgram) {
  for (int note = 1; note <= 1001; ++note) Folder.Write("Notes/" + NumberedName(note), "");
  ExpectFailure();
}

TEST_F(FailingImportTest, MoreThanAHundredPiecesOfMusicEndTheProgram) {
  std::string note;
  for (int song = 1; song <= 101; ++song)
    note += "<a href=\"ipod:music?song=" + std::to_string(song) + "\">x</a>\r\n";
  Folder.Write("Notes/a.txt", note);
  ExpectFailure();
}

}  // namespace
}  // namespace tavrel::test
