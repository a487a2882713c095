#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

constexpr const char* kQuestionAt2 = "Save|question|Overwrite pages 2 to 27?    |OK/Cancel";

class PlannerInsertTest : public PlannerTest {
 protected:
  /// Inserts a plan whose first cell, for page 2, holds `text`, and gives back that page.
  std::string PageFrom(const QString& text) {
    StartPlanning();
    TypeCell(0, text);
    Insert();
    return State.Page(2);
  }

  void ExpectPagesEmpty(int first, int last) {
    for (int page = first; page <= last; ++page) EXPECT_EQ(State.Page(page), "") << page;
  }

  void ExpectRow(int row, const std::string& title, const std::string& note, const QColor& colour) {
    SCOPED_TRACE(row);
    EXPECT_EQ(PagesGrid().TextMatrix(row, 1), title);
    EXPECT_EQ(PagesGrid().TextMatrix(row, 2), note);
    EXPECT_EQ(PagesGrid().CellBackColor(row, 1), colour);
  }

  const QColor yellow_{0xFF, 0xFF, 0xC0};
  const QColor white_{0xFF, 0xFF, 0xFF};
};

TEST_F(PlannerInsertTest, AsksOverTheMainWindowAndNamesOnePageTooMany) {
  StartPlanning();
  TypeCell(0, "x");
  Insert();
  EXPECT_EQ(Seen(Messages.Shown), Texts{kQuestionAt2});
  EXPECT_EQ(Messages.LastParent, &Window());
}

TEST_F(PlannerInsertTest, RewritesAll25PagesAndNoOther) {
  StartPlanning(
      "\r\n 1 ,<title>kept</title>\r\n 2 ,<title>old</title>\r\n 5 ,<title>lost</title>\r\n"
      " 26 ,<title>lost too</title>\r\n 27 ,<title>spared</title>\r\n 999 ,<title>last</title>\r\n");
  TypeCell(0, "x");
  Insert();
  EXPECT_EQ(State.Page(1), "<title>kept</title>");
  EXPECT_EQ(State.Page(2), "<text>x</text><note>x</note>");
  ExpectPagesEmpty(3, 26);
  EXPECT_EQ(State.Page(27), "<title>spared</title>");
  EXPECT_EQ(State.Page(999), "<title>last</title>");
  EXPECT_EQ(Save(),
            "\r\n 1 ,<title>kept</title>\r\n 2 ,<text>x</text><note>x</note>\r\n"
            " 27 ,<title>spared</title>\r\n 999 ,<title>last</title>\r\n");
}

TEST_F(PlannerInsertTest, EveryCellGoesToThePageOfItsNumber) {
  StartPlanning();
  TypeTop("100");
  for (const int cell : {0, 4, 5, 12, 24}) TypeCell(cell, QString("cell %1").arg(cell));
  Insert();
  EXPECT_EQ(State.Page(100), "<text>cell 0</text><note>cell 0</note>");
  EXPECT_EQ(State.Page(104), "<text>cell 4</text><note>cell 4</note>");
  EXPECT_EQ(State.Page(105), "<text>cell 5</text><note>cell 5</note>");
  EXPECT_EQ(State.Page(112), "<text>cell 12</text><note>cell 12</note>");
  EXPECT_EQ(State.Page(124), "<text>cell 24</text><note>cell 24</note>");
  ExpectPagesEmpty(113, 123);
}

TEST_F(PlannerInsertTest, ThePagesGridShowsTheNewPages) {
  StartPlanning();
  ExpectRow(5, "Five", "", yellow_);
  TypeCell(1, "third");
  Insert();
  ExpectRow(1, "One", "n1", yellow_);
  ExpectRow(2, "", "", white_);
  ExpectRow(3, "", "third", yellow_);
  ExpectRow(5, "", "", white_);
}

TEST_F(PlannerInsertTest, TheNoteIsTheFirst50Characters) {
  EXPECT_EQ(PageFrom("abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRST"),
            "<text>abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMNOPQRST</text>"
            "<note>abcdefghijklmnopqrstuvwxyz0123456789ABCDEFGHIJKLMN</note>");
}

TEST_F(PlannerInsertTest, BlanksAroundATextGo) {
  EXPECT_EQ(PageFrom("  Hello  "), "<text>Hello</text><note>Hello</note>");
}

TEST_F(PlannerInsertTest, ACellOfBlanksEmptiesItsPage) {
  EXPECT_EQ(PageFrom("   "), "");
}

TEST_F(PlannerInsertTest, TheNoteIsNotTrimmedAgain) {
  const std::string text = std::string(49, 'a') + " b";
  EXPECT_EQ(PageFrom(QString::fromStdString(text)),
            "<text>" + text + "</text><note>" + std::string(49, 'a') + " </note>");
}

