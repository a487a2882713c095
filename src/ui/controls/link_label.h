#pragma once

#include <QAbstractButton>

namespace tavrel {

/// A line of text that can be clicked, or chosen with Tab and Enter, like a link on a page.
class LinkLabel : public QAbstractButton {
  Q_OBJECT

 public:
  explicit LinkLabel(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tavrel
