#include <QColor>
#include <QScrollBar>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

const QColor kPaleYellow(0xFF, 0xFF, 0xC0);
const QColor kWhite(0xFF, 0xFF, 0xFF);

class PagesGridTest : public WindowTest {
 protected:
  std::string Heading(int column) {
    return PagesGrid().model()->headerData(column, Qt::Horizontal).toString().toStdString();
  }

  void ExpectRow(int row, const std::string& title, const std::string& note, const QColor& colour) {
    SCOPED_TRACE(row);
    EXPECT_EQ(PagesGrid().TextMatrix(row, 1), title);
    EXPECT_EQ(PagesGrid().TextMatrix(row, 2), note);
    EXPECT_EQ(PagesGrid().CellBackColor(row, 1), colour);
    EXPECT_EQ(PagesGrid().CellBackColor(row, 2), colour);
  }
};

TEST_F(PagesGridTest, ListsAllSlotsUnderItsHeadings) {
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(Heading(0), "Page");
  EXPECT_EQ(Heading(1), "Title");
  EXPECT_EQ(Heading(2), "Notes");
  EXPECT_EQ(PagesGrid().model()->rowCount(), 999);
  EXPECT_EQ(PagesGrid().TextMatrix(1, 0), "001");
  EXPECT_EQ(PagesGrid().TextMatrix(42, 0), "042");
  EXPECT_EQ(PagesGrid().TextMatrix(999, 0), "999");
}

TEST_F(PagesGridTest, ExistingPagesArePaleYellowAndOthersWhite) {
  OpenDocument("Guide.dat", kGuide);
  for (int row = 1; row <= 999; ++row) {
    switch (row) {
      case 1:
        ExpectRow(row, "One", "n1", kPaleYellow);
        break;
      case 2:
        ExpectRow(row, "Two", "", kPaleYellow);
        break;
      case 5:
        ExpectRow(row, "Five", "", kPaleYellow);
        break;
      case 999:
        ExpectRow(row, "Last", "", kPaleYellow);
        break;
      default:
        ExpectRow(row, "", "", kWhite);
    }
  }
}

TEST_F(PagesGridTest, TheNumberColumnIsNeverColoured) {
  OpenDocument("Guide.dat", kGuide);
  EXPECT_FALSE(PagesGrid().model()->index(0, 0).data(Qt::BackgroundRole).isValid());
  EXPECT_FALSE(PagesGrid().model()->index(2, 0).data(Qt::BackgroundRole).isValid());
}

TEST_F(PagesGridTest, OpeningShowsPage1AtTheTop) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 999);
  OpenDocument("Trio.dat", kTrio);
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(PagesGrid().Row(), 1);
  EXPECT_EQ(PagesGrid().verticalScrollBar()->value(), 0);
  EXPECT_EQ(PagesGrid().TextMatrix(999, 1), "");
}

TEST_F(PagesGridTest, AClickStoresThePageAndShowsTheOther) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "Changed");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>Changed</title><text>one</text>");
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(PagesGrid().Row(), 2);
  EXPECT_EQ(Title().Bytes(), "B");
  EXPECT_EQ(Body().Bytes(), "two");
  EXPECT_TRUE(Body().hasFocus());
}

TEST_F(PagesGridTest, ARowFarDownIsTheOneThatOpensWhileATextFieldHasTheFocus) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "Typing");
  ClickRow(PagesGrid(), 700);
  EXPECT_EQ(State.CurrentPage, 700);
}

TEST_F(PagesGridTest, EnterOnARowDoesWhatAClickDoes) {
  OpenDocument("Trio.dat", kTrio);
  PagesGrid().setFocus();
  PressKey(PagesGrid(), Qt::Key_Down);
  EXPECT_EQ(State.CurrentPage, 1);
  PressKey(PagesGrid(), Qt::Key_Return);
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Title().Bytes(), "B");
}

TEST_F(PagesGridTest, AnEmptySlotBecomesAPageWhenItIsLeft) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 3);
  EXPECT_EQ(Title().Bytes(), "");
  TypeInto(Title(), "New");
  ClickRow(PagesGrid(), 1);
  ExpectRow(3, "New", "", kPaleYellow);
  EXPECT_NE(Save().find("\r\n 3 ,<title>New</title>\r\n 5 ,"), std::string::npos);
}

TEST_F(PagesGridTest, APageWithEmptyFieldsIsRemoved) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 2);
  TypeInto(Title(), "");
  TypeInto(Body(), "");
  ClickRow(PagesGrid(), 1);
  ExpectRow(2, "", "", kWhite);
  EXPECT_EQ(Save(), "\r\n 1 ,<title>A</title><text>one</text>\r\n 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(PagesGridTest, EnterInTheTitleUpdatesTheRowButNotThePage) {
  OpenDocument("Guide.dat", kGuide);
  const std::string stored = State.Pages[1];
  TypeInto(Title(), "X\n");
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "X");
  EXPECT_EQ(State.Pages[1], stored);
}

TEST_F(PagesGridTest, EnterInTheNoteUpdatesTheRow) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Note(), "Y\n");
  EXPECT_EQ(PagesGrid().TextMatrix(1, 2), "Y");
}

TEST_F(PagesGridTest, LeavingTitleOrNoteUpdatesTheRow) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "X");
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "One");
  PressKey(Title(), Qt::Key_Tab);
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "X");
  TypeInto(Note(), "Y");
  PressKey(Note(), Qt::Key_Tab);
  EXPECT_EQ(PagesGrid().TextMatrix(1, 2), "Y");
}

TEST_F(PagesGridTest, ShowsTheFieldsUntrimmedWhileThePageIsTrimmed) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "  X  \n");
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "  X  ");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "  X  ");
  EXPECT_EQ(State.Pages[1], "<title>X</title><text>one</text>");
}

TEST_F(PagesGridTest, RefreshRewritesAllRowsFromThePages) {
  OpenDocument("Guide.dat", kGuide);
  State.Pages[5].clear();
  State.Pages[6] = "<note>six</note>";
  Window().RefreshGrid2();
  ExpectRow(5, "", "", kWhite);
  ExpectRow(6, "", "six", kPaleYellow);
  ExpectRow(2, "Two", "", kPaleYellow);
}

}  // namespace
}  // namespace tavrel::test
