#pragma once

#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace tavrel::test {

/// Plays the user in modal windows, which keep their caller waiting. It polls for the window that is up and
/// plays the next step on it. A window that no step waits for, or one that a step leaves open, is a fault: it
/// is noted and the window closed so that the run can end.
class Robot : public QObject {
  Q_OBJECT

 public:
  using Step = std::function<void(QWidget& window)>;

  Robot();

  /// When a modal window with this object name is up, plays `step` on it, which should close it.
  void Expect(const QString& window, Step step);

  /// How many steps are still to be played.
  int StepsLeft() const { return static_cast<int>(steps_.size()); }
  const std::vector<QString>& Faults() const { return faults_; }

 private:
  struct Expected {
    QString Window;
    Step Play;
  };

  void Poll();
  void Play(const Expected& step, QWidget& window);
  void CloseUnexpected(QWidget& window);

  std::deque<Expected> steps_;
  std::vector<const QWidget*> playing_;
  std::vector<QString> faults_;
  int polls_without_step_ = 0;
};

}  // namespace tavrel::test
