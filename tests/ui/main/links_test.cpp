#include "core/text/numbers.h"
#include "support/window_test.h"

namespace tavrel::test {
namespace {

constexpr const char* kTwoLinks =
    "\r\n 1 "
    ",<text>x</text><link><linktext>a</linktext><linkto>001</linkto><linktext>b</linktext><linkto>002</"
    "linkto>"
    "</link>\r\n 2 ,<text>y</text>\r\n";

class LinksTest : public WindowTest {
 protected:
  using Row = std::pair<std::string, std::string>;

  Row LinkRow(int row) { return {LinksGrid().TextMatrix(row, 0), LinksGrid().TextMatrix(row, 1)}; }

  Row EntryFields() { return {LinkText().Bytes(), LinkTarget().Bytes()}; }

  void AddLink(int row, const QString& text, const QString& target) {
    ClickRow(LinksGrid(), row);
    TypeInto(LinkText(), text);
    TypeInto(LinkTarget(), target + "\n");
  }
};

TEST_F(LinksTest, LinksFillTheFirstRowsAndTheFirstIsCurrent) {
  OpenDocument(
      "Links.dat",
      "\r\n 1 ,<link><linktext>a</linktext><linkto>001</linkto><linktext>b</linktext><linkto>002</linkto>"
      "<linktext>c</linktext><linkto>M3</linkto></link>\r\n");
  EXPECT_EQ(LinkRow(1), Row("a", "001"));
  EXPECT_EQ(LinkRow(2), Row("b", "002"));
  EXPECT_EQ(LinkRow(3), Row("c", "M3"));
  for (int row = 4; row <= 49; ++row) EXPECT_EQ(LinkRow(row), Row("", "")) << row;
  EXPECT_EQ(LinksGrid().model()->rowCount(), 49);
  EXPECT_EQ(LinksGrid().Row(), 1);
  EXPECT_EQ(State.CurrentLink, 1);
  EXPECT_EQ(EntryFields(), Row("a", "001"));
}

TEST_F(LinksTest, TheGridHasItsHeadings) {
  OpenDocument("Links.dat", kTwoLinks);
  const QAbstractItemModel& model = *LinksGrid().model();
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "Link text");
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "Link to");
}

TEST_F(LinksTest, EntryFieldsLineUpWithTheColumns) {
  OpenDocument("Links.dat", kTwoLinks);
  auto& text_label = Find<QWidget>(Window(), "Label3");
  auto& target_label = Find<QWidget>(Window(), "Label12");
  EXPECT_EQ(text_label.width(), LinksGrid().columnWidth(0));
  EXPECT_EQ(target_label.width(), LinksGrid().columnWidth(1));
  EXPECT_EQ(LinkText().x(), text_label.x());
  EXPECT_EQ(LinkTarget().x(), target_label.x());
}

TEST_F(LinksTest, NoLinkOfOnePageRemainsOnTheNext) {
  OpenDocument("Links.dat", kTwoLinks);
  ClickRow(PagesGrid(), 2);
  for (int row = 1; row <= 49; ++row) EXPECT_EQ(LinkRow(row), Row("", "")) << row;
  EXPECT_EQ(EntryFields(), Row("", ""));
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(LinkRow(2), Row("b", "002"));
}

TEST_F(LinksTest, ClickingARowStoresTheEditedLinkFirst) {
  OpenDocument("Links.dat", kTwoLinks);
  ClickRow(LinksGrid(), 2);
  EXPECT_EQ(EntryFields(), Row("b", "002"));
  TypeInto(LinkText(), "q");
  ClickRow(LinksGrid(), 1);
  EXPECT_EQ(LinkRow(2), Row("q", "002"));
  EXPECT_EQ(EntryFields(), Row("a", "001"));
  EXPECT_EQ(State.CurrentLink, 1);
  EXPECT_TRUE(LinkText().hasFocus());
}

