#pragma once

#include <QPixmap>
#include <QWidget>

namespace tavrel {

/// A widget with a background picture that fills it, cut at the edges rather than distorted. What stands on
/// the picture without a background of its own, such as a label, gets a plate in the window's colour, so that
/// it can be read over any picture.
class PictureArea : public QWidget {
  Q_OBJECT

 public:
  explicit PictureArea(QWidget* parent = nullptr);

  const QPixmap& Picture() const { return picture_; }
  void SetPicture(const QPixmap& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintPlates(QPainter& painter) const;

  QPixmap picture_;
  QPixmap scaled_;
};

}  // namespace tavrel
