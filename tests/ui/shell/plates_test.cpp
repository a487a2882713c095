#include <QApplication>
#include <QImage>
#include <QLabel>

#include <cmath>
#include <ostream>

#include "ui/controls/picture_button.h"
#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

/// A picture behind the words, and the colours of the windows.
struct Look {
  const char* Name;
  QColor First;
  QColor Second;  ///< of every other square
  bool IsDark;
};

std::ostream& operator<<(std::ostream& out, const Look& look) {
  return out << look.Name;
}

QPalette DarkPalette() {
  QPalette palette(QColor(50, 50, 50), QColor(42, 42, 42));
  palette.setColor(QPalette::WindowText, Qt::white);
  return palette;
}

/// The lightness of a colour as the eye takes it.
double Luminance(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return a > b ? a / b : b / a;
}

class PlatesTest : public ShellTest, public testing::WithParamInterface<Look> {
 protected:
  void SetUp() override {
    old_palette_ = QApplication::palette();
    if (GetParam().IsDark) QApplication::setPalette(DarkPalette());
    for (const char* name : {"Skin1.jpg", "Skin2.jpg", "SkinBackup.jpg"}) WriteSquares(name);
  }

  void TearDown() override { QApplication::setPalette(old_palette_); }

  void WriteSquares(const std::string& name) {
    constexpr int kSquare = 8;
    QImage picture(1024, 768, QImage::Format_RGB32);
    for (int x = 0; x < picture.width(); ++x) {
      for (int y = 0; y < picture.height(); ++y)
        picture.setPixelColor(x, y,
                              (x / kSquare + y / kSquare) % 2 == 0 ? GetParam().First : GetParam().Second);
    }
    ASSERT_TRUE(picture.save(QString::fromStdString((Folder.Path() / name).string()), "PNG"));
  }

  /// The labels that stand on an area.
  static std::vector<const QLabel*> Labels(PictureArea& area) {
    std::vector<const QLabel*> labels;
    for (const QLabel* label : area.findChildren<QLabel*>()) {
      if (label->isVisible() && !label->objectName().startsWith("qt_")) labels.push_back(label);
    }
    return labels;
  }

  /// The pixels just around a label's words, as they are on the screen.
  static std::vector<QColor> Around(const QLabel& label, PictureArea& area) {
    const QImage screen = area.grab().toImage();
    const QPoint corner = label.mapTo(&area, QPoint());
    std::vector<QColor> colours;
    for (const QPoint offset : {QPoint(-2, label.height() / 2), QPoint(-2, label.height() / 2 - 4),
                                QPoint(-2, label.height() / 2 + 4)}) {
      colours.push_back(screen.pixelColor(corner + offset));
    }
    return colours;
  }

  static void ExpectLikeTheWindow(const QColor& seen, const QWidget& widget, const std::string& what) {
    constexpr int kNear = 45;
    const QColor window = widget.palette().color(QPalette::Window);
    EXPECT_LE(std::abs(seen.red() - window.red()), kNear) << what;
    EXPECT_LE(std::abs(seen.green() - window.green()), kNear) << what;
    EXPECT_LE(std::abs(seen.blue() - window.blue()), kNear) << what;
    EXPECT_GE(Contrast(seen, widget.palette().color(QPalette::WindowText)), 4.5) << what;
  }

  static void ExpectPlates(PictureArea& area, std::size_t labels) {
    EXPECT_EQ(Labels(area).size(), labels);
    for (const QLabel* label : Labels(area)) {
      for (const QColor& seen : Around(*label, area))
        ExpectLikeTheWindow(seen, *label, label->objectName().toStdString());
    }
  }

  /// Whether a point of an area shows the picture itself.
  static void ExpectThePicture(PictureArea& area, const QPoint& point) {
    const QColor seen = area.grab().toImage().pixelColor(point);
    const auto is = [&seen](const QColor& colour) {
      return std::abs(seen.lightness() - colour.lightness()) < 3;
    };
    EXPECT_TRUE(is(GetParam().First) || is(GetParam().Second)) << seen.name().toStdString();
  }

 private:
  QPalette old_palette_;
};

TEST_P(PlatesTest, TheWordsOnTheCoverStandOnAPlate) {
  Start();
  Settle();
  ExpectPlates(Cover(), 2);
  const auto& words = Find<QWidget>(Window(), "CoverText");
  const QImage screen = Cover().grab().toImage();
  ExpectLikeTheWindow(screen.pixelColor(words.geometry().topLeft() + QPoint(8, 8)), words,
                      "the plate's corner");
  ExpectLikeTheWindow(screen.pixelColor(words.geometry().bottomRight() - QPoint(8, 8)), words,
                      "the plate's corner");
}

TEST_P(PlatesTest, EveryLabelOfTheEditorStandsOnAPlate) {
  OpenDocument("Guide.dat", kGuide);
  Settle();
  ExpectPlates(Background(), 7);
}

TEST_P(PlatesTest, TheToolbarStandsOnAPlate) {
  OpenDocument("Guide.dat", kGuide);
  Settle();
  const auto& bar = Find<QWidget>(Window(), "ToolBar");
  const auto& first = Find<PictureButton>(Window(), "Image2");
  const QImage screen = Background().grab().toImage();
  // Between a button's edge and its picture.
  ExpectLikeTheWindow(screen.pixelColor(first.mapTo(&Background(), QPoint(2, first.height() / 2))), bar,
                      "Image2");
}

TEST_P(PlatesTest, ThePictureIsSeenBetweenThePlates) {
  Start();
  Settle();
  ExpectThePicture(Cover(), {12, 12});
  OpenDocument("Guide.dat", kGuide);
  Settle();
  ExpectThePicture(Background(), {4, Background().height() - 5});
}

TEST_P(PlatesTest, TheLabelsOfTheBackupDialogStandOnPlates) {
  Player.Expect("Backup", [](QWidget& dialog) {
    ExpectPlates(Find<PictureArea>(dialog, "Background"), 2);
    dialog.close();
  });
  Choose("FileBackup");
}

INSTANTIATE_TEST_SUITE_P(Looks, PlatesTest,
                         testing::Values(Look{"black", Qt::black, Qt::black, false},
                                         Look{"white", Qt::white, Qt::white, false},
                                         Look{"squares", Qt::black, Qt::white, false},
                                         Look{"black in dark windows", Qt::black, Qt::black, true},
                                         Look{"white in dark windows", Qt::white, Qt::white, true},
                                         Look{"squares in dark windows", Qt::black, Qt::white, true}));

}  // namespace
}  // namespace tavrel::test
