#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace tavrel {

/// Remembers which control of a window had the focus before the menu bar took it.
class LastFocus : public QObject {
  Q_OBJECT

 public:
  explicit LastFocus(QWidget& window);

  /// Null if no control has had it.
  QWidget* Control() const { return control_; }

 private:
  QPointer<QWidget> control_;
};

}  // namespace tavrel
