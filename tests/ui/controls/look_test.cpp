#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QMessageBox>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <gtest/gtest.h>

#include "ui/controls/elided_label.h"
#include "ui/controls/length_bar.h"
#include "ui/controls/link_label.h"
#include "ui/controls/readable_style.h"

namespace tavrel::test {
namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(45, 45, 48));
  palette.setColor(QPalette::Link, Qt::blue);
  return palette;
}

/// The lightest and the darkest pixel of a widget, 0 to 255.
std::pair<int, int> Lightness(QWidget& widget) {
  const QImage seen = widget.grab().toImage();
  std::pair<int, int> range(255, 0);
  for (int x = 0; x < seen.width(); ++x) {
    for (int y = 0; y < seen.height(); ++y) {
      const int lightness = seen.pixelColor(x, y).lightness();
      range = {std::min(range.first, lightness), std::max(range.second, lightness)};
    }
  }
  return range;
}

/// The first and the last column in which a widget differs from its background.
std::pair<int, int> Columns(QWidget& widget) {
  const QImage seen = widget.grab().toImage();
  const QColor background = seen.pixelColor(seen.width() / 2, 0);
  std::pair<int, int> columns(seen.width(), -1);
  for (int x = 0; x < seen.width(); ++x) {
    for (int y = 0; y < seen.height(); ++y) {
      if (seen.pixelColor(x, y) != background)
        columns = {std::min(columns.first, x), std::max(columns.second, x)};
    }
  }
  return columns;
}

/// How many pixels a style paints of a splitter's handle.
int PaintedPixels(const QStyle& style, const QSize& handle) {
  QImage seen(handle, QImage::Format_RGB32);
  seen.fill(Qt::red);
  QPainter painter(&seen);
  QStyleOption option;
  option.rect = seen.rect();
  option.palette = QPalette(QColor(240, 240, 240));
  style.drawControl(QStyle::CE_Splitter, &option, &painter, nullptr);
  painter.end();
  int painted = 0;
  for (int x = 0; x < seen.width(); ++x) {
    for (int y = 0; y < seen.height(); ++y) painted += seen.pixelColor(x, y) == QColor(Qt::red) ? 0 : 1;
  }
  return painted;
}

TEST(LookTest, ASplitterHasAGripAndHidesNothingElseOfThePictureBehindIt) {
  for (const char* base : {"Windows", "Fusion"}) {
    ReadableStyle style;
    style.setBaseStyle(QStyleFactory::create(base));
    for (const QSize& handle : {QSize(6, 300), QSize(300, 6)}) {
      const int painted = PaintedPixels(style, handle);
      EXPECT_GE(painted, 6) << base;
      EXPECT_LE(painted, 60) << base;
    }
  }
}

TEST(LookTest, ALinkCanBeReadOnADarkWindow) {
  LinkLabel link;
  link.setPalette(DarkPalette());
  link.setText("https://example.org/");
  link.resize(link.sizeHint());
  EXPECT_GE(Lightness(link).second, 150);
}

TEST(LookTest, ALinkKeepsItsColourOnALightWindow) {
  LinkLabel link;
  QPalette light(QColor(240, 240, 240));
  light.setColor(QPalette::Link, Qt::darkBlue);
  link.setPalette(light);
  link.setText("MMMM");
  link.resize(link.sizeHint());
  EXPECT_LE(Lightness(link).first, QColor(Qt::darkBlue).lightness() + 10);
}

TEST(LookTest, AnAddressIsReadFromTheLeftInAMirroredWindow) {
  const auto seen = [](Qt::LayoutDirection direction) {
    QApplication::setLayoutDirection(direction);
    LinkLabel link;
    link.setText("https://example.org/");
    link.resize(link.sizeHint());
    return link.grab().toImage();
  };
  const QImage mirrored = seen(Qt::RightToLeft);
  EXPECT_EQ(mirrored, seen(Qt::LeftToRight));
}

TEST(LookTest, TheLengthBarTellsItsLengthInWords) {
  LengthBar bar;
  bar.SetWidth(1200);
  EXPECT_EQ(bar.accessibleDescription(), "1200 of 4000 characters");
}

TEST(LookTest, TheLengthBarGrowsFromTheSideWhereReadingBegins) {
  LengthBar bar;
  bar.resize(400, 6);
  bar.SetWidth(1500);
  const QColor filled = bar.palette().color(QPalette::Highlight);
  EXPECT_EQ(bar.grab().toImage().pixelColor(50, 3), filled);
  bar.setLayoutDirection(Qt::RightToLeft);
  const QImage mirrored = bar.grab().toImage();
  EXPECT_NE(mirrored.pixelColor(50, 3), filled);
  EXPECT_EQ(mirrored.pixelColor(349, 3), filled);
}

TEST(LookTest, AnElidedLabelStaysWithinItsWidth) {
  ElidedLabel label;
  label.setText(QString(200, 'm'));
  label.resize(120, 20);
  EXPECT_EQ(label.minimumSizeHint().width(), 0);
  EXPECT_GT(Columns(label).second, 60);
  EXPECT_LT(Columns(label).second, 120);
}

TEST(LookTest, AnElidedLabelStandsWhereItsTextsDirectionPutsIt) {
  for (const Qt::LayoutDirection window : {Qt::LeftToRight, Qt::RightToLeft}) {
    ElidedLabel label;
    label.setLayoutDirection(window);
    label.setText("City walk");
    label.resize(400, 20);
    EXPECT_LT(Columns(label).second, 200) << window;
    label.setText(QString::fromUtf8("\u05D0\u05D1\u05D2"));
    EXPECT_GT(Columns(label).first, 200) << window;
  }
}

TEST(LookTest, AnEmptyTickBoxCanBeSeenOnADarkWindow) {
  ReadableStyle style;
  QCheckBox box;
  box.setStyle(&style);
  box.setPalette(DarkPalette());
  box.resize(20, 20);
  EXPECT_GE(Lightness(box).second, 130);
}

TEST(LookTest, TheMessageIconsAreTheProgramsOwn) {
  const ReadableStyle style;
  for (const QStyle::StandardPixmap icon : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                                            QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
    const QImage own = style.standardIcon(icon, nullptr, nullptr).pixmap(48).toImage();
    const QImage plain = style.baseStyle()->standardIcon(icon).pixmap(48).toImage();
    EXPECT_EQ(own.size(), QSize(48, 48)) << icon;
    EXPECT_NE(own, plain) << icon;
  }
}

}  // namespace
}  // namespace tavrel::test
