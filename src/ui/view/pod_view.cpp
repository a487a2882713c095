#include "ui/view/pod_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace tavrel {
namespace {

constexpr int kFrame = 14;        // of the body round screen and wheel
constexpr int kLeastWheel = 110;  // its diameter
constexpr double kCentrePart = 0.36;
constexpr double kNotch = 24;  // degrees
constexpr int kWheelStep = 120;

int WheelDiameter(const QSize& screen) {
  return std::max(kLeastWheel, screen.width() / 2);
}

}  // namespace

PodView::PodView(QWidget* parent) : QWidget(parent), look_(kScreenModels.at(0)), browser_(look_.Layout()) {
  setFocusPolicy(Qt::StrongFocus);
  // Left and right of the device are the same in every language.
  setLayoutDirection(Qt::LeftToRight);
  SetScreen(kScreenModels.at(0), scale_);
}

void PodView::SetScreen(const ScreenModel& model, int scale) {
  look_ = ScreenLook(model);
  scale_ = scale;
  browser_.SetLayout(look_.Layout());
  const QSize screen(model.Width * scale, model.Height * scale);
  const int wheel = WheelDiameter(screen);
  setFixedSize(std::max(screen.width(), wheel) + 2 * kFrame, screen.height() + wheel + 3 * kFrame);
  Refresh();
}

void PodView::Refresh() {
  update();
  emit Moved();
}

QRect PodView::ScreenArea() const {
  const int width = look_.Model.Width * scale_;
  return {(this->width() - width) / 2, kFrame, width, look_.Model.Height * scale_};
}

QRectF PodView::WheelArea() const {
  const int diameter = WheelDiameter(ScreenArea().size());
  return {(width() - diameter) / 2.0, ScreenArea().bottom() + 1.0 + kFrame, double(diameter),
          double(diameter)};
}

void PodView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(0x90, 0x94, 0x98), hasFocus() ? 2 : 1));
  painter.setBrush(QColor(0xF2, 0xF2, 0xEE));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kFrame, kFrame);

  const QRectF wheel = WheelArea();
  painter.setPen(QColor(0xA8, 0xAC, 0xB0));
  painter.setBrush(QColor(0xDC, 0xDF, 0xE2));
  painter.drawEllipse(wheel);
  painter.setBrush(QColor(0xF2, 0xF2, 0xEE));
  const double centre = wheel.width() * kCentrePart;
  painter.drawEllipse(wheel.center(), centre / 2, centre / 2);
  QFont font = painter.font();
  font.setPixelSize(std::max(11, static_cast<int>(wheel.width() / 13)));
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(QColor(0x60, 0x64, 0x68));
  painter.drawText(QRectF(wheel.left(), wheel.top(), wheel.width(), (wheel.height() - centre) / 2),
                   Qt::AlignCenter, "MENU");

  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(ScreenArea().adjusted(-1, -1, 1, 1), QColor(0x50, 0x54, 0x58));
  painter.drawImage(ScreenArea(), PictureOf(browser_.Shown(), look_));
}

void PodView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
      return Turn(1);
    case Qt::Key_Up:
    case Qt::Key_Left:
      return Turn(-1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      return Press();
    case Qt::Key_Escape:
      return GoBack();
    default:
      QWidget::keyPressEvent(event);
  }
}

void PodView::wheelEvent(QWheelEvent* event) {
  wheel_rest_ -= event->angleDelta().y();
  Turn(wheel_rest_ / kWheelStep);
  wheel_rest_ %= kWheelStep;
  event->accept();
}

PodView::Part PodView::PartAt(const QPointF& point) const {
  const QRectF wheel = WheelArea();
  const QPointF from_centre = point - wheel.center();
  const double distance = std::hypot(from_centre.x(), from_centre.y());
  if (distance > wheel.width() / 2) return Part::None;
  if (distance < wheel.width() * kCentrePart / 2) return Part::Centre;
  const bool is_above = from_centre.y() < 0 && std::abs(from_centre.x()) < -from_centre.y();
  return is_above ? Part::Menu : Part::Ring;
}

/// Clockwise, in degrees.
double PodView::AngleAt(const QPointF& point) const {
  constexpr double kHalfTurn = 180;
  const QPointF from_centre = point - WheelArea().center();
  return std::atan2(from_centre.y(), from_centre.x()) * kHalfTurn / std::numbers::pi;
}

void PodView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  pressed_ = PartAt(event->position());
  last_angle_ = AngleAt(event->position());
  turned_ = 0;
  was_turned_ = false;
}

void PodView::mouseMoveEvent(QMouseEvent* event) {
  if (pressed_ != Part::Ring && pressed_ != Part::Menu) return;
  const double angle = AngleAt(event->position());
  turned_ += std::remainder(angle - last_angle_, 360.0);
  last_angle_ = angle;
  const int notches = static_cast<int>(turned_ / kNotch);
  if (notches == 0) return;
  turned_ -= notches * kNotch;
  was_turned_ = true;
  Turn(notches);
}

void PodView::mouseReleaseEvent(QMouseEvent* event) {
  const Part pressed = std::exchange(pressed_, Part::None);
  if (event->button() != Qt::LeftButton || was_turned_ || PartAt(event->position()) != pressed) return;
  if (pressed == Part::Centre) Press();
  if (pressed == Part::Menu) GoBack();
}

void PodView::Turn(int notches) {
  if (notches == 0) return;
  for (; notches > 0; --notches) browser_.TurnForward();
  for (; notches < 0; ++notches) browser_.TurnBack();
  Refresh();
}

void PodView::Press() {
  const Followed followed = browser_.Press();
  Refresh();
  emit Pressed(followed);
}

void PodView::GoBack() {
  browser_.Menu();
  Refresh();
}

}  // namespace tavrel
