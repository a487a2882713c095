#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/ipod/note_reader.h"
#include "core/text/run_time_error.h"
#include "support/temporary_folder.h"

// The line that a note's error is told with: that of the file as it stands, whatever was taken out of the
// text before its links were looked for.

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// The line at which a note cannot be imported; -1 if it can be.
int FaultyLine(const std::string& note) {
  Global global;
  NoteReader reader(global, {}, CodePage::Windows1252());
  try {
    reader.ProcessInput(note, 1);
    return -1;
  } catch (const RunTimeError&) {
    return reader.Line();
  }
}

TEST(NoteErrorLine, IsThatOfTheAnchor) {
  EXPECT_EQ(FaultyLine("<a href=\"a.txt>x"), 1);
  EXPECT_EQ(FaultyLine("one\r\ntwo\r\n\r\nx <a href=\"a.txt\">no\r\nend"), 4);
  EXPECT_EQ(FaultyLine("\r\n<a href=\"a.txt\">x</a>\r\n<a href=\"a.txt\">y\r\n</a>\r\n<a href=\"a.txt"), 5);
}

TEST(NoteErrorLine, CountsTheLinesOfATitleAndOfAMetaElement) {
  EXPECT_EQ(FaultyLine("<title>A\r\nB</title>\r\n<a href=\""), 3);
  EXPECT_EQ(FaultyLine("<meta a\r\nb>\r\nx\r\n<a href=\""), 4);
  EXPECT_EQ(FaultyLine("x\r\n<title>\r\n</title><meta \r\n\r\n>\r\n<a href=\""), 6);
}

TEST(NoteErrorLine, CountsNoLinesBehindTheAnchor) {
  EXPECT_EQ(FaultyLine("\r\n<a href=\"a.txt\">x\r\n<title>A\r\nB</title>\r\n<meta \r\n>\r\n"), 2);
}

TEST(NoteErrorLine, CountsNoLinesThatMarkupMakes) {
  EXPECT_EQ(FaultyLine("a<br>b<p>c\r\n</p><body><br><br>\r\nd<p><a href=\""), 3);
  EXPECT_EQ(FaultyLine("<br><br><br><br><br><br><a href=\"a\">\r\n\r\n"), 1);
  EXPECT_EQ(FaultyLine("<b</p>r>\r\n<<br>p>\r\n<br><a href=\"a.txt\">x"), 3);
}

TEST(NoteErrorLine, OfNestedAnchorsIsThatOfTheInnermostWithoutAnEnd) {
  EXPECT_EQ(FaultyLine("<a href=\"a\">\r\n<a href=\"b\">\r\n</a>"), 2);
  EXPECT_EQ(FaultyLine("<a href=\"a\">\r\n<a href=\"b\">\r\n<a href=\"c\">\r\n</a></a>\r\n"), 3);
  EXPECT_EQ(FaultyLine("<a href=\"a\">\r\nx\r\n<a href=\"b</a>"), 3);
  EXPECT_EQ(FaultyLine("<a href=\"a\">\r\n<a href=\"b\">x</a>\r\ny</a>\r\n<a href=\"c"), 4);
}

TEST(NoteErrorLine, IsKnownWhereCuttingMakesAnEnd) {
  const std::string nested = "<a href=\"a\"><a href=\"b\"><a href=\"c\">y<</a>/a>\r\n\r\n";
  EXPECT_EQ(FaultyLine(nested + "<a href=\"d\">z</a></a>\r\n<a href=\"e"), 4);
  EXPECT_EQ(FaultyLine(nested + "<a href=d>z</a>"), 3);
}

TEST(NoteErrorLine, IsThatWhereAnOpeningEndsThatCuttingMakes) {
  EXPECT_EQ(FaultyLine("<a href<a href=\"\r\n\"></a>=\"b"), 2);
  EXPECT_EQ(FaultyLine("<a href=\"a\"><a href=\"b\"]<a href<a href=<</a>/a>\"\r\n\r\n\"]=d</a>"), 3);
}

TEST(NoteErrorLine, IsThatOfTheMusicThatIsTooMuch) {
  Global global;
  global.MusicLinks.fill("taken");
  NoteReader reader(global, {}, CodePage::Windows1252());
  EXPECT_THROW(reader.ProcessInput("x\r\n<a href=\"song=1\">y</a>\r\n", 1), RunTimeError);
  EXPECT_EQ(reader.Line(), 2);
  EXPECT_THROW(reader.ProcessInput("x", 1001), RunTimeError);
  EXPECT_EQ(reader.Line(), 0);
}

TEST(NoteErrorLine, IsFoundBehindAnythingSound) {
  const std::vector<std::string> pieces = {"x",
                                           "\r\n",
                                           "<br>",
                                           "<p>",
                                           "</p>",
                                           "<body>",
                                           "<",
                                           ">",
                                           "</a>",
                                           "<title>A\r\nB</title>",
                                           "<meta a\r\nb>",
                                           "<a href=\"a\">y</a>",
                                           "<a href=\"\r\nb\">\r\ny</a>",
                                           "<a href=\"a\">\r\n<a href=\"b\">z</a>\r\n</a>"};
  std::mt19937 random(20'261'122);
  for (int round = 0; round < 500; ++round) {
    std::string note;
    int line = 1;
    for (int i = 0; i < 12; ++i) {
      const std::string& piece = pieces[random() % pieces.size()];
      for (const char c : piece) line += c == '\n' ? 1 : 0;
      note += piece;
    }
    EXPECT_EQ(FaultyLine(note + "<a href=\"end"), line) << note;
  }
}

TEST(NoteErrorOfAnImport, NamesTheNoteTheLineAndTheFault) {
  const TemporaryFolder folder;
  folder.Write("a.txt", "sound");
  folder.Write("b.txt", "one\ntwo\rthree\r\n<a href=\"a.txt>x");
  Global global;
  try {
    ImportNotes(global, folder.Path(), {"a.txt", "b.txt"}, CodePage::Windows1252(), [](int) {});
    FAIL() << "the note was imported";
  } catch (const NoteError& error) {
    const std::string fault =
        "The target of a link has no closing quote.\nCorrect it in a text editor and import again.";
    EXPECT_EQ(error.Note, folder.Path() / "b.txt");
    EXPECT_EQ(error.Line, 4);
    EXPECT_EQ(error.Fault, fault);
    EXPECT_EQ(error.what(), PathText(folder.Path() / "b.txt") + "\ncould not be imported: " + fault);
  }
}

}  // namespace
}  // namespace tavrel::test
