#include "support/robot.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <exception>
#include <utility>

namespace tavrel::test {
namespace {

constexpr int kPollInterval = 5;
constexpr int kPatience = 600;  // polls

}  // namespace

Robot::Robot() {
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, &Robot::Poll);
  timer->start(kPollInterval);
}

void Robot::Expect(const QString& window, Step step) {
  steps_.push_back({window, std::move(step)});
}

void Robot::Poll() {
  QWidget* window = QApplication::activeModalWidget();
  const bool busy =
      window == nullptr || std::find(playing_.begin(), playing_.end(), window) != playing_.end();
  if (busy) {
    polls_without_step_ = 0;
    return;
  }
  if (steps_.empty() || steps_.front().Window != window->objectName()) {
    if (++polls_without_step_ > kPatience) CloseUnexpected(*window);
    return;
  }
  polls_without_step_ = 0;
  playing_.push_back(window);
  Expected step = std::move(steps_.front());
  steps_.pop_front();
  // A timer does not fire again inside its own handler, but a step may open a further window.
  QMetaObject::invokeMethod(
      this, [this, window, step = std::move(step)] { Play(step, *window); }, Qt::QueuedConnection);
}

void Robot::Play(const Expected& step, QWidget& window) {
  try {
    step.Play(window);
  } catch (const std::exception& error) {
    faults_.push_back(step.Window + ": " + error.what());
    window.close();
  }
  std::erase(playing_, &window);
}

void Robot::CloseUnexpected(QWidget& window) {
  faults_.push_back("no step for window '" + window.objectName() + "' (" + window.windowTitle() + ")");
  polls_without_step_ = 0;
  window.close();
}

}  // namespace tavrel::test
