#include "core/preview/note.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

// What the device shows of a note's bytes.

namespace tavrel::test {
namespace {

/// A note with its links in the text as [words](address).
std::string Shown(const Note& note) {
  std::string shown;
  std::size_t at = 0;
  for (const NoteLink& link : note.Links) {
    shown += note.Text.substr(at, link.Start - at) + "[" + note.Text.substr(link.Start, link.Length) + "](" +
             link.Address + ")";
    at = link.Start + link.Length;
  }
  return shown + note.Text.substr(at);
}

struct Example {
  const char* Name;
  std::string Bytes;
  std::string Title;
  std::string Text;
};

class NoteShown : public testing::TestWithParam<Example> {};

TEST_P(NoteShown, Is) {
  const Note note = ReadNote(GetParam().Bytes);
  EXPECT_EQ(note.Title, GetParam().Title);
  EXPECT_EQ(Shown(note), GetParam().Text);
  EXPECT_FALSE(note.IsCut);
}

const std::string kHead = "<title>T</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n";

INSTANTIATE_TEST_SUITE_P(
    Notes, NoteShown,
    testing::Values(
        Example{"Nothing", "", "", ""}, Example{"WordsAlone", "one", "", "one"},
        Example{"LinesOfAllSystems", "a\r\nb\nc\rd", "", "a\nb\nc\nd"},
        Example{"EmptyLines", "a\r\n\r\nb\r\n", "", "a\n\nb\n"},
        Example{"ATitle", "<title>One</title>\r\ntext", "One", "text"},
        Example{"ATitleInCapitals", "<TITLE>One</Title>text", "One", "text"},
        Example{"TheFirstOfTwoTitles", "<title>a</title><title>b</title>x", "a", "x"},
        Example{"ATitleWithMarkup", "<title>a <b>c</b></title>x", "a <b>c</b>", "x"},
        Example{"ATitleWithoutAnEnd", "<title>One\r\ntext", "One\r\ntext", ""},
        Example{"AnEmptyTitle", "<title></title>\r\nx", "", "x"},
        Example{"AHead", kHead + "x\r\n", "T", "x\n"},
        Example{"AHeadWithAnEmptyTextBehindIt", kHead + "\r\n", "T", "\n"},
        Example{"MetaInTheMiddle", "a\r\n<meta name=\"NowPlaying\" content=\"false\">\r\nb", "", "a\nb"},
        Example{"MetaBehindWords", "a<meta x>\r\nb", "", "a\nb"},
        Example{"MetaBeforeWords", "<meta x>a\r\nb", "", "a\nb"},
        Example{"LineBreaks", "a<br>b<BR>c<p>d</p>e", "", "a\nb\nc\nde"},
        Example{"ALineBreakWithASlash", "a<br />b", "", "a\nb"},
        Example{"UnknownTags", "a<b>c</b><font size=2>d</font>", "", "acd"},
        Example{"ABracketWithoutAnEnd", "5 < 6", "", "5 < 6"},
        Example{"AClosingBracketAlone", "6 > 5", "", "6 > 5"},
        Example{"ALink", "<a href=\"z002.txt\">two</a>", "", "[two](z002.txt)"},
        Example{"ALinkInCapitals", "<A HREF=\"z002.txt\">two</A>", "", "[two](z002.txt)"},
        Example{"ALinkWithoutQuotes", "<a href=z002.txt>two</a>", "", "[two](z002.txt)"},
        Example{"WordsAroundALink", "See <a href=\"z002.txt\">two</a>.", "", "See [two](z002.txt)."},
        Example{"AMusicLink", "<a href=\"ipod:music?song=A&artist=B\">play</a>", "",
                "[play](ipod:music?song=A&artist=B)"},
        Example{"TheNotesMenu", "<a href=\"\\\">Notes menu</a>", "", "[Notes menu](\\)"},
        Example{"LinksInARow", "<a href=\"a\">1</a>\r\n<a href=\"b\">2</a>\r\n", "", "[1](a)\n[2](b)\n"},
        Example{"ALinkInALink", "<a href=\"a\">1<a href=\"b\">2</a>3</a>", "", "[1](a)[2](b)3"},
        Example{"ALinkWithoutAnEnd", "<a href=\"a\">1 and on", "", "[1 and on](a)"},
        Example{"AnEndWithoutALink", "1</a>2", "", "12"},
        Example{"ALinkWithoutWords", "<a href=\"a\"></a>x", "", "x"},
        Example{"ALinkWithAnotherTagInIt", "<a href=\"a\"><b>1</b></a>", "", "[1](a)"},
        Example{"ALinkOverALineBreak", "<a href=\"a\">1<br>2</a>", "", "[1\n2](a)"},
        Example{"AnAnchorWithoutAnAddress", "<a name=\"x\">1</a>", "", "[1]()"},
        Example{"AnAddressWithoutAClosingQuote", "<a href=\"a>1</a>", "", "[1](a>)"}),
    [](const auto& example) { return example.param.Name; });

TEST(ReadNote, CutsBehindTheFirst4096Bytes) {
  const Note whole = ReadNote(std::string(4096, 'x'));
  EXPECT_EQ(whole.Text.size(), 4096U);
  EXPECT_FALSE(whole.IsCut);
  const Note cut = ReadNote(std::string(4097, 'x'));
  EXPECT_EQ(cut.Text.size(), 4096U);
  EXPECT_TRUE(cut.IsCut);
}

TEST(ReadNote, CountsMarkupTowardsTheCut) {
  const Note note = ReadNote("<title>T</title>\r\n" + std::string(4096, 'x'));
  EXPECT_EQ(note.Text.size(), 4096U - 18U);
  EXPECT_TRUE(note.IsCut);
}

TEST(ReadNote, ShowsAMarkThatTheCutGoesThroughAsItStands) {
  const Note note = ReadNote(std::string(4092, 'x') + "<a href=\"z002.txt\">two</a>");
  EXPECT_EQ(note.Text, std::string(4092, 'x') + "<a h");
  EXPECT_TRUE(note.Links.empty());
}

}  // namespace
}  // namespace tavrel::test
