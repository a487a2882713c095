#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTest>
#include <QWindow>

#include "ui/main/toolbar_test.h"

namespace tavrel::test {
namespace {

/// Moves the pointer over the window as a person does, through the window system.
class ToolBarOutlineTest : public ToolBarTest {
 protected:
  void SetUp() override { OpenDocument("Guide.dat", kGuide); }

  void MoveTo(const QPoint& place) {
    QTest::mouseMove(Window().windowHandle(), place);
    QApplication::processEvents();
  }

  void MoveOver(const QWidget& control) { MoveOver(control, control.rect().center()); }
  void MoveOver(const QWidget& control, const QPoint& place) { MoveTo(control.mapTo(&Window(), place)); }
  void MoveOver(const QString& name) { MoveOver(Find<QWidget>(Window(), name)); }

  /// A place between two buttons.
  QPoint GapAfter(const QString& name) {
    const QRect button = Button(name).geometry();
    return {button.right() + 2, button.center().y()};
  }

  QStringList Outlined() {
    QStringList outlined;
    for (const ToolBarButton& button : kToolBar) {
      if (Button(button.Name).BorderStyle() == 1) outlined << button.Name;
    }
    return outlined;
  }

  /// With Image5 outlined, a move over this keeps the outline.
  void ExpectKept(const QWidget& control, const QPoint& place) {
    SCOPED_TRACE((control.objectName() + " " + control.metaObject()->className()).toStdString());
    MoveOver("Image5");
    MoveOver(control, place);
    EXPECT_EQ(Outlined(), QStringList{"Image5"});
  }
  void ExpectKept(const QWidget& control) { ExpectKept(control, control.rect().center()); }

  /// With Image5 outlined, a move over this place is one over the form's background.
  void ExpectGone(const QWidget& control, const QPoint& place) {
    SCOPED_TRACE((control.objectName() + " " + control.metaObject()->className()).toStdString());
    ASSERT_EQ(control.childAt(place), nullptr);
    MoveOver("Image5");
    ASSERT_EQ(Outlined(), QStringList{"Image5"});
    MoveOver(control, place);
    EXPECT_EQ(Outlined(), QStringList{});
  }

  QWidget& Part(const QString& name) { return Find<QWidget>(Window(), name); }
};

TEST_F(ToolBarOutlineTest, AtFirstNothingIsOutlined) {
  EXPECT_EQ(Outlined(), QStringList{});
}

TEST_F(ToolBarOutlineTest, OnlyTheButtonUnderThePointerIsOutlined) {
  for (const ToolBarButton& button : kToolBar) {
    MoveOver(button.Name);
    EXPECT_EQ(Outlined(), QStringList{button.Name});
  }
  MoveOver("Image6");
  EXPECT_EQ(Outlined(), QStringList{"Image6"});
}

TEST_F(ToolBarOutlineTest, TheOutlineCanBeSeen) {
  MoveOver("Image6");
  const QImage plain = Button("Image5").grab().toImage();
  MoveOver("Image5");
  const QImage outlined = Button("Image5").grab().toImage();
  EXPECT_NE(outlined, plain);
  MoveOver(Title());
  EXPECT_EQ(Button("Image5").grab().toImage(), outlined);
  MoveOver("Image6");
  EXPECT_EQ(Button("Image5").grab().toImage(), plain);
}

TEST_F(ToolBarOutlineTest, TheBareFormTakesItAway) {
  ExpectGone(Part("Background"), QPoint(3, 3));
  ExpectGone(Part("Background"), QPoint(3, Part("Background").height() / 2));
  ExpectGone(Part("Background"), QPoint(Part("Background").width() / 2, Part("Background").height() - 2));
  // Between the toolbar and the panes.
  ExpectGone(Part("Background"), QPoint(Part("ToolBar").x() + 5, Part("ToolBar").geometry().bottom() + 2));
}

TEST_F(ToolBarOutlineTest, TheGapsOfTheToolBarTakeItAway) {
  ExpectGone(Part("ToolBar"), GapAfter("Image4"));
  ExpectGone(Part("ToolBar"), GapAfter("Image2"));
  ExpectGone(Part("ToolBar"), QPoint(Part("ToolBar").width() - 3, Part("ToolBar").height() / 2));
}

TEST_F(ToolBarOutlineTest, TheGapsOfThePanesTakeItAway) {
  const auto below = [](const QWidget& control) { return control.geometry().bottomLeft() + QPoint(10, 3); };
  ExpectGone(Part("PagesPane"), below(Part("Label7")));
  ExpectGone(Part("WritingPart"), below(Note()));
  ExpectGone(Part("LinksPart"),
             QPoint(LinksGrid().geometry().right() + 8, LinksGrid().geometry().center().y()));
}

TEST_F(ToolBarOutlineTest, OtherControlsLeaveIt) {
  for (const char* label : {"Label1", "Label7", "Label4", "Label12"}) ExpectKept(Part(label));
  for (const QWidget* field : std::initializer_list<QWidget*>{&Title(), &Note(), &LinkText(), &MusicText()})
    ExpectKept(*field);
  ExpectKept(*Body().viewport());
  ExpectKept(*PagesGrid().viewport());
  ExpectKept(*LinksGrid().viewport());
  ExpectKept(*PagesGrid().horizontalHeader()->viewport());
  ExpectKept(LinkTarget());
  ExpectKept(LinkTarget(), LinkTarget().rect().center() + QPoint(LinkTarget().width() / 2 - 5, 0));
  ExpectKept(Part("Command4"));
  ExpectKept(Part("LengthBar"));
}

TEST_F(ToolBarOutlineTest, SplittersTheMenuBarAndTheStatusBarLeaveIt) {
  for (const char* name : {"Panes", "PagePane"}) ExpectKept(*Find<QSplitter>(Window(), name).handle(1));
  ExpectKept(*Window().menuBar());
  ExpectKept(*Window().statusBar());
}

TEST_F(ToolBarOutlineTest, LeavingTheWindowLeavesIt) {
  MoveOver("Image5");
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Window(), &leave);
  MoveTo(QPoint(-20, -20));
  EXPECT_EQ(Outlined(), QStringList{"Image5"});
}

TEST_F(ToolBarOutlineTest, AClickLeavesIt) {
  MoveOver("Image6");
  Click(Window(), "Image6");
  EXPECT_EQ(Outlined(), QStringList{"Image6"});
  MoveOver(Title());
  Click(Title());
  TypeInto(Title(), "X");
  EXPECT_EQ(Outlined(), QStringList{"Image6"});
}

TEST_F(ToolBarOutlineTest, APointerThatComesBackOverControlsFindsItAsItWas) {
  MoveOver("Image12");
  MoveOver(Title());
  MoveOver(*PagesGrid().viewport());
  EXPECT_EQ(Outlined(), QStringList{"Image12"});
  MoveOver(Part("Background"), QPoint(3, 3));
  EXPECT_EQ(Outlined(), QStringList{});
  MoveOver(Title());
  EXPECT_EQ(Outlined(), QStringList{});
}

}  // namespace
}  // namespace tavrel::test
