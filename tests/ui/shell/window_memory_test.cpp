#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QTest>

#include <memory>
#include <ostream>
#include <vector>

#include "remembered_window_test.h"

namespace tavrel::test {
namespace {

constexpr const char* kGeometry = "Main/geometry";
constexpr const char* kPanes = "Main/Panes";
constexpr const char* kPagePane = "Main/PagePane";

/// A splitter's look, to be compared.
struct Division {
  QList<int> Sizes;
  Qt::Orientation Orientation;
  int HandleWidth;
  bool IsCollapsible;

  bool operator==(const Division&) const = default;
};

void PrintTo(const Division& division, std::ostream* out) {
  for (const int size : division.Sizes) *out << size << ' ';
  *out << "orientation " << division.Orientation << " handle " << division.HandleWidth << " collapsible "
       << division.IsCollapsible;
}

class WindowMemoryTest : public RememberedWindowTest {
 protected:
  static Division DivisionOf(const Main& window, const QString& name) {
    const auto& splitter = Find<QSplitter>(window, name);
    return {.Sizes = splitter.sizes(),
            .Orientation = splitter.orientation(),
            .HandleWidth = splitter.handleWidth(),
            .IsCollapsible = splitter.childrenCollapsible()};
  }

  /// Drags a splitter's handle with the mouse.
  static void Drag(const Main& window, const QString& name, const QPoint& way) {
    QSplitterHandle* handle = Find<QSplitter>(window, name).handle(1);
    const QPoint grip = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, {}, grip);
    QTest::mouseMove(handle, grip + way);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, grip + way);
  }

  /// Checks that a window with these values comes up as one that remembers nothing.
  void ExpectTheDesign(const std::vector<std::pair<QString, QVariant>>& values, const std::string& what) {
    QFile::remove(MemoryFile());
    const auto designed = NewWindow();
    for (const auto& [key, value] : values) SetRemembered(key, value);
    const auto window = NewWindow();
    EXPECT_EQ(window->size(), designed->size()) << what;
    for (const char* name : {"Panes", "PagePane"}) {
      EXPECT_EQ(DivisionOf(*window, name), DivisionOf(*designed, name)) << what;
    }
  }
};

TEST_F(WindowMemoryTest, SizeAndSplittersComeBack) {
  QFile::remove(MemoryFile());
  auto window = NewWindow();
  const Division panes = DivisionOf(*window, "Panes");
  const Division page_pane = DivisionOf(*window, "PagePane");
  window->resize(window->minimumSizeHint() + QSize(20, 30));
  Settle();
  Drag(*window, "Panes", {35, 0});
  Drag(*window, "PagePane", {0, -25});
  const QSize size = window->size();
  const Division dragged_panes = DivisionOf(*window, "Panes");
  const Division dragged_page_pane = DivisionOf(*window, "PagePane");
  ASSERT_NE(dragged_panes.Sizes, panes.Sizes);
  ASSERT_NE(dragged_page_pane.Sizes, page_pane.Sizes);
  Remember(*window);
  window.reset();

  window = NewWindow();
  EXPECT_EQ(window->size(), size);
  EXPECT_EQ(DivisionOf(*window, "Panes"), dragged_panes);
  EXPECT_EQ(DivisionOf(*window, "PagePane"), dragged_page_pane);
}

TEST_F(WindowMemoryTest, SplittersThatWereNotShownStayAsTheyWere) {
  const Division designed = DivisionOf(*NewWindow(), "Panes");
  auto window = std::make_unique<Main>(Application);
  window->Form_Load();
  window->show();
  Remember(*window);
  window = NewWindow();
  EXPECT_EQ(DivisionOf(*window, "Panes"), designed);

  Drag(*window, "Panes", {35, 0});
  const Division dragged = DivisionOf(*window, "Panes");
  ASSERT_NE(dragged.Sizes, designed.Sizes);
  Remember(*window);
  window = std::make_unique<Main>(Application);
  window->Form_Load();
  {
    const QSettings memory(MemoryFile(), QSettings::IniFormat);
    RestoreWindow(*window, memory);
  }
  window->show();
  Remember(*window);
  EXPECT_EQ(DivisionOf(*NewWindow(), "Panes"), dragged);
}

