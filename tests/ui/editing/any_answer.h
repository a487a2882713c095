#pragma once

#include <QObject>

#include <cstddef>
#include <functional>
#include <vector>

class QPushButton;
class QWidget;

namespace tavrel::test {

/// Answers whatever dialogs come up without knowing them: fills their fields with numbers, selects the first
/// row of their lists and clicks their buttons, first the one whose turn it is.
class AnyAnswer : public QObject {
 public:
  /// `look` is called while a dialog is up, before it is answered.
  explicit AnyAnswer(std::function<void()> look);

  /// Which button of the next dialog is clicked first, and which after it if the dialog is still there.
  void Begin(std::size_t first, std::size_t second);
  /// Dialogs from now on are somebody else's.
  void End() { is_answering_ = false; }

  /// Of the dialog that was answered since: how many buttons there were, and whether the first one left it
  /// open.
  std::size_t Buttons() const { return buttons_; }
  bool WasLeftOpen() const { return left_open_; }

  /// Answers a window that stands beside the main window.
  void Answer(QWidget& window);

 private:
  void Poll();
  void AnswerFirst(QWidget& window);

  std::function<void()> look_;
  std::vector<const QWidget*> answering_;
  bool is_answering_ = false;
  std::size_t first_ = 0;
  std::size_t second_ = 0;
  std::size_t buttons_ = 0;
  bool left_open_ = false;
};

}  // namespace tavrel::test
