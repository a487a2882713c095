#pragma once

#include <QLabel>

namespace tavrel {

/// A line of text that ends in "..." where its place is too narrow; the whole of it is then its tooltip.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tavrel
