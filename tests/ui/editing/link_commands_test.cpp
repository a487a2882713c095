#include <utility>
#include <vector>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

using Row = std::pair<std::string, std::string>;

const std::string kA = "<linktext>a</linktext><linkto>001</linkto>";
const std::string kB = "<linktext>b</linktext><linkto>002</linkto>";
const std::string kC = "<linktext>c</linktext><linkto>003</linkto>";
const std::string kAbc = kA + kB + kC;

/// The commands of Edit > Link, chosen from the menu, on a page with the links a, b and c.
class LinkCommandsTest : public WindowTest {
 protected:
  void SetUp() override { OpenDocument("Links.dat", File(kAbc)); }

  static std::string File(const std::string& links) {
    return "\r\n 1 ,<text>x</text><link>" + links + "</link>\r\n 2 ,<text>y</text>\r\n";
  }

  Row LinkRow(int row) { return {LinksGrid().TextMatrix(row, 0), LinksGrid().TextMatrix(row, 1)}; }
  Row EntryFields() { return {LinkText().Bytes(), LinkTarget().Bytes()}; }

  /// The first rows, with nothing below them.
  void ExpectRows(std::vector<Row> rows) {
    rows.resize(49);
    for (int row = 1; row <= 49; ++row)
      EXPECT_EQ(LinkRow(row), rows[static_cast<std::size_t>(row) - 1]) << row;
  }

  /// Goes down from the selected row with the arrow key; nothing is opened by that.
  void GoDown(int rows) {
    LinksGrid().setFocus();
    for (int i = 0; i < rows; ++i) PressKey(LinksGrid(), Qt::Key_Down);
  }
};

TEST_F(LinkCommandsTest, UpExchangesTheRowWithTheOneAboveAndLeavesTheSelection) {
  ClickRow(LinksGrid(), 3);
  Choose("EditLinkUp");
  ExpectRows({{"a", "001"}, {"c", "003"}, {"b", "002"}});
  EXPECT_EQ(LinksGrid().Row(), 3);
  EXPECT_EQ(EntryFields(), Row("a", "001"));
  EXPECT_EQ(State.CurrentLink, 1);
  EXPECT_EQ(State.Pages[1], "<text>x</text><link>" + kA + kC + kB + "</link>");
  EXPECT_EQ(Save(), File(kA + kC + kB));
}

TEST_F(LinkCommandsTest, UpAgainMovesTheOtherLinkBack) {
  ClickRow(LinksGrid(), 3);
  for (int i = 1; i <= 5; ++i) {
    SCOPED_TRACE(i);
    Choose("EditLinkUp");
    EXPECT_EQ(LinksGrid().Row(), 3);
    EXPECT_EQ(LinkRow(3), i % 2 == 1 ? Row("b", "002") : Row("c", "003"));
  }
  Choose("EditLinkUp");
  EXPECT_EQ(Save(), File(kAbc));
}

TEST_F(LinkCommandsTest, DownIsTheMirrorImage) {
  Choose("EditLinkDown");
  ExpectRows({{"b", "002"}, {"a", "001"}, {"c", "003"}});
  EXPECT_EQ(LinksGrid().Row(), 1);
  EXPECT_EQ(EntryFields(), Row("b", "002"));
  EXPECT_EQ(Save(), File(kB + kA + kC));
}

TEST_F(LinkCommandsTest, UpOnTheFirstRowDoesNotEvenStore) {
  const std::string record = State.Pages[1];
  TypeInto(Title(), "edited");
  Choose("EditLinkUp");
  EXPECT_EQ(State.Pages[1], record);
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "");
  EXPECT_EQ(Title().Bytes(), "edited");
  EXPECT_TRUE(Title().hasFocus());
  ExpectRows({{"a", "001"}, {"b", "002"}, {"c", "003"}});
}

TEST_F(LinkCommandsTest, DownOnTheLastRowDoesNotEvenStore) {
  const std::string record = State.Pages[1];
  ClickRow(LinksGrid(), 49);
  TypeInto(LinkText(), "t");
  TypeInto(LinkTarget(), "4\n");
  TypeInto(Title(), "edited");
  EXPECT_EQ(LinksGrid().Row(), 49);
  Choose("EditLinkDown");
  EXPECT_EQ(State.Pages[1], record);
  EXPECT_EQ(LinkRow(49), Row("t", "4"));
  EXPECT_TRUE(Title().hasFocus());
}

TEST_F(LinkCommandsTest, UpOnTheLastRowAndDownOnTheRowBeforeItMoveIt) {
  std::string links;
  for (int link = 11; link <= 59; ++link)
    links += "<linktext>t</linktext><linkto>0" + std::to_string(link) + "</linkto>";
  OpenDocument("Full.dat", File(links));
  ClickRow(LinksGrid(), 49);
  Choose("EditLinkUp");
  EXPECT_EQ(LinkRow(48), Row("t", "059"));
  EXPECT_EQ(LinkRow(49), Row("t", "058"));
  ClickRow(LinksGrid(), 48);
  Choose("EditLinkDown");
  EXPECT_EQ(LinksGrid().Row(), 48);
  EXPECT_EQ(Save(), File(links));
}

