#include "core/ipod/note_reader.h"

#include <gtest/gtest.h>
#include <string>

#include "core/ipod/imported_note.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

TEST(NoteReader, KeepsATextBetweenTwoBlanks) {
  EXPECT_EQ(RecordOf("Hello\r\n"), "<text> Hello\r\n </text><link></link>");
  EXPECT_EQ(RecordOf(""), "<text>  </text><link></link>");
  EXPECT_EQ(RecordOf("\r\n"), "<text> \r\n </text><link></link>");
}

TEST(NoteReader, ReadsAPublishedNote) {
  EXPECT_EQ(RecordOf("<title>B</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\ntwo\r\n"),
            "<title>B</title><text> \r\n\r\ntwo\r\n </text><link></link>");
}

TEST(NoteReader, TakesTheTitleOutOfTheText) {
  EXPECT_EQ(RecordOf("a<title>T</title>b"), "<title>T</title>" + TextAndLinks("ab"));
  EXPECT_EQ(RecordOf("<title></title>body\r\n"), "<title></title>" + TextAndLinks("body\r\n"));
  EXPECT_EQ(RecordOf("<title>T\r\nU</title>"), "<title>T\r\nU</title>" + TextAndLinks(""));
}

TEST(NoteReader, MakesNoTitleOfHalfAnElement) {
  EXPECT_EQ(RecordOf("<title>T"), TextAndLinks("<title>T"));
  EXPECT_EQ(RecordOf("T</title>"), TextAndLinks("T</title>"));
  EXPECT_EQ(RecordOf("</title>T<title>"), TextAndLinks("</title>T<title>"));
  EXPECT_EQ(RecordOf("</title><title>T</title>"), TextAndLinks("</title><title>T</title>"));
}

TEST(NoteReader, TakesTheFirstTitleOnly) {
  EXPECT_EQ(RecordOf("<title>A</title><title>B</title>"),
            "<title>A</title>" + TextAndLinks("<title>B</title>"));
  EXPECT_EQ(RecordOf("<title>A<title>B</title>C</title>"),
            "<title>A<title>B</title>" + TextAndLinks("C</title>"));
}

TEST(NoteReader, ConvertsNothingInATitle) {
  EXPECT_EQ(RecordOf("<title>A<p>B<br></p><body><meta x></title>z"),
            "<title>A<p>B<br></p><body><meta x></title>" + TextAndLinks("z"));
  EXPECT_EQ(RecordOf("<title><a href=\"b.txt\">x</title>"),
            "<title><a href=\"b.txt\">x</title>" + TextAndLinks(""));
}

TEST(NoteReader, TakesTheTitleOutFirst) {
  EXPECT_EQ(RecordOf("<b<title>T</title>r>"), "<title>T</title>" + TextAndLinks("\r\n"));
  EXPECT_EQ(RecordOf("<title>T</ti<p>tle>"), TextAndLinks("<title>T</ti\r\ntle>"));
}

TEST(NoteReader, TurnsMarkupIntoLineBreaks) {
  EXPECT_EQ(RecordOf("<body>one<br>two<p>three</p></body>\r\n"), TextAndLinks("one\r\ntwo\r\nthree\r\n"));
  EXPECT_EQ(RecordOf("<br><br><p><p>"), TextAndLinks("\r\n\r\n\r\n\r\n"));
}

TEST(NoteReader, RemovesMarkupInItsOrder) {
  EXPECT_EQ(RecordOf("x<b</p>ody>y"), TextAndLinks("xy"));     // "</p>" goes before "<body>"
  EXPECT_EQ(RecordOf("x</bo<body>dy>y"), TextAndLinks("xy"));  // and "<body>" before "</body>"
  EXPECT_EQ(RecordOf("x<bo</body>dy>y"), TextAndLinks("x<body>y"));
  EXPECT_EQ(RecordOf("x</<body>p>y"), TextAndLinks("x</p>y"));
}

TEST(NoteReader, BreaksLinesBeforeItRemovesMarkup) {
  EXPECT_EQ(RecordOf("<</p>br>"), TextAndLinks("<br>"));
  EXPECT_EQ(RecordOf("<</p>p>"), TextAndLinks("<p>"));
  EXPECT_EQ(RecordOf("<b<p>r>"), TextAndLinks("<b\r\nr>"));
  EXPECT_EQ(RecordOf("<<br>p>"), TextAndLinks("<\r\np>"));
}

TEST(NoteReader, LooksAtEveryPieceOfMarkupOnce) {
  EXPECT_EQ(RecordOf("<</p>/p>"), TextAndLinks("</p>"));
  EXPECT_EQ(RecordOf("<bo<body>dy>"), TextAndLinks("<body>"));
}

TEST(NoteReader, LeavesOtherMarkupInTheText) {
  const std::string note =
      "<BR><P></P><BODY></BODY><TITLE>T</TITLE><META x><A HREF=\"b.txt\">x</A><br/><br /><p class=\"c\">"
      "<Br><a  href=\"b.txt\"><a href =\"b.txt\"><b>&amp;";
  EXPECT_EQ(RecordOf(note), TextAndLinks(note));
}

