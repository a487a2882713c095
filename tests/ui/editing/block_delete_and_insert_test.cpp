#include <QCheckBox>

#include "ui/editing/edit_dialogs.h"

namespace tavrel::test {
namespace {

std::string LinkTo(const std::string& target) {
  return "<linktext>" + target + "</linktext><linkto>" + target + "</linkto>";
}

/// A page's link block with targets whose texts say where they pointed at first.
std::string Links(const std::vector<std::pair<std::string, std::string>>& links) {
  std::string block = "<link>";
  for (const auto& [text, target] : links)
    block += "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
  return block + "</link>";
}

class BlockDeleteAndInsertTest : public EditDialogsTest {
 protected:
  /// Sets a dialog's numbers and takes the cancel mark away, as the dialog itself would never do for them.
  void ForceBlock(const QString& name, const QStringList& numbers) {
    Play("Edit" + name, name, [&](QWidget& dialog) {
      TypeNumbers(dialog, numbers);
      Find<QCheckBox>(dialog, "Check1").setChecked(false);
      dialog.close();
    });
    EXPECT_TRUE(Messages.Shown.empty());
    EXPECT_TRUE(Program.Failures.empty());
  }
};

TEST_F(BlockDeleteAndInsertTest, DeletedPagesAreClosedUpAndLinksIntoThemPointBefore) {
  OpenDocument("Doc.dat", "\r\n 1 ,<link>" + LinkTo("003") + LinkTo("004") + LinkTo("005") + LinkTo("007") +
                              "</link>\r\n 3 ,<title>c</title>\r\n 5 ,<title>e</title>\r\n"
                              " 7 ,<title>g</title><note>n</note>\r\n");
  RunBlock("BlockDelete", {"3", "5"});
  ExpectCurrentPage(3);
  EXPECT_EQ(State.PageClipboard, "<title>e</title>");
  EXPECT_EQ(PagesGrid().TextMatrix(3, 1), "");
  EXPECT_EQ(PagesGrid().TextMatrix(4, 1), "g");
  EXPECT_EQ(PagesGrid().TextMatrix(7, 1), "");
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "004"}));
  EXPECT_EQ(Save(), "\r\n 1 ," + Links({{"003", "002"}, {"004", "002"}, {"005", "002"}, {"007", "004"}}) +
                        "\r\n 4 ,<title>g</title><note>n</note>\r\n");
}

TEST_F(BlockDeleteAndInsertTest, LinksToDeletedPagesAtTheStartPointNowhere) {
  OpenDocument("Guide.dat", kGuide);
  RunBlock("BlockDelete", {"1", "2"});
  ExpectCurrentPage(1);
  EXPECT_EQ(State.PageClipboard, "<title>Two</title><text>Beta</text>" + Links({{"One", "000"}}));
  EXPECT_EQ(Save(), "\r\n 3 ,<title>Five</title><text>Gamma</text>" + Links({{"Last", "997"}}) +
                        "\r\n 997 ,<title>Last</title><text>Omega</text>\r\n");
}

TEST_F(BlockDeleteAndInsertTest, AStartBehindTheEndDeletesTheSamePages) {
  OpenDocument("Doc.dat",
               "\r\n 2 ,<title>b</title>\r\n 3 ,<title>c</title>\r\n 4 ,<title>d</title>\r\n"
               " 5 ,<title>e</title>" +
                   Links({{"x", "003"}, {"y", "006"}}) + "\r\n 6 ,<title>f</title>" +
                   Links({{"z", "005"}, {"w", "006"}}) + "\r\n");
  ClickRow(PagesGrid(), 2);
  TypeInto(Note(), "typed");
  RunBlock("BlockDelete", {"5", "3"});
  ExpectCurrentPage(3);
  EXPECT_EQ(Title().Bytes(), "f");
  // By its turn page 5 is the third page to go: its links were renumbered at the two cuts before.
  EXPECT_EQ(State.PageClipboard, "<title>e</title>" + Links({{"x", "002"}, {"y", "004"}}));
  EXPECT_EQ(Save(), "\r\n 2 ,<title>b</title><note>typed</note>\r\n 3 ,<title>f</title>" +
                        Links({{"z", "002"}, {"w", "003"}}) + "\r\n");
}

TEST_F(BlockDeleteAndInsertTest, TheLastTwoPagesCanBeDeleted) {
  OpenDocument("Doc.dat", "\r\n 1 ," + Links({{"a", "998"}, {"b", "999"}, {"c", "997"}}) +
                              "\r\n 998 ,<title>P</title>\r\n 999 ,<title>Q</title>\r\n");
  RunBlock("BlockDelete", {"998", "999"});
  ExpectCurrentPage(998);
  EXPECT_EQ(State.PageClipboard, "<title>Q</title>");
  EXPECT_EQ(Save(), "\r\n 1 ," + Links({{"a", "997"}, {"b", "997"}, {"c", "997"}}) + "\r\n");
  EXPECT_EQ(PagesGrid().TextMatrix(998, 1), "");
  EXPECT_EQ(PagesGrid().TextMatrix(999, 1), "");
}

