#pragma once

#include <QWidget>

#include "core/preview/pod_browser.h"
#include "ui/view/screen_picture.h"

namespace tavrel {

/// A drawing of the device that can be used: its screen, and the wheel with its buttons.
class PodView : public QWidget {
  Q_OBJECT

 public:
  explicit PodView(QWidget* parent = nullptr);

  PodBrowser& Browser() { return browser_; }
  /// After the browser has changed.
  void Refresh();
  /// `scale`: so many of this display's points for one of the device's, 1 to 3.
  void SetScreen(const ScreenModel& model, int scale);

  QSize sizeHint() const override { return minimumSize(); }

 signals:
  /// The centre button was pressed on a link.
  void Pressed(const Followed& followed);
  /// Whatever the device shows may have changed.
  void Moved();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  enum class Part { None, Ring, Menu, Centre };

  QRect ScreenArea() const;
  QRectF WheelArea() const;
  Part PartAt(const QPointF& point) const;
  double AngleAt(const QPointF& point) const;
  void Turn(int notches);
  void Press();
  void GoBack();

  ScreenLook look_;
  int scale_ = 2;
  PodBrowser browser_;
  int wheel_rest_ = 0;  ///< of the mouse wheel's turning, less than a notch
  Part pressed_ = Part::None;
  double last_angle_ = 0;
  double turned_ = 0;  ///< round the wheel while dragging, less than a notch
  bool was_turned_ = false;
};

}  // namespace tavrel
