#pragma once

#include <QByteArray>
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

  /// The picture; empty if there is none.
  const QPixmap& Picture();

  /// Shows the picture in the bytes of a file; none if they hold none. It is decoded only while it can be
  /// seen.
  void SetPicture(const QByteArray& file_bytes);

 protected:
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintPlates(QPainter& painter) const;

  QByteArray file_bytes_;
  QPixmap picture_;
};

}  // namespace tavrel
