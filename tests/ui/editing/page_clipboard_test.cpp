#include "ui/editing/page_commands_test.h"

namespace tavrel::test {
namespace {

using PageClipboardTest = PageCommandsTest;

TEST_F(PageClipboardTest, PasteReplacesThePageAndDropsWhatWasTyped) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditCopyPage");
  Show(2);
  TypeInto(Body(), "edited");
  Choose("EditPastePage");
  ExpectShown(2, "A", "one");
  ExpectYellowRow(2, "A");
  EXPECT_EQ(State.Pages[2], kTrioPage1);
  EXPECT_EQ(State.PageClipboard, kTrioPage1);
  Show(3);
  Choose("EditPastePage");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>A</title><text>one</text>\r\n"
            " 2 ,<title>A</title><text>one</text>\r\n"
            " 3 ,<title>A</title><text>one</text>\r\n");
}

TEST_F(PageClipboardTest, CopyStoresWhatWasTypedFirst) {
  OpenDocument("Trio.dat", kTrio);
  Show(2);
  TypeInto(Title(), "B2");
  Choose("EditCopyPage");
  ExpectYellowRow(2, "B2");
  Show(3);
  Choose("EditPastePage");
  EXPECT_EQ(State.Pages[2], "<title>B2</title><text>two</text>");
  EXPECT_EQ(State.Pages[3], "<title>B2</title><text>two</text>");
}

TEST_F(PageClipboardTest, CutAndMovingDownStoreWhatWasTypedFirst) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Note(), "n");
  Choose("EditPageDown");
  EXPECT_EQ(State.PageClipboard, "<title>A</title><note>n</note><text>one</text>");
  TypeInto(Body(), "edited");
  Choose("EditDelete");
  EXPECT_EQ(State.PageClipboard, "<title>A</title><note>n</note><text>edited</text>");
  EXPECT_EQ(Save(), "\r\n 1 ,<title>B</title><text>two</text>\r\n 2 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(PageClipboardTest, PasteLeavesTheFocusWhereItIs) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditCopyPage");
  Show(2);
  TypeInto(Title(), "edited");
  Choose("EditPastePage");
  EXPECT_TRUE(Title().hasFocus());
  EXPECT_EQ(Title().Bytes(), "A");
  PressKey(Title(), Qt::Key_Tab);
  ExpectYellowRow(2, "A");
  EXPECT_EQ(State.Pages[2], kTrioPage1);
}

TEST_F(PageClipboardTest, PastingAnEmptyClipboardClearsThePage) {
  OpenDocument("Trio.dat", kTrio);
  Show(2);
  Choose("EditPastePage");
  EXPECT_EQ(State.Pages[2], "");
  ExpectShown(2, "", "");
  ExpectWhiteRow(2);
  EXPECT_EQ(Save(), "\r\n 1 ,<title>A</title><text>one</text>\r\n 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(PageClipboardTest, ClearEmptiesThePageAndKeepsLinksAndClipboard) {
  OpenDocument("Guide.dat", kGuide);
  Choose("EditCopyPage");
  Show(2);
  TypeInto(Body(), "edited");
  Choose("EditClear");
  EXPECT_EQ(State.Pages[2], "");
  ExpectShown(2, "", "");
  ExpectBlankFields();
  ExpectWhiteRow(2);
  EXPECT_EQ(State.Pages[1], kGuidePage1);
  EXPECT_EQ(State.PageClipboard, kGuidePage1);
  Show(1);
  EXPECT_EQ(State.Pages[2], "");
}

TEST_F(PageClipboardTest, AnEmptyPageIsCutAndCopiedLikeAnyOther) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditCopyPage");
  Show(9);
  Choose("EditCopyPage");
  EXPECT_EQ(State.PageClipboard, "");
  Show(3);
  Choose("EditCopyPage");
  Show(4);
  Choose("EditDelete");
  EXPECT_EQ(State.PageClipboard, "");
  EXPECT_EQ(Save(), kTrio);
}