TEST_F(PlannerInsertTest, TheNoteMayEndInTheMiddleOfALineBreakAndSurvivesTheFile) {
  const std::string first(49, 'a');
  const std::string page = "<text>" + first + "\r\nb</text><note>" + first + "\r</note>";
  EXPECT_EQ(PageFrom(QString::fromStdString(first) + "\nb"), page);
  EXPECT_NE(Save().find(" 2 ,<text>" + first + "<p>b</text><note>" + first + "\r</note>\r\n 999 ,"),
            std::string::npos);
  OpenExisting("Guide.dat");
  EXPECT_EQ(State.Page(2), page);
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(PlannerInsertTest, TheCurrentPageShowsItsNewContent) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 5);
  OpenPlanner();
  TypeCell(3, "new five");
  ClickTicks(3, {kWest});
  Insert();
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_EQ(PagesGrid().Row(), 5);
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(Note().Bytes(), "new five");
  EXPECT_EQ(Body().Bytes(), "new five");
  EXPECT_EQ(LinkText().Bytes(), "West");
  EXPECT_EQ(LinkTarget().Field().Bytes(), "004");
  EXPECT_EQ(State.Page(5),
            "<text>new five</text><note>new five</note>"
            "<link><linktext>West</linktext><linkto>004</linkto></link>");
}

TEST_F(PlannerInsertTest, AnEmptiedCurrentPageShowsEmptyFields) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 5);
  OpenPlanner();
  Insert();
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(LinkText().Bytes(), "");
}

TEST_F(PlannerInsertTest, CancelWritesNothingButStoresTheCurrentPage) {
  StartPlanning();
  TypeCell(0, "x");
  TypeInto(Body(), "typed");
  const std::string page2 = State.Page(2);
  Messages.Answers = {false};
  Insert();
  EXPECT_EQ(Seen(Messages.Shown), Texts{kQuestionAt2});
  EXPECT_NE(State.Page(1).find("<text>typed</text>"), std::string::npos);
  EXPECT_EQ(State.Page(2), page2);
  EXPECT_EQ(PagesGrid().TextMatrix(2, 1), "Two");
  EXPECT_EQ(Body().Bytes(), "typed");
}

TEST_F(PlannerInsertTest, ARefusedInsertStoresTheCurrentPageToo) {
  StartPlanning();
  TypeTop("951");
  TypeInto(Body(), "typed");
  Insert();
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_NE(State.Page(1).find("<text>typed</text>"), std::string::npos);

  OpenPlanner();
  TypeTop("002");
  TypeInto(PlannerWindow(), "Text3_2", " ");
  TypeInto(Body(), "typed again");
  Insert();
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_NE(State.Page(1).find("<text>typed again</text>"), std::string::npos);
}

TEST_F(PlannerInsertTest, PagesBelow1AndAbove950AreRefusedInSilence) {
  StartPlanning();
  TypeCell(0, "x");
  for (const char* top : {"951", "950.6", "1000", "70000", "99999999999", "0", "000", "0.4", "-7", "-2", "",
                          " ", "x", "x2", "-951"}) {
    SCOPED_TRACE(top);
    TypeTop(top);
    ExpectRefused();
    OpenPlanner();
    EXPECT_EQ(Find<LineField>(PlannerWindow(), "Text2").text(), top);
  }
}

struct TopCase {
  const char* Typed;
  const char* Question;
  int FirstPage;
};

void PrintTo(const TopCase& top, std::ostream* out) {
  *out << top.Typed;
}

class PlannerTopTest : public PlannerTest, public testing::WithParamInterface<TopCase> {};

TEST_P(PlannerTopTest, TheTopLeftPageIsTheRoundedNumber) {
  StartPlanning("\r\n");
  TypeTop(GetParam().Typed);
  TypeCell(0, "first");
  TypeCell(24, "last");
  Insert();
  EXPECT_EQ(Seen(Messages.Shown),
            Texts{std::string("Save|question|") + GetParam().Question + "    |OK/Cancel"});
  EXPECT_EQ(State.Page(GetParam().FirstPage), "<text>first</text><note>first</note>");
  EXPECT_EQ(State.Page(GetParam().FirstPage + 24), "<text>last</text><note>last</note>");
}

INSTANTIATE_TEST_SUITE_P(Numbers, PlannerTopTest,
                         testing::Values(TopCase{"950", "Overwrite pages 950 to 975?", 950},
                                         TopCase{"950.4", "Overwrite pages 950 to 975?", 950},
                                         TopCase{"2.6", "Overwrite pages 3 to 28?", 3},
                                         TopCase{"0.6", "Overwrite pages 1 to 26?", 1},
                                         TopCase{"1", "Overwrite pages 1 to 26?", 1},
                                         TopCase{" 007", "Overwrite pages 7 to 32?", 7},
                                         TopCase{"12x", "Overwrite pages 12 to 37?", 12}));

TEST_F(PlannerInsertTest, AMissingNavigationTextIsRefusedInSilence) {
  StartPlanning();
  TypeCell(0, "x");
  for (int text = 0; text < 4; ++text) {
    const QString field = Element("Text3", text);
    for (const char* missing : {"", "   "}) {
      SCOPED_TRACE(text);
      TypeInto(PlannerWindow(), field, missing);
      ExpectRefused();
      OpenPlanner();
    }
    TypeInto(PlannerWindow(), field, "back");
  }
  Insert();
  EXPECT_EQ(Seen(Messages.Shown), Texts{kQuestionAt2});
}

}  // namespace
}  // namespace tavrel::test
