#pragma once

#include <QLabel>

namespace tavrel {

/// A line of text that can be clicked, or chosen with Tab and Enter, like a link on a page.
class LinkLabel : public QLabel {
  Q_OBJECT

 public:
  explicit LinkLabel(QWidget* parent = nullptr);

 signals:
  void Click();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tavrel