TEST(NoteReader, TakesTheFirstMetaElementOut) {
  EXPECT_EQ(RecordOf("a<meta x>b<meta y>c"), TextAndLinks("ab<meta y>c"));
  EXPECT_EQ(RecordOf("<meta>"), TextAndLinks("<meta>"));
  EXPECT_EQ(RecordOf("<meta >"), TextAndLinks(""));
  EXPECT_EQ(RecordOf("a>b<meta x"), TextAndLinks("a>b<meta x"));
}

TEST(NoteReader, LeavesTheSecondMetaLineOfAPublishedNote) {
  EXPECT_EQ(
      RecordOf("<title>B</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n"
               "<meta name=\"NowPlaying\" content=\"false\">\r\ntwo\r\n"),
      "<title>B</title>" + TextAndLinks("\r\n\r\n<meta name=\"NowPlaying\" content=\"false\">\r\ntwo\r\n"));
}

TEST(NoteReader, TakesTheMetaElementOutBetweenMarkupAndLinks) {
  EXPECT_EQ(RecordOf("<meta a<p>b>c"), TextAndLinks("c"));
  EXPECT_EQ(RecordOf("<me</p>ta a>c"), TextAndLinks("c"));
  EXPECT_EQ(RecordOf("<meta x<body>"), TextAndLinks("<meta x"));
  EXPECT_EQ(RecordOf("<meta <a href=\"b.txt\">x</a>"), TextAndLinks("x</a>"));
  EXPECT_EQ(RecordOf("<a hr<meta x>ef=\"b.txt\">y</a>"), TextAndLinks("y", LinkTo("002")));
  EXPECT_EQ(RecordOf("<b<meta x>r>"), TextAndLinks("<br>"));
}

TEST(NoteReader, KeepsAllOtherBytes) {
  const std::string note = "a\0b\0\x01\x1A\t\xE9\xFF, \"\\"s;
  EXPECT_EQ(RecordOf(note), TextAndLinks(note));
  EXPECT_EQ(RecordOf("\0<br>\0<p>\0<title>\0</title>\0"s),
            "<title>\0</title>"s + TextAndLinks("\0\r\n\0\r\n\0\0"s));
}

TEST(NoteReader, KeepsALargeText) {
  const std::string text(2'000'000, '<');
  EXPECT_EQ(RecordOf(text), TextAndLinks(text));
}

TEST(NoteReader, ReplacesThePage) {
  Global global;
  NoteReader reader(global, {}, CodePage::Windows1252());
  reader.ProcessInput("old", 5);
  reader.ProcessInput("new", 5);
  EXPECT_EQ(global.Page(5), TextAndLinks("new"));
  EXPECT_EQ(global.Page(4) + global.Page(6), "");
}

TEST(NoteReader, FillsEntry1000AndNoneBeyond) {
  Global global;
  NoteReader reader(global, {}, CodePage::Windows1252());
  reader.ProcessInput("last", 1000);
  EXPECT_EQ(global.Page(1000), TextAndLinks("last"));
  EXPECT_THROW(reader.ProcessInput("beyond", 1001), RunTimeError);
}

TEST(NoteReader, GivesThePageNumberOfANote) {
  Global global;
  const NoteReader reader(global, {"a.txt", "b.txt", "B.txt", "\xE9.txt"}, CodePage::Windows1252());
  EXPECT_EQ(reader.ProcessLink("a.txt"), "001");
  EXPECT_EQ(reader.ProcessLink("b.txt"), "002");
  EXPECT_EQ(reader.ProcessLink("B.txt"), "003");
  EXPECT_EQ(reader.ProcessLink("\xE9.txt"), "004");
}

TEST(NoteReader, GivesTheFirstPageForAnythingElse) {
  Global global;
  const NoteReader reader(global, {"a.txt", "b.txt", "\xE9.txt"}, CodePage::Windows1252());
  for (const std::string& other : {"\\"s, ""s, "B.TXT"s, "b"s, "b.tx"s, "b.txt "s, " b.txt"s, "./b.txt"s,
                                   "b.txt\0"s, "\xC9.txt"s, "http://example.org/b.txt"s, "c.txt"s}) {
    EXPECT_EQ(reader.ProcessLink(other), "001") << other;
  }
}

TEST(NoteReader, GivesTheLastOfTwoNotesOfOneName) {
  Global global;
  const NoteReader reader(global, {"a.txt", "b.txt", "a.txt", "c.txt"}, CodePage::Windows1252());
  EXPECT_EQ(reader.ProcessLink("a.txt"), "003");
  EXPECT_EQ(reader.ProcessLink("b.txt"), "002");
}

TEST(NoteReader, WritesPageNumbersWithThreeDigitsOrMore) {
  Global global;
  std::vector<std::string> names;
  for (int i = 1; i <= 1000; ++i) names.push_back("n" + std::to_string(i));
  const NoteReader reader(global, names, CodePage::Windows1252());
  EXPECT_EQ(reader.ProcessLink("n42"), "042");
  EXPECT_EQ(reader.ProcessLink("n999"), "999");
  EXPECT_EQ(reader.ProcessLink("n1000"), "1000");
}

}  // namespace
}  // namespace tavrel::test
