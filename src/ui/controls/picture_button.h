#pragma once

#include <QAbstractButton>

namespace tavrel {

/// A small picture that runs a command. It never takes the focus, so that a command acts where the user is.
/// Its outline is a state that others set, not a look of its own under the pointer.
class PictureButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit PictureButton(QWidget* parent = nullptr);

  /// 1: outlined, 0: not.
  int BorderStyle() const { return border_style_; }
  void SetBorderStyle(int style);

  QSize sizeHint() const override;

 signals:
  /// The pointer has moved over the picture.
  void MouseMove();

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int border_style_ = 0;
};

}  // namespace tavrel