TEST_F(LinkCommandsTest, DeleteClosesTheLinksUpWithoutAsking) {
  const std::size_t messages = Messages.Shown.size();
  ClickRow(LinksGrid(), 2);
  Choose("EditLinkDelete");
  ExpectRows({{"a", "001"}, {"c", "003"}});
  EXPECT_EQ(LinksGrid().Row(), 2);
  EXPECT_EQ(EntryFields(), Row("a", "001"));
  EXPECT_EQ(Messages.Shown.size(), messages);
  EXPECT_EQ(State.Pages[1], "<text>x</text><link>" + kA + kC + "</link>");
}

TEST_F(LinkCommandsTest, DeletingEveryLinkLeavesNoLinkBlock) {
  for (int i = 0; i < 3; ++i) Choose("EditLinkDelete");
  EXPECT_EQ(EntryFields(), Row("", ""));
  Choose("EditLinkDelete");
  EXPECT_EQ(Save(), "\r\n 1 ,<text>x</text>\r\n 2 ,<text>y</text>\r\n");
}

TEST_F(LinkCommandsTest, DeletingALinkInTheMiddleOfEditingDoesNotBringItBack) {
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkText(), "edited");
  Choose("EditLinkDelete");
  ExpectRows({{"a", "001"}, {"c", "003"}});
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<text>x</text><link>" + kA + kC + "</link>");
}

TEST_F(LinkCommandsTest, TheRowReachedByArrowKeysIsTheOneThatMoves) {
  GoDown(2);
  EXPECT_EQ(State.CurrentLink, 1);
  Choose("EditLinkUp");
  ExpectRows({{"a", "001"}, {"c", "003"}, {"b", "002"}});
  EXPECT_EQ(LinksGrid().Row(), 3);
}

TEST_F(LinkCommandsTest, TheRowReachedByArrowKeysIsTheOneThatIsDeleted) {
  GoDown(1);
  EXPECT_EQ(EntryFields(), Row("a", "001"));
  Choose("EditLinkDelete");
  ExpectRows({{"a", "001"}, {"c", "003"}});
  EXPECT_EQ(LinksGrid().Row(), 2);
}

TEST_F(LinkCommandsTest, TheSelectedRowIsMovedAlthoughTheFieldsHoldAnother) {
  ClickRow(LinksGrid(), 2);
  Choose("EditLinkDown");
  EXPECT_EQ(EntryFields(), Row("a", "001"));
  Choose("EditLinkDelete");
  ExpectRows({{"a", "001"}, {"b", "002"}});
}

TEST_F(LinkCommandsTest, AnEmptyRowMovesWithoutLastingEffect) {
  ClickRow(LinksGrid(), 4);
  Choose("EditLinkUp");
  ExpectRows({{"a", "001"}, {"b", "002"}, {"c", "003"}});
  EXPECT_EQ(LinksGrid().Row(), 4);
  ClickRow(LinksGrid(), 20);
  Choose("EditLinkDown");
  Choose("EditLinkDelete");
  EXPECT_EQ(LinksGrid().Row(), 20);
  EXPECT_EQ(Save(), File(kAbc));
}

TEST_F(LinkCommandsTest, ATextWithoutTargetIsGoneAfterAMove) {
  OpenDocument("Gap.dat", File(kA + "<linktext>t</linktext><linkto></linkto>" + kC));
  EXPECT_EQ(LinkRow(2), Row("t", ""));
  Choose("EditLinkDown");
  ExpectRows({{"a", "001"}, {"c", "003"}});
  EXPECT_EQ(Save(), File(kA + kC));
}

TEST_F(LinkCommandsTest, AMoveStoresWhatWasTypedAndNormalisesTheTarget) {
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkTarget(), "7\n");
  EXPECT_EQ(LinkRow(2), Row("b", "7"));
  TypeInto(Title(), "T");
  Choose("EditLinkUp");
  ExpectRows({{"b", "007"}, {"a", "001"}, {"c", "003"}});
  EXPECT_EQ(PagesGrid().TextMatrix(1, 1), "T");
  EXPECT_EQ(State.Pages[1], "<title>T</title><text>x</text><link><linktext>b</linktext><linkto>007</linkto>" +
                                kA + kC + "</link>");
}

TEST_F(LinkCommandsTest, EnterInTheTargetStoresTheLinkAndKeepsTheFocus) {
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "t");
  TypeInto(LinkTarget(), "4\n");
  EXPECT_EQ(LinkRow(4), Row("t", "4"));
  EXPECT_TRUE(LinkTarget().hasFocus());
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1],
            "<text>x</text><link>" + kAbc + "<linktext>t</linktext><linkto>004</linkto></link>");
}

TEST_F(LinkCommandsTest, LeavingTheTargetWithTheTabKeyStoresTheLink) {
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), "t");
  TypeInto(LinkTarget(), "4");
  EXPECT_EQ(LinkRow(4), Row("t", ""));
  PressKey(LinkTarget().Field(), Qt::Key_Tab);
  EXPECT_EQ(LinkRow(4), Row("t", "4"));
  EXPECT_EQ(LinksGrid().Row(), 4);
}

TEST_F(LinkCommandsTest, EnterStoresTextAndTargetWithoutTheirBlanks) {
  ClickRow(LinksGrid(), 4);
  TypeInto(LinkText(), " t ");
  TypeInto(LinkTarget(), " 7 \n");
  EXPECT_EQ(LinkRow(4), Row("t", "7"));
}

}  // namespace
}  // namespace tavrel::test
