#include <QColor>

#include "ui/editing/edit_dialogs.h"

namespace tavrel::test {
namespace {

const QColor kPaleYellow(0xFF, 0xFF, 0xC0);
const QColor kWhite(0xFF, 0xFF, 0xFF);

/// Block copy and Block clear.
class BlockCommandsTest : public EditDialogsTest {
 protected:
  void ExpectRow(int row, const std::string& title, const QColor& colour) {
    EXPECT_EQ(PagesGrid().TextMatrix(row, 1), title) << row;
    EXPECT_EQ(PagesGrid().CellBackColor(row, 1), colour) << row;
    EXPECT_EQ(PagesGrid().CellBackColor(row, 2), colour) << row;
  }
};

const std::string_view kFive =
    "\r\n"
    " 1 ,<title>a</title>\r\n"
    " 2 ,<title>b</title>\r\n"
    " 3 ,<title>c</title>\r\n"
    " 4 ,<title>d</title>\r\n"
    " 5 ,<title>e</title>\r\n";

TEST_F(BlockCommandsTest, CopiesKeepTheirLinksAndNothingElseChanges) {
  const std::string source =
      " 1 ,<title>first</title><link><linktext>x</linktext><linkto>020</linkto></link>\r\n"
      " 10 ,<title>ten</title>\r\n"
      " 11 ,<title>eleven</title><link><linktext>12</linktext><linkto>012</linkto></link>\r\n"
      " 12 ,<title>twelve</title><note>n</note>\r\n";
  OpenDocument("Doc.dat", "\r\n" + source + " 21 ,<title>overwritten</title>\r\n");
  State.PageClipboard = "kept";
  RunBlock("BlockCopy", {"10", "12", "20"});
  EXPECT_EQ(State.PageClipboard, "kept");
  ExpectCurrentPage(1);
  ExpectRow(19, "", kWhite);
  ExpectRow(20, "ten", kPaleYellow);
  ExpectRow(21, "eleven", kPaleYellow);
  ExpectRow(22, "twelve", kPaleYellow);
  ExpectRow(23, "", kWhite);
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "010", "011", "012", "020", "021", "022"}));
  EXPECT_EQ(Save(),
            "\r\n" + source +
                " 20 ,<title>ten</title>\r\n"
                " 21 ,<title>eleven</title><link><linktext>12</linktext><linkto>012</linkto></link>\r\n"
                " 22 ,<title>twelve</title><note>n</note>\r\n");
}

TEST_F(BlockCommandsTest, CopiesBeyondTheLastPageOverwriteIt) {
  OpenDocument("Doc.dat", kFive);
  RunBlock("BlockCopy", {"1", "5", "997"});
  EXPECT_EQ(State.Page(997), "<title>a</title>");
  EXPECT_EQ(State.Page(998), "<title>b</title>");
  EXPECT_EQ(State.Page(999), "<title>e</title>");
  ExpectRow(999, "e", kPaleYellow);
  RunBlock("BlockCopy", {"3", "1", "999"});
  ExpectRow(999, "c", kPaleYellow);
  RunBlock("BlockCopy", {"5", "6", "999"});
  EXPECT_EQ(State.Page(999), "");
  ExpectRow(999, "", kWhite);
}

TEST_F(BlockCommandsTest, CopiesDownOverTheirOwnSourceAreWhole) {
  OpenDocument("Doc.dat", kFive);
  RunBlock("BlockCopy", {"5", "2", "1"});
  const Texts titles = {"b", "c", "d", "e", "e"};
  for (int page = 1; page <= 5; ++page)
    ExpectRow(page, titles[static_cast<std::size_t>(page) - 1], kPaleYellow);
  EXPECT_EQ(Title().Bytes(), "b") << "page 1 is shown";
}

