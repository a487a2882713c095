#include <QBuffer>

#include <gtest/gtest.h>

#include "ui/controls/length_bar.h"
#include "ui/controls/picture_area.h"

namespace tavrel::test {
namespace {

/// The bytes of a picture file without loss.
QByteArray FileOf(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  EXPECT_TRUE(image.save(&buffer, "PNG"));
  return bytes;
}

QByteArray RedWithBlueEdges() {
  QImage image(300, 100, QImage::Format_RGB32);
  image.fill(Qt::blue);
  for (int x = 100; x < 200; ++x) {
    for (int y = 0; y < 100; ++y) image.setPixelColor(x, y, Qt::red);
  }
  return FileOf(image);
}

TEST(PictureAreaTest, ThePictureFillsTheAreaAndIsCutAtItsEdges) {
  PictureArea area;
  area.resize(100, 100);
  area.SetPicture(RedWithBlueEdges());
  const QImage seen = area.grab().toImage();
  EXPECT_EQ(seen.pixelColor(3, 50), QColor(Qt::red));
  EXPECT_EQ(seen.pixelColor(96, 50), QColor(Qt::red));
}

TEST(PictureAreaTest, AnEmptyPictureLeavesTheWindowsBackground) {
  PictureArea area;
  area.resize(20, 20);
  const QColor plain = area.grab().toImage().pixelColor(10, 10);
  area.SetPicture(RedWithBlueEdges());
  EXPECT_NE(area.grab().toImage().pixelColor(10, 10), plain);
  area.SetPicture({});
  EXPECT_EQ(area.grab().toImage().pixelColor(10, 10), plain);
}

TEST(LengthBarTest, FifteenTwipsAreOnePixel) {
  LengthBar bar;
  bar.resize(400, 6);
  bar.SetWidth(1500);
  const QImage seen = bar.grab().toImage();
  const QColor filled = bar.palette().color(QPalette::Highlight);
  EXPECT_EQ(seen.pixelColor(50, 3), filled);
  EXPECT_EQ(seen.pixelColor(95, 3), filled);
  EXPECT_NE(seen.pixelColor(102, 3), filled);
}

TEST(LengthBarTest, TheWidthStaysWithinItsBounds) {
  LengthBar bar;
  bar.SetWidth(4001);
  EXPECT_EQ(bar.Width(), 4000);
  bar.SetWidth(-1);
  EXPECT_EQ(bar.Width(), 0);
}

TEST(PictureAreaTest, AVeryNarrowPictureFillsTheAreaToo) {
  QImage narrow(1, 3000, QImage::Format_RGB32);
  narrow.fill(Qt::red);
  PictureArea area;
  area.resize(1000, 600);
  area.SetPicture(FileOf(narrow));
  EXPECT_EQ(area.grab().toImage().pixelColor(999, 599), QColor(Qt::red));
}

}  // namespace
}  // namespace tavrel::test
