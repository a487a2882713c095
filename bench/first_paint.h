#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace tavrel::bench {

/// Waits for the first window that the application paints and then runs an action once, after all of it has
/// been painted.
class FirstPaint : public QObject {
 public:
  /// Watches the whole application.
  explicit FirstPaint(std::function<void(QWidget& window)> action);

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  std::function<void(QWidget&)> action_;
};

/// Tells the starting process how much memory this one holds and ends at once.
[[noreturn]] void ReportAndEnd();

}  // namespace tavrel::bench
