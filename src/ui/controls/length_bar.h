#pragma once

#include <QWidget>

namespace tavrel {

/// A bar that grows with the length of a text, up to a fixed full length. Its unit is the twip, 1/1440 of an
/// inch on a screen of 96 dots per inch, so 15 twips are one pixel.
class LengthBar : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kFullWidth = 4000;

  explicit LengthBar(QWidget* parent = nullptr);

  /// The bar's width in twips, 0 to 4000.
  int Width() const { return width_; }
  void SetWidth(int twips);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int width_ = 0;
};

}  // namespace tavrel