TEST_F(LinksTest, EnterOrLeavingAFieldStoresTheLinkInTheGrid) {
  OpenDocument("Links.dat", kTwoLinks);
  TypeInto(LinkText(), "by Enter\n");
  EXPECT_EQ(LinkRow(1), Row("by Enter", "001"));
  TypeInto(LinkText(), "by Tab");
  PressKey(LinkText(), Qt::Key_Tab);
  EXPECT_EQ(LinkRow(1), Row("by Tab", "001"));
  TypeInto(LinkTarget(), "2\n");
  EXPECT_EQ(LinkRow(1), Row("by Tab", "2"));
  EXPECT_TRUE(LinkTarget().hasFocus());
  TypeInto(LinkTarget(), "M4");
  PressKey(LinkTarget().Field(), Qt::Key_Tab);
  EXPECT_EQ(LinkRow(1), Row("by Tab", "M4"));
}

TEST_F(LinksTest, TheGridHoldsTheTrimmedTargetAsTyped) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(LinkText(), " t ");
  TypeInto(LinkTarget(), " 7 \n");
  EXPECT_EQ(LinkRow(1), Row("t", "7"));
}

TEST_F(LinksTest, PageTargetsAreStoredAsThreeDigitsAndMusicTargetsAsTyped) {
  OpenDocument("Trio.dat", kTrio);
  AddLink(1, "a", "5");
  AddLink(2, "b", "m3");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1],
            "<title>A</title><text>one</text><link><linktext>a</linktext><linkto>005</linkto>"
            "<linktext>b</linktext><linkto>m3</linkto></link>");
}

TEST_F(LinksTest, ATargetWithoutTextIsKeptAndATextWithoutTargetDropped) {
  OpenDocument("Trio.dat", kTrio);
  AddLink(1, "", "3");
  AddLink(2, "txt", "");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1],
            "<title>A</title><text>one</text><link><linktext></linktext><linkto>003</linkto></link>");
}

TEST_F(LinksTest, ALinkThatWasOnlyTypedIsNotInThatSaveButInTheNext) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(LinkText(), "late");
  TypeInto(LinkTarget(), "2");
  const std::string record = "<link><linktext>late</linktext><linkto>002</linkto></link>";
  QAction& save = Find<QAction>(Window(), "FileSave");
  save.trigger();
  EXPECT_EQ(Folder.Read("Trio.dat").find(record), std::string::npos);
  EXPECT_TRUE(Body().hasFocus());
  save.trigger();
  EXPECT_NE(Folder.Read("Trio.dat").find(record), std::string::npos);
}

TEST_F(LinksTest, OnlyFortyNineLinksSurviveAVisit) {
  std::string links;
  for (int link = 1; link <= 52; ++link) {
    links += "<linktext>t" + std::to_string(link) + "</linktext><linkto>" + FormatPage(link) + "</linkto>";
  }
  OpenDocument("Many.dat", "\r\n 1 ,<link>" + links + "</link>\r\n");
  ClickRow(PagesGrid(), 2);
  EXPECT_NE(State.Pages[1].find("<linkto>049</linkto></link>"), std::string::npos);
  EXPECT_EQ(State.Pages[1].find("050"), std::string::npos);
}

TEST_F(LinksTest, AnEmptyLinkBetweenOthersIsClosedUpByAVisit) {
  OpenDocument(
      "Gap.dat",
      "\r\n 1 ,<link><linktext>a</linktext><linkto>001</linkto><linktext>b</linktext><linkto></linkto>"
      "<linktext>c</linktext><linkto>003</linkto></link>\r\n");
  EXPECT_EQ(LinkRow(2), Row("b", ""));
  EXPECT_EQ(LinkRow(3), Row("c", "003"));
  ClickRow(PagesGrid(), 2);
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(LinkRow(2), Row("c", "003"));
}

}  // namespace
}  // namespace tavrel::test
