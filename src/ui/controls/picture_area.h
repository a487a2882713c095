#pragma once

#include <QPixmap>
#include <QWidget>

namespace tavrel {

/// A widget with a background picture that fills it, cut at the edges rather than distorted.
class PictureArea : public QWidget {
  Q_OBJECT

 public:
  explicit PictureArea(QWidget* parent = nullptr);

  const QPixmap& Picture() const { return picture_; }
  void SetPicture(const QPixmap& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
  QPixmap scaled_;
};

}  // namespace tavrel