TEST_F(BlockDeleteAndInsertTest, ASinglePageIsCutAsItWas) {
  OpenDocument("Guide.dat", kGuide);
  RunBlock("BlockDelete", {"005", "5"});
  ExpectCurrentPage(5);
  EXPECT_EQ(State.PageClipboard, "<title>Five</title><text>Gamma</text>" + Links({{"Last", "999"}}));
  EXPECT_EQ(State.Page(1),
            "<title>One</title><note>n1</note><text>Alpha</text>" + Links({{"Two", "002"}, {"Five", "004"}}));
}

TEST_F(BlockDeleteAndInsertTest, TheShownPagesUnsavedEditIsPartOfWhatIsCut) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 2);
  TypeInto(Title(), "edited");
  RunBlock("BlockDelete", {"2", "2"});
  EXPECT_EQ(State.PageClipboard, "<title>edited</title><text>two</text>");
  EXPECT_EQ(Title().Bytes(), "C");
  EXPECT_TRUE(Body().hasFocus());
}

TEST_F(BlockDeleteAndInsertTest, InsertedPagesMoveTheOthersAndTheLinksToThem) {
  OpenDocument("Doc.dat", "\r\n 1 ," + Links({{"a", "009"}, {"b", "010"}, {"c", "999"}}) +
                              "\r\n 10 ,<title>ten</title>\r\n");
  State.PageClipboard = "kept";
  RunBlock("BlockInsert", {"10", "3"});
  ExpectCurrentPage(10);
  EXPECT_EQ(State.PageClipboard, "kept");
  EXPECT_EQ(Title().Bytes(), "");
  for (const int row : {10, 11, 12}) EXPECT_EQ(PagesGrid().TextMatrix(row, 1), "");
  EXPECT_EQ(PagesGrid().TextMatrix(13, 1), "ten");
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "013"}));
  EXPECT_EQ(Save(), "\r\n 1 ," + Links({{"a", "009"}, {"b", "013"}, {"c", "1002"}}) +
                        "\r\n 13 ,<title>ten</title>\r\n");
}

TEST_F(BlockDeleteAndInsertTest, PagesPushedBeyondTheEndAreLost) {
  OpenDocument("Doc.dat",
               "\r\n 997 ,<title>N</title>\r\n 998 ,<title>P</title>\r\n 999 ,<title>Q</title>\r\n");
  RunBlock("BlockInsert", {"998", "1"});
  ExpectCurrentPage(998);
  EXPECT_EQ(State.Page(999), "<title>P</title>");
  RunBlock("BlockInsert", {"998", "50"});
  EXPECT_EQ(Save(), "\r\n 997 ,<title>N</title>\r\n");
}

TEST_F(BlockDeleteAndInsertTest, TheShownPagesUnsavedEditMovesWithIt) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 3);
  TypeInto(Title(), "edited");
  RunBlock("BlockInsert", {"2", "50"});
  ExpectCurrentPage(2);
  EXPECT_EQ(State.Page(53), "<title>edited</title><text>three</text>");
  EXPECT_EQ(State.Page(52), "<title>B</title><text>two</text>");
  EXPECT_TRUE(Body().hasFocus());
}

TEST_F(BlockDeleteAndInsertTest, CancellingStoresNothing) {
  for (const char* name : {"BlockDelete", "BlockInsert"}) {
    for (const Dismissal way : kDismissals) {
      OpenDocument("Trio.dat", kTrio);
      TypeInto(Title(), " new ");
      Play(QString("Edit") + name, name, [way](QWidget& dialog) { Dismiss(dialog, way, "Command1"); });
      EXPECT_EQ(State.Page(1), "<title>A</title><text>one</text>");
      EXPECT_EQ(Title().Bytes(), " new ");
      EXPECT_EQ(State.PageClipboard, "");
    }
  }
}

TEST_F(BlockDeleteAndInsertTest, TheMainWindowsOwnLimitTakesMoreInsertedPages) {
  OpenDocument("Doc.dat", "\r\n 10 ,<title>ten</title>\r\n");
  ForceBlock("BlockInsert", {"10", "51"});
  EXPECT_EQ(State.Page(61), "<title>ten</title>");
  ExpectCurrentPage(10);
  ForceBlock("BlockInsert", {"10", "999"});
  EXPECT_EQ(Save(), "\r\n");
}

TEST_F(BlockDeleteAndInsertTest, TheMainWindowLooksAtTheNumbersAgain) {
  OpenDocument("Guide.dat", kGuide);
  const auto pages = State.Pages;
  const std::vector<QStringList> bad = {{"0", "1"},    {"999", "5"}, {"1000", "5"}, {"5", "0"},
                                        {"5", "1000"}, {"x", "2"},   {"-1", "2"},   {"", ""}};
  for (const QStringList& numbers : bad) {
    for (const char* name : {"BlockDelete", "BlockInsert"}) {
      ForceBlock(name, numbers);
      EXPECT_TRUE(State.Pages == pages) << name << ' ' << numbers.join(' ').toStdString();
      EXPECT_EQ(State.PageClipboard, "");
    }
  }
}

TEST_F(BlockDeleteAndInsertTest, TheMainWindowTakesWhatTheDialogsTake) {
  OpenDocument("Trio.dat", kTrio);
  ForceBlock("BlockDelete", {"998", "999"});
  ExpectCurrentPage(998);
  ForceBlock("BlockDelete", {"1", "2"});
  EXPECT_EQ(Save(), "\r\n 1 ,<title>C</title><text>three</text>\r\n");
}

}  // namespace
}  // namespace tavrel::test
