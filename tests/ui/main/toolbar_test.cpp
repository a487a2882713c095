#include "ui/main/toolbar_test.h"

#include <QAccessible>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QTest>

#include <set>

#include "ui/shell/look.h"

namespace tavrel::test {
namespace {

constexpr int kIconSize = 24;

bool IsBlank(const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (qAlpha(picture.pixel(x, y)) != 0) return false;
    }
  }
  return true;
}

std::string BytesOf(const QImage& picture) {
  return {reinterpret_cast<const char*>(picture.constBits()),
          static_cast<std::size_t>(picture.sizeInBytes())};
}

/// Counts how often a control is told that it has lost the focus.
class FocusWatch : public QObject {
 public:
  explicit FocusWatch(QWidget& control) { control.installEventFilter(this); }

  int Losses = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::FocusOut) ++Losses;
    return false;
  }
};

TEST_F(ToolBarTest, HoldsSeventeenButtonsFromLeftToRight) {
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(Window().findChildren<PictureButton*>().size(), 17);
  int right = 0;
  for (const ToolBarButton& expected : kToolBar) {
    const PictureButton& button = Button(expected.Name);
    const int left = button.mapTo(&Window(), QPoint()).x();
    EXPECT_GE(left, right) << expected.Tip;
    EXPECT_TRUE(button.isVisible()) << expected.Tip;
    right = left + button.width();
  }
  EXPECT_LE(right, Window().width());
}

TEST_F(ToolBarTest, EveryButtonSaysWhatItDoes) {
  for (const ToolBarButton& expected : kToolBar) {
    PictureButton& button = Button(expected.Name);
    EXPECT_EQ(button.toolTip(), expected.Tip);
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->text(QAccessible::Name), expected.Tip);
    EXPECT_EQ(spoken->role(), QAccessible::Button);
  }
}

TEST_F(ToolBarTest, EveryButtonHasAPictureOfItsOwn) {
  InitResources();
  std::set<std::string> seen;
  for (const ToolBarButton& expected : kToolBar) {
    const QImage picture = Button(expected.Name).icon().pixmap(kIconSize).toImage();
    EXPECT_EQ(picture.width(), kIconSize) << expected.Tip;
    EXPECT_FALSE(IsBlank(picture)) << expected.Tip;
    EXPECT_TRUE(seen.insert(BytesOf(picture)).second) << expected.Tip << " looks like another one";
  }
}

TEST_F(ToolBarTest, EveryPictureIsThereForFinerScreensToo) {
  InitResources();
  int pictures = 0;
  for (const QString& file : QDir(":/icons").entryList({"*.png"})) {
    if (file.contains('@') || file.startsWith("tavrel-")) continue;
    ++pictures;
    const QString base = ":/icons/" + file.chopped(4);
    const int width = QImage(base + ".png").width();
    for (const int scale : {2, 3}) {
      const QImage finer(QString("%1@%2x.png").arg(base).arg(scale));
      EXPECT_EQ(finer.width(), scale * width) << base.toStdString();
      EXPECT_FALSE(IsBlank(finer)) << base.toStdString();
    }
  }
  EXPECT_GE(pictures, 17);
}

TEST_F(ToolBarTest, TheCoverHidesItWhileNoDocumentIsOpen) {
  const auto shown = [this] {
    int count = 0;
    for (const ToolBarButton& button : kToolBar) count += Button(button.Name).isVisible() ? 1 : 0;
    return count;
  };
  EXPECT_EQ(shown(), 0);
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(shown(), 17);
  Choose("FileClose");
  EXPECT_EQ(shown(), 0);
}

TEST_F(ToolBarTest, PressingAButtonNeverTakesTheFocus) {
  OpenDocument("Guide.dat", kGuide);
  for (QWidget* control : std::initializer_list<QWidget*>{
           &Title(), &Body(), &LinkText(), &LinkTarget().Field(), &PagesGrid(), &LinksGrid()}) {
    control->setFocus();
    FocusWatch watch(*control);
    for (const ToolBarButton& button : kToolBar) {
      QTest::mousePress(&Button(button.Name), Qt::LeftButton);
      EXPECT_TRUE(control->hasFocus()) << button.Tip;
      // Let go elsewhere, so that no command runs.
      QTest::mouseRelease(&Button(button.Name), Qt::LeftButton, {}, QPoint(-50, -50));
      EXPECT_TRUE(control->hasFocus()) << button.Tip;
    }
    EXPECT_EQ(watch.Losses, 0);
  }
  EXPECT_EQ(State.Pages[1],
            "<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
            "<linkto>002</linkto><linktext>Five</linktext><linkto>005</linkto></link>");
}

TEST_F(ToolBarTest, CopyingALinkThatIsBeingTypedLeavesItInItsField) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(LinkText(), "half a li");
  Click(Window(), "Image6");
  EXPECT_TRUE(LinkText().hasFocus());
  EXPECT_EQ(LinkText().Bytes(), "half a li");
  EXPECT_EQ(LinksGrid().TextMatrix(1, 0), "Two");
}

TEST_F(ToolBarTest, OtherMouseButtonsRunNothing) {
  OpenDocument("Guide.dat", kGuide);
  const std::size_t messages = Messages.Shown.size();
  for (const Qt::MouseButton mouse_button : {Qt::RightButton, Qt::MiddleButton})
    QTest::mouseClick(&Button("Image4"), mouse_button);
  EXPECT_EQ(Messages.Shown.size(), messages);
}

}  // namespace
}  // namespace tavrel::test
