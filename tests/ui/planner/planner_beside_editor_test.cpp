#include <QApplication>

#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

/// The planner and the main window, used in turn.
using PlannerBesideEditorTest = PlannerTest;

TEST_F(PlannerBesideEditorTest, OpeningStoresTheCurrentPageFirst) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Body(), "typed");
  OpenPlanner();
  EXPECT_NE(State.Page(1).find("<text>typed</text>"), std::string::npos);
}

TEST_F(PlannerBesideEditorTest, ItAndTheMainWindowAreUsedInTurn) {
  StartPlanning();
  TypeCell(0, "planned");
  ActivateWindow(Window());
  ClickRow(PagesGrid(), 999);
  TypeInto(Title(), "Typed title");
  TypeInto(Body(), "typed body");
  ActivateWindow(PlannerWindow());
  EXPECT_EQ(CellText(0), "planned");
  TypeCell(1, "planned too");
  Insert();
  EXPECT_EQ(State.Page(2), "<text>planned</text><note>planned</note>");
  EXPECT_EQ(State.Page(3), "<text>planned too</text><note>planned too</note>");
  EXPECT_EQ(State.Page(999), "<title>Typed title</title><text>typed body</text>");
  EXPECT_EQ(Body().Bytes(), "typed body");
  EXPECT_EQ(PagesGrid().TextMatrix(999, 1), "Typed title");
}

TEST_F(PlannerBesideEditorTest, ALinkTypedInTheMainWindowOutlivesAnInsertElsewhere) {
  StartPlanning();
  ActivateWindow(Window());
  ClickRow(PagesGrid(), 999);
  TypeInto(LinkText(), "Home");
  TypeInto(LinkTarget(), "001");
  ActivateWindow(PlannerWindow());
  Insert();
  EXPECT_EQ(LinkText().Bytes(), "Home");
  EXPECT_EQ(State.Page(999),
            "<title>Last</title><text>Omega</text>"
            "<link><linktext>Home</linktext><linkto>001</linkto></link>");
}

TEST_F(PlannerBesideEditorTest, ALinkTypedBeforeGoingToAnotherProgramOutlivesAnInsertToo) {
  StartPlanning();
  ActivateWindow(Window());
  ClickRow(PagesGrid(), 999);
  TypeInto(LinkText(), "Home");
  TypeInto(LinkTarget(), "001");
  QApplication::setActiveWindow(nullptr);
  ActivateWindow(PlannerWindow());
  Insert();
  EXPECT_EQ(LinkText().Bytes(), "Home");
  EXPECT_EQ(State.Page(999),
            "<title>Last</title><text>Omega</text>"
            "<link><linktext>Home</linktext><linkto>001</linkto></link>");
}

TEST_F(PlannerBesideEditorTest, InsertBringsBackAnEditorThatWasMinimised) {
  StartPlanning();
  Window().showMinimized();
  ActivateWindow(PlannerWindow());
  Insert();
  EXPECT_FALSE(Window().isMinimized());
}

/// The document is closed while the planner stays open.
class PlannerWithoutADocumentTest : public PlannerTest {
 protected:
  void SetUp() override {
    StartPlanning();
    TypeCell(1, "planned");
    Choose("FileClose");
    ASSERT_TRUE(State.DocPath.empty());
    ASSERT_TRUE(PlannerWindow().isVisible());
    Messages.Shown.clear();
    ActivateWindow(PlannerWindow());
    Insert();
  }

  bool IsCovered() { return Find<QWidget>(Window(), "Picture1").isVisible(); }
};

TEST_F(PlannerWithoutADocumentTest, InsertWritesPagesAndTheFieldsUnderTheCover) {
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Save|question|Overwrite pages 2 to 27?    |OK/Cancel"});
  EXPECT_EQ(State.Page(1),
            "<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
            "<linkto>002</linkto><linktext>Five</linktext><linkto>005</linkto></link>");
  EXPECT_EQ(State.Page(3), "<text>planned</text><note>planned</note>");
  EXPECT_TRUE(IsCovered());
  EXPECT_TRUE(Program.Failures.empty());
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(PlannerWithoutADocumentTest, SaveStillHasNothingToSave) {
  Choose("FileSave");
  EXPECT_EQ(LastMessage().Text, "Nothing to save!    ");
}

TEST_F(PlannerWithoutADocumentTest, TheNextDocumentHoldsNoneOfThesePages) {
  OpenDocument("Fruit.dat", kFruit);
  EXPECT_EQ(State.Page(3), "");
  EXPECT_FALSE(IsCovered());
  EXPECT_EQ(Save(), kFruit);
}

TEST_F(PlannerWithoutADocumentTest, ANewDocumentHoldsNoneOfThesePages) {
  Player.Expect("NewDoc", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "N");
    Click(dialog, "Command1");
  });
  Choose("FileNew");
  EXPECT_EQ(State.Page(3), "");
  EXPECT_EQ(Folder.Read("N.dat"), "\r\n");
}

}  // namespace
}  // namespace tavrel::test
