#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

namespace tavrel {

/// Shows how far a long work has come. It takes its room also while there is nothing to show.
class ProgressLine : public QProgressBar {
  Q_OBJECT

 public:
  explicit ProgressLine(QWidget* parent = nullptr);

  /// Lets the windows be redrawn now and then; never so often that the work becomes slow.
  void Tell(int done, int all);

 private:
  QElapsedTimer since_redraw_;
};

}  // namespace tavrel