TEST_F(WindowMemoryTest, AWindowThatFilledTheScreenDoesSoAgain) {
  auto window = NewWindow();
  window->showMaximized();
  Settle();
  Remember(*window);
  window = NewWindow();
  EXPECT_TRUE(window->isMaximized());
}

TEST_F(WindowMemoryTest, ItIsKeptApartFromTheProgramsSettings) {
  const auto window = NewWindow();
  const std::string settings = Folder.Read("tavrel.ini");
  Remember(*window);
  EXPECT_EQ(Folder.Read("tavrel.ini"), settings);
  EXPECT_TRUE(Folder.Has("windows.ini"));
}

TEST_F(WindowMemoryTest, WithoutAMemoryTheDesignStands) {
  ExpectTheDesign({}, "nothing remembered");
}

TEST_F(WindowMemoryTest, ValuesThatAreNoneLeaveTheDesign) {
  const std::vector<QVariant> nonsense = {QByteArray(),
                                          QByteArray("x"),
                                          QByteArray(1000, '\0'),
                                          QByteArray(1000, '\xFF'),
                                          QString("wide"),
                                          7,
                                          QStringList{"a", "b"},
                                          -1.5,
                                          true};
  for (const QVariant& value : nonsense) {
    ExpectTheDesign({{kGeometry, value}, {kPanes, value}, {kPagePane, value}},
                    QString(value.typeName()).toStdString());
  }
}

TEST_F(WindowMemoryTest, SplittersThatAreCutOffLeaveTheDesign) {
  Remember(*NewWindow());
  const QByteArray panes = Remembered(kPanes).toByteArray();
  ASSERT_GT(panes.size(), 8);
  for (qsizetype size = 0; size < panes.size(); ++size) {
    ExpectTheDesign({{kPanes, panes.left(size)}}, "the first " + std::to_string(size) + " bytes");
  }
}

TEST_F(WindowMemoryTest, ASplittersMemoryOfAnotherDirectionLeavesTheDesign) {
  Remember(*NewWindow());
  ExpectTheDesign({{kPanes, Remembered(kPagePane)}}, "a splitter of the other direction");
}

TEST_F(WindowMemoryTest, AnUnreadableFileLeavesTheDesign) {
  QFile::remove(MemoryFile());
  const auto designed = NewWindow();
  Folder.Write(
      "windows.ini",
      std::string("[Main\ngeometry=@ByteArray(\\x1\\xd9)\nPanes=@Variant(\\0\\0\\0\x7f)\n\xFF\xFE="));
  const auto window = NewWindow();
  EXPECT_EQ(window->size(), designed->size());
  EXPECT_EQ(DivisionOf(*window, "Panes"), DivisionOf(*designed, "Panes"));
}

TEST_F(WindowMemoryTest, AGeometryThatIsCutOffLeavesAWindowThatCanBeUsed) {
  Remember(*NewWindow());
  const QByteArray geometry = Remembered(kGeometry).toByteArray();
  ASSERT_GT(geometry.size(), 20);
  for (qsizetype size = 0; size < geometry.size(); ++size) {
    SetRemembered(kGeometry, geometry.left(size));
    const auto window = NewWindow();
    EXPECT_GE(window->width(), window->minimumSizeHint().width()) << size;
    EXPECT_GE(window->height(), window->minimumSizeHint().height()) << size;
    EXPECT_TRUE(window->screen()->availableGeometry().contains(window->pos())) << size;
    EXPECT_FALSE(window->isFullScreen()) << size;
  }
}

TEST_F(WindowMemoryTest, AWindowThatWasOffTheScreenComesBackOnIt) {
  for (const QPoint place :
       {QPoint(-5000, -5000), QPoint(9000, 100), QPoint(100, 9000), QPoint(100, -3000)}) {
    auto window = NewWindow();
    window->resize(window->minimumSizeHint());
    window->move(place);
    Settle();
    ASSERT_FALSE(window->screen()->geometry().intersects(window->frameGeometry()));
    Remember(*window);
    window = NewWindow();
    const QRect screen = window->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window->frameGeometry().topLeft() + QPoint(100, 5)))
        << "a window from " << place.x() << ", " << place.y() << " stands at " << window->x() << ", "
        << window->y();
  }
}

}  // namespace
}  // namespace tavrel::test
