#include "ui/ipod/publish_test.h"

namespace tavrel::test {
namespace {

class NotesTest : public PublishTest {
 protected:
  using Files = std::map<std::string, std::string>;
};

TEST_F(NotesTest, ANewDocumentWithAnInlineLinkIsPublishedWhole) {
  Player.Expect("NewDoc", [](QWidget& dialog) {
    Click(dialog, "Check1");
    Click(dialog, "Check2");
    TypeInto(dialog, "Text1", "Trip");
    Click(dialog, "Command1");
  });
  Choose("FileNew");
  TypeInto(Body(), "See <Contents> now");
  Save();
  Messages.Shown.clear();
  Publish();
  EXPECT_EQ(FilesIn("Trip"), (Files{{"z001.txt", "<title>-Title</title>\r\n" + kMeta + kNow +
                                                     "See <a href=\"z002.txt\">Contents</a> now\r\n"
                                                     "<a href=\"z002.txt\">Contents</a>\r\n"},
                                    {"z002.txt", "<title>Contents</title>\r\n" + kMeta + kNow +
                                                     "Contents page with links to other pages\r\n"
                                                     "<a href=\"z001.txt\">Title page</a>\r\n"}}));
}

TEST_F(NotesTest, BothBoxesAddTheirLinesToEveryNote) {
  OpenDocument("Songs.dat", kSongs);
  Publish({"Check1"});
  EXPECT_EQ(FilesIn("Songs"),
            (Files{{"z001.txt", "<title>-Start</title>\r\n" + kMeta + kNow +
                                    "<a href=\"ipod:music?song=Blue&artist=Kim Low\">Play</a>\r\n"
                                    "See <a href=\"z002.txt\">Part two</a>\r\n"
                                    "<a href=\"z002.txt\">Part two</a>\r\n" +
                                    kMenu},
                   {"z002.txt", "<title>Next</title>\r\n" + kMeta + kNow + "End\r\n" + kMenu}}));
}

TEST_F(NotesTest, APageWithAnInlineLinkGivesSixLines) {
  OpenDocument("Doc.dat",
               "\r\n 1 ,<title>Start</title><text>See <Part two></text><link><linktext>Part two</linktext>"
               "<linkto>002</linkto></link>\r\n");
  Publish({"Check1"});
  EXPECT_EQ(Note(1), "<title>-Start</title>\r\n" + kMeta + kNow +
                         "See <a href=\"z002.txt\">Part two</a>\r\n"
                         "<a href=\"z002.txt\">Part two</a>\r\n" +
                         kMenu);
}

TEST_F(NotesTest, OnlyPagesThatExistGiveFiles) {
  PublishPlain(" 1 ,<text>a</text>\r\n 5 ,<text>b</text>\r\n 12 ,<text>c</text>\r\n");
  const Files files = FilesIn("Doc");
  ASSERT_EQ(files.size(), 3U);
  EXPECT_TRUE(files.contains("z001.txt") && files.contains("z005.txt") && files.contains("z012.txt"));
}

TEST_F(NotesTest, APublishedFolderKeepsTheNotesOfPagesThatAreGone) {
  OpenDocument("Trio.dat", kTrio);
  Publish();
  const std::string old_note = Folder.Read("Trio/z002.txt");
  Folder.Write("Trio/z001.txt", "overwritten");
  Folder.Write("Trio/z003.txt", "overwritten");
  Folder.Write("Trio/other.txt", "other");

  ClickRow(PagesGrid(), 2);
  TypeInto(Title(), "");
  TypeInto(Body(), "");
  Publish();
  EXPECT_EQ(FilesIn("Trio"), (Files{{"z001.txt", "<title>-A</title>\r\n" + kMeta + kNow + "one\r\n"},
                                    {"z002.txt", old_note},
                                    {"z003.txt", "<title>C</title>\r\n" + kMeta + kNow + "three\r\n"},
                                    {"other.txt", "other"}}));
  EXPECT_EQ(old_note, "<title>B</title>\r\n" + kMeta + kNow + "two\r\n");
}

TEST_F(NotesTest, Page1sTitleGetsADashWhateverItIs) {
  PublishPlain(" 1 ,<text>a</text>\r\n 2 ,<text>b</text>\r\n");
  EXPECT_EQ(Note(1), "<title>-</title>\r\n" + kMeta + "a\r\n");
  EXPECT_EQ(Note(2), "<title></title>\r\n" + kMeta + "b\r\n");
  PublishPlain(" 1 ,<title>-Start</title>\r\n");
  EXPECT_EQ(Note(1), "<title>--Start</title>\r\n" + kMeta + "\r\n");
}

TEST_F(NotesTest, TextWithoutAPairOfMarkersStaysAsItIs) {
  PublishPlain(
      " 2 ,<text>a < b</text>\r\n"
      " 3 ,<text>a > b <c></text><link><linktext>x</linktext><linkto>003</linkto></link>\r\n");
  EXPECT_EQ(Note(2), "<title></title>\r\n" + kMeta + "a < b\r\n");
  EXPECT_EQ(Note(3), "<title></title>\r\n" + kMeta + "a > b <c>\r\n<a href=\"z003.txt\">x</a>\r\n");
}

TEST_F(NotesTest, TheFirstLinkWithoutTargetOrTextEndsTheLinks) {
  PublishPlain(
      " 1 ,<text>shown</text>\r\n"
      " 2 "
      ",<text>t</text><link><linktext>a</linktext><linkto>002</linkto><linktext>b</linktext><linkto></linkto>"
      "<linktext>c</linktext><linkto>003</linkto></link>\r\n"
      " 3 ,<text>t</text><link><linktext>a</linktext><linkto>002</linkto><linktext></linktext>"
      "<linkto>003</linkto><linktext>c</linktext><linkto>004</linkto></link>\r\n");
  const std::string note = "<title></title>\r\n" + kMeta + "t\r\n<a href=\"z002.txt\">a</a>\r\n";
  EXPECT_EQ(Note(2), note);
  EXPECT_EQ(Note(3), note);
}

TEST_F(NotesTest, TextOfSeveralLinesKeepsItsLineBreaks) {
  PublishPlain(" 4 ,<title>T</title><text>l1<p>l2<p></text>\r\n");
  EXPECT_EQ(Note(4), "<title>T</title>\r\n" + kMeta + "l1\r\nl2\r\n\r\n");
}

TEST_F(NotesTest, MusicWithoutALinkLeadsToTheNotesMenu) {
  PublishPlain(" 2 ,<music>Hear</music><music></music>\r\n");
  EXPECT_EQ(Note(2), "<title></title>\r\n" + kMeta + "<a href=\"\\\">Hear</a>\r\n\r\n");
}

TEST_F(NotesTest, AMusicLinkGivesItsFieldsAndAnEmptyOneTheNotesMenu) {
  OpenDocument("Doc.dat",
               " 1 ,<song>Blue</song><artist>Kim Low</artist>\r\n\r\n"
               " 2 ,<text>t</text><link><linktext>a</linktext><linkto>M1</linkto><linktext>b</linktext>"
               "<linkto>M2</linkto><linktext>c</linktext><linkto>000</linkto></link>\r\n");
  Publish({"Check2"});
  EXPECT_EQ(Note(2), "<title></title>\r\n" + kMeta +
                         "t\r\n<a href=\"ipod:music?song=Blue&artist=Kim Low\">a</a>\r\n"
                         "<a href=\"\\\">b</a>\r\n<a href=\"\\\">c</a>\r\n");
}

TEST_F(NotesTest, PageLinksNameTheirNotesWhetherTheyExistOrNot) {
  PublishPlain(
      " 2 ,<text>t</text><link><linktext>a</linktext><linkto>077</linkto><linktext>b</linktext>"
      "<linkto>1000</linkto></link>\r\n");
  EXPECT_EQ(Note(2), "<title></title>\r\n" + kMeta +
                         "t\r\n<a href=\"z077.txt\">a</a>\r\n<a href=\"z1000.txt\">b</a>\r\n");
}

}  // namespace
}  // namespace tavrel::test
