#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>

#include <string>

#include "ui/view/check_panel_test.h"
#include "ui/view/find_all_panel_test.h"

namespace tavrel::test {
namespace {

constexpr int kTop = 120;  // the row that people have scrolled to

/// Pages with so many "pear"s on each of them, all without a title.
std::string Pears(int pages, int on_each) {
  std::string text;
  for (int pear = 0; pear < on_each; ++pear) text += "pear ";
  std::string bytes = "\r\n";
  for (int page = 1; page <= pages; ++page)
    bytes += " " + std::to_string(page) + " ,<text>" + text + "x</text>\r\n";
  return bytes;
}

class HitListTest : public FindAllPanelTest {
 protected:
  void OpenAt(int top) {
    OpenWith(Pears(100, 3));
    Look("pear");
    ASSERT_TRUE(WaitForRows(300));
    ScrollTo(top);
  }
  void ScrollTo(int top) {
    Hits().verticalScrollBar()->setValue(top);
    ASSERT_EQ(Hits().Top(), top);
  }
};

TEST_F(HitListTest, StaysWherePeopleHaveScrolledToWhileTheyWrite) {
  OpenAt(kTop);
  TypeInto(Title(), "A pear");
  ASSERT_TRUE(WaitForRows(301));
  EXPECT_EQ(Hits().Top(), kTop);
  EXPECT_EQ(SelectedRow(Hits()), "");
}

TEST_F(HitListTest, StaysThereThoughSoManyHitsTakeAWhile) {
  OpenWith(Pears(999, 40));
  Look("p");
  ASSERT_TRUE(WaitForRows(999 * 40));
  ScrollTo(30000);
  TypeInto(Title(), "p");
  ASSERT_TRUE(WaitForRows(999 * 40 + 1));
  Settle();
  EXPECT_EQ(Hits().Top(), 30000);
}

TEST_F(HitListTest, StaysThereWithASelectedRowThatIsOutOfView) {
  OpenAt(0);
  ClickRowOf(Hits(), 4);
  ScrollTo(kTop);
  const std::string selected = SelectedRow(Hits());
  ASSERT_NE(selected, "");
  TypeInto(Title(), "A pear");
  ASSERT_TRUE(WaitForRows(301));
  EXPECT_EQ(Hits().Top(), kTop);
  EXPECT_EQ(SelectedRow(Hits()), selected);
  EXPECT_TRUE(Title().hasFocus());
}

TEST_F(HitListTest, BeginsAtTheTopForAnotherText) {
  OpenAt(kTop);
  TypeInto(FindWhat(), "pea");
  ASSERT_TRUE(WaitForRows(300));
  EXPECT_EQ(Hits().Top(), 0);
  ScrollTo(kTop);
  Click(Window(), "MatchCase");
  ASSERT_TRUE(WaitForRows(300));
  EXPECT_EQ(Hits().Top(), 0);
}

TEST_F(HitListTest, TheFirstHitsOfManyComeBeforeTheOthers) {
  OpenWith(Pears(999, 40));
  TypeInto(FindWhat(), "p");
  const int first = Hits().model()->rowCount();
  EXPECT_GT(first, 0);
  EXPECT_LE(first, 100 + 40) << "a screenful, to the end of a page";
  EXPECT_EQ(Count(), std::to_string(first) + " hits, searching on");
  EXPECT_TRUE(WaitForRows(999 * 40));
}

TEST_F(HitListTest, PeopleMayScrollWhileTheSearchGoesOn) {
  OpenWith(Pears(999, 40));
  TypeInto(FindWhat(), "p");
  ASSERT_TRUE(WaitFor([this] { return Hits().model()->rowCount() > 100; }));
  ScrollTo(50);
  ASSERT_TRUE(WaitForRows(999 * 40));
  Settle();
  EXPECT_EQ(Hits().Top(), 50);
}

TEST_F(HitListTest, WithoutHitsThereIsNothingToCopy) {
  OpenOrchard();
  QApplication::clipboard()->setText("before");
  Look("zebra");
  Hits().setFocus();
  PressKey(Hits(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "before");
}

class FindingListTest : public CheckPanelTest {
 protected:
  /// Every page lacks a title, and no link leads to any but the first.
  static constexpr int kPages = 100;
  static constexpr int kProblems = kPages + kPages - 1;

  void OpenAt(int top) {
    OpenWith(Pears(kPages, 1));
    ASSERT_TRUE(WaitForRows(kProblems));
    ScrollTo(top);
  }
  void ScrollTo(int top) {
    Findings().verticalScrollBar()->setValue(top);
    ASSERT_EQ(Findings().Top(), top);
  }
  bool WaitForRows(int count) {
    return WaitFor([this, count] { return Findings().model()->rowCount() == count; });
  }
};

TEST_F(FindingListTest, StaysWherePeopleHaveScrolledToWhileTheyWrite) {
  OpenAt(kTop);
  TypeInto(Title(), "A title");
  ASSERT_TRUE(WaitForRows(kProblems - 1));
  EXPECT_EQ(Findings().Top(), kTop);
  EXPECT_EQ(SelectedRow(Findings()), "");
}

TEST_F(FindingListTest, StaysThereWithASelectedRowThatIsOutOfView) {
  OpenAt(0);
  ClickRowOf(Findings(), 4);
  ScrollTo(kTop);
  const std::string selected = SelectedRow(Findings());
  ASSERT_NE(selected, "");
  TypeInto(Title(), "A title");
  ASSERT_TRUE(WaitForRows(kProblems - 1));
  EXPECT_EQ(Findings().Top(), kTop);
  EXPECT_EQ(SelectedRow(Findings()), selected);
}

TEST_F(FindingListTest, WithoutProblemsThereIsNothingToCopy) {
  OpenWith(Sound());
  QApplication::clipboard()->setText("before");
  ASSERT_TRUE(WaitFor([this] { return Count() == "No problems"; }));
  Findings().setFocus();
  PressKey(Findings(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "before");
}

}  // namespace
}  // namespace tavrel::test