TEST_F(BlockCommandsTest, ATargetInsideTheSourceChangesNothing) {
  OpenDocument("Doc.dat", kFive);
  const auto pages = State.Pages;
  Play("EditBlockCopy", "BlockCopy", [&](QWidget& dialog) {
    TypeNumbers(dialog, {"2", "4", "3"});
    Click(dialog, "Command2");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(State.Pages == pages);
    TypeInto(dialog, "Text3", "6");
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(State.Page(8), "<title>d</title>");
}

TEST_F(BlockCommandsTest, EmptyPagesAreCopiedToo) {
  OpenDocument("Guide.dat", kGuide);
  RunBlock("BlockCopy", {"3", "4", "1"});
  EXPECT_EQ(State.Page(1), "");
  EXPECT_EQ(State.Page(2), "");
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(LinksGrid().TextMatrix(1, 0), "");
  EXPECT_EQ(LinkTarget().Bytes(), "");
}

TEST_F(BlockCommandsTest, ClearedPagesGoAndLinksIntoThemStay) {
  OpenDocument("Doc.dat",
               "\r\n 9 ,<title>9</title><link><linktext>x</linktext><linkto>010</linkto></link>\r\n"
               " 10 ,<title>10</title>\r\n 11 ,<title>11</title>\r\n 12 ,<title>12</title>\r\n"
               " 13 ,<title>13</title>\r\n");
  State.PageClipboard = "kept";
  RunBlock("BlockClear", {"12", "10"});
  EXPECT_EQ(State.PageClipboard, "kept");
  ExpectCurrentPage(1);
  ExpectRow(9, "9", kPaleYellow);
  for (const int page : {10, 11, 12}) ExpectRow(page, "", kWhite);
  ExpectRow(13, "13", kPaleYellow);
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"009", "013"}));
  EXPECT_EQ(Save(),
            "\r\n 9 ,<title>9</title><link><linktext>x</linktext><linkto>010</linkto></link>\r\n"
            " 13 ,<title>13</title>\r\n");
}

TEST_F(BlockCommandsTest, TheShownPageIsClearedOnScreen) {
  OpenDocument("Songs.dat", kSongs);
  TypeInto(Note(), "typed");
  RunBlock("BlockClear", {"1", "1"});
  EXPECT_EQ(State.Page(1), "");
  for (LineField* field : {&Title(), &Note(), &LinkText(), &MusicText()}) EXPECT_EQ(field->Bytes(), "");
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(MusicLink().Bytes(), "");
  ExpectRow(1, "", kWhite);
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Page(1), "");
}

TEST_F(BlockCommandsTest, AllPagesCanBeCleared) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 5);
  RunBlock("BlockClear", {"999", "1"});
  ExpectCurrentPage(5);
  EXPECT_EQ(Save(), "\r\n");
}

TEST_F(BlockCommandsTest, UnsavedEditsAreStoredBeforeTheDialogComes) {
  for (const char* name : {"BlockCopy", "BlockClear"}) {
    OpenDocument("Trio.dat", kTrio);
    TypeInto(Title(), " new ");
    TypeInto(Note(), " n ");
    Play(QString("Edit") + name, name, [this](QWidget& dialog) {
      EXPECT_EQ(State.Page(1), "<title>new</title><note>n</note><text>one</text>");
      Click(dialog, "Command1");
    });
  }
}

TEST_F(BlockCommandsTest, ThePageIsShownAgainEvenAfterCancel) {
  for (const char* name : {"BlockCopy", "BlockClear"}) {
    for (const Dismissal way : kDismissals) {
      OpenDocument("Trio.dat", kTrio);
      TypeInto(Title(), " new ");
      Play(QString("Edit") + name, name, [way](QWidget& dialog) { Dismiss(dialog, way, "Command1"); });
      EXPECT_EQ(State.Page(1), "<title>new</title><text>one</text>");
      EXPECT_EQ(Title().Bytes(), "new");
      ExpectRow(1, "new", kPaleYellow);
      ExpectRow(2, "B", kPaleYellow);
      ExpectCurrentPage(1);
    }
  }
}

TEST_F(BlockCommandsTest, ACopyTakesTheShownPagesUnsavedEdit) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 2);
  TypeInto(Title(), "edited");
  RunBlock("BlockCopy", {"002", "002", "050"});
  EXPECT_EQ(State.Page(50), "<title>edited</title><text>two</text>");
  ExpectRow(50, "edited", kPaleYellow);
  ExpectCurrentPage(2);
}

TEST_F(BlockCommandsTest, TheMenuNamesThem) {
  const std::vector<std::pair<const char*, const char*>> captions = {{"EditBlockCopy", "Block copy"},
                                                                     {"EditBlockClear", "Block clear"},
                                                                     {"EditBlockDelete", "Block Delete"},
                                                                     {"EditBlockInsert", "Block insert"}};
  for (const auto& [item, caption] : captions) EXPECT_EQ(Find<QAction>(Window(), item).text(), caption);
}

}  // namespace
}  // namespace tavrel::test