TEST_F(PageClipboardTest, LinksOfAPastedPageKeepTheirNumbers) {
  OpenDocument("Guide.dat", kGuide);
  Choose("EditDelete");
  Show(3);
  Choose("EditPastePage");
  EXPECT_EQ(State.Pages[3], kGuidePage1);
  EXPECT_EQ(LinkTarget().Bytes(), "002");
}

TEST_F(PageClipboardTest, ThePageMovedLastIsThereToPaste) {
  OpenDocument("Trio.dat", kTrio);
  Choose("EditCopyPage");
  Show(3);
  Choose("EditPageUp");
  Show(1);
  Choose("EditPastePage");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>C</title><text>three</text>\r\n"
            " 2 ,<title>C</title><text>three</text>\r\n"
            " 3 ,<title>B</title><text>two</text>\r\n");
}

TEST_F(PageClipboardTest, OutlivesTheDocument) {
  OpenDocument("Guide.dat", kGuide);
  Choose("EditCopyPage");
  Choose("FileClose");
  EXPECT_FALSE(State.IsDocumentOpen());
  OpenDocument("Trio.dat", kTrio);
  Show(2);
  Choose("EditPastePage");
  ExpectShown(2, "One", "Alpha");
  EXPECT_EQ(Save(), "\r\n 1 ,<title>A</title><text>one</text>\r\n 2 ," + kGuidePage1 +
                        "\r\n 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(PageClipboardTest, CommandsAskNothing) {
  OpenDocument("Trio.dat", kTrio);
  const std::size_t messages = Messages.Shown.size();
  for (const char* command : {"EditCopyPage", "EditPageDown", "EditPageUp", "EditInsert", "EditDelete",
                              "EditPastePage", "EditClear", "EditPageDeleteIt"})
    Choose(command);
  EXPECT_EQ(Messages.Shown.size(), messages);
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(PageClipboardTest, ATitleInTheMiddleOfTypingGoesWithItsPage) {
  OpenDocument("Trio.dat", kTrio);
  Show(2);
  TypeInto(Title(), "B2");
  Choose("EditPageUp");
  ExpectShown(1, "B2", "two");
  ExpectYellowRow(1, "B2");
  ExpectYellowRow(2, "A");
  TypeInto(Note(), "n");
  Choose("EditInsert");
  ExpectShown(1, "", "");
  ExpectWhiteRow(1);
  EXPECT_EQ(Save(),
            "\r\n"
            " 2 ,<title>B2</title><note>n</note><text>two</text>\r\n"
            " 3 ,<title>A</title><text>one</text>\r\n"
            " 4 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(PageClipboardTest, ATitleInTheMiddleOfTypingDoesNotComeBackAfterClear) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "edited");
  Choose("EditClear");
  EXPECT_TRUE(Title().hasFocus());
  PressKey(Title(), Qt::Key_Tab);
  ExpectWhiteRow(1);
  Show(2);
  EXPECT_EQ(State.Pages[1], "");
}

TEST_F(PageClipboardTest, ALinkInTheMiddleOfTypingComesUpOnNoOtherPage) {
  OpenDocument("Trio.dat", kTrio);
  Show(2);
  TypeInto(LinkText(), "late");
  TypeInto(LinkTarget(), "3");
  Choose("EditPageUp");
  ExpectShown(1, "B", "two");
  EXPECT_TRUE(Body().hasFocus());
  EXPECT_EQ(LinkText().Bytes(), "");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>B</title><text>two</text>\r\n"
            " 2 ,<title>A</title><text>one</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(PageClipboardTest, ALinkInTheMiddleOfTypingIsNotCopiedButStaysOnThePage) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(LinkText(), "late");
  TypeInto(LinkTarget(), "3");
  Choose("EditCopyPage");
  EXPECT_EQ(State.PageClipboard, kTrioPage1);
  Show(2);
  EXPECT_EQ(State.Pages[1], kTrioPage1 + "<link><linktext>late</linktext><linkto>003</linkto></link>");
}

}  // namespace
}  // namespace tavrel::test
