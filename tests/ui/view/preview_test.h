#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include <cmath>
#include <numbers>
#include <string>
#include <variant>

#include "ui/view/pod_view.h"
#include "ui/view/view_test.h"

namespace tavrel::test {

/// A screen in words: the title, and the lines with "[" and "]" round what the centre button would follow.
inline std::string InWords(const NoteScreen& note) {
  std::string text = note.Shown().Text;
  if (note.CurrentLink()) {
    const NoteLink& link = note.Shown().Links[*note.CurrentLink()];
    text.insert(link.Start + link.Length, "]").insert(link.Start, "[");
  }
  return note.Shown().Title + "|" + text;
}

inline std::string InWords(const NotesMenu& menu) {
  std::string rows = "Notes";
  for (std::size_t row = 0; row < menu.Entries().size(); ++row) {
    const std::string& title = menu.Entries()[row].Title;
    rows += "|" + (row == menu.Current() ? "[" + title + "]" : title);
  }
  return rows;
}

inline std::string InWords(const ScreenMessage& message) {
  return message.Title + "|" + message.Sentence;
}

/// Where a person sees the parts of the device.
struct Drawing {
  QRect Screen;
  QPointF Hub;  ///< the middle of the wheel
  double Radius = 0;
  QImage Picture;

  /// A point on the ring, so many degrees clockwise from the right.
  QPoint OnRing(double degrees) const {
    const double angle = degrees * std::numbers::pi / 180;
    return (Hub + QPointF(std::cos(angle), std::sin(angle)) * Radius * 0.7).toPoint();
  }
};

/// The rectangle round all points of one colour.
inline QRect Around(const QImage& picture, QRgb colour, int first_row) {
  QRect found;
  for (int y = first_row; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == colour) found = found.united(QRect(x, y, 1, 1));
    }
  }
  return found;
}

/// Looks at the preview, which is open, and uses it.
class PreviewTest : public ViewTest {
 protected:
  static constexpr int kSoon = 5000;  // milliseconds, on a busy computer
  static constexpr QRgb kScreenEdge = 0xFF505458;
  static constexpr QRgb kRing = 0xFFDCDFE2;

  void OpenPreview() {
    PressKey(Window(), Qt::Key_F5);
    Settle();
  }

  PodView& Device() { return Find<PodView>(Window(), "Device"); }
  std::string Screen() {
    return std::visit([](const auto& screen) { return InWords(screen); }, Device().Browser().Shown());
  }
  std::string Notice() { return Find<QLabel>(Window(), "Notice").text().toStdString(); }

  /// Waits until the screen shows this.
  bool Comes(const std::string& screen) {
    return QTest::qWaitFor([&] { return Screen() == screen; }, kSoon);
  }

  /// The first line on the screen.
  std::size_t Top() { return std::get<NoteScreen>(Device().Browser().Shown()).Top(); }

  /// Clicks a box, which is as wide as the panel, where its tick is.
  void Tick(const QString& name) {
    auto& box = Find<QCheckBox>(Window(), name);
    QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
  }

  /// Chooses in a list with the keyboard.
  void ChooseIn(const QString& list, int index) {
    auto& box = Find<QComboBox>(Window(), list);
    PressKey(box, Qt::Key_Home);
    for (int row = 0; row < index; ++row) PressKey(box, Qt::Key_Down);
    ASSERT_EQ(box.currentIndex(), index);
  }

  Drawing Look() {
    Drawing drawing;
    drawing.Picture = Device().grab().toImage().convertToFormat(QImage::Format_RGB32);
    drawing.Screen = Around(drawing.Picture, kScreenEdge, 0).adjusted(1, 1, -1, -1);
    const QRect ring = Around(drawing.Picture, kRing, drawing.Screen.bottom() + 2);
    drawing.Hub = QRectF(ring).center();
    drawing.Radius = ring.width() / 2.0;
    return drawing;
  }

  /// The device's screen, one point for each of its own.
  QImage ScreenPicture(int scale = 2) {
    const Drawing drawing = Look();
    return drawing.Picture.copy(drawing.Screen)
        .scaled(drawing.Screen.size() / scale, Qt::IgnoreAspectRatio, Qt::FastTransformation);
  }

  void ClickAt(const QPoint& point) { QTest::mouseClick(&Device(), Qt::LeftButton, {}, point); }
  void PressAt(const QPoint& point) { QTest::mousePress(&Device(), Qt::LeftButton, {}, point); }
  void ReleaseAt(const QPoint& point) { QTest::mouseRelease(&Device(), Qt::LeftButton, {}, point); }
  void MoveTo(const QPoint& point) {
    QMouseEvent move(QEvent::MouseMove, point, Device().mapToGlobal(point), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&Device(), &move);
  }

  /// Drags round the wheel in steps of 5 degrees, clockwise if `to` is the larger angle.
  void DragRound(double from, double to) {
    constexpr double kStep = 5;
    const Drawing drawing = Look();
    const int steps = static_cast<int>(std::lround(std::abs(to - from) / kStep));
    PressAt(drawing.OnRing(from));
    for (int step = 1; step <= steps; ++step) MoveTo(drawing.OnRing(from + (to - from) * step / steps));
    ReleaseAt(drawing.OnRing(to));
  }

  /// Turns the mouse's wheel; a notch towards the person is -120.
  void TurnWheel(int by) {
    const QPointF point(Device().rect().center());
    QWheelEvent turn(point, Device().mapToGlobal(point), {}, {0, by}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(&Device(), &turn);
  }
};

}  // namespace tavrel::test
