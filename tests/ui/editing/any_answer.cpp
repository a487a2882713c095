#include "ui/editing/any_answer.h"

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <utility>

#include "support/user.h"
#include "ui/controls/body_field.h"
#include "ui/controls/line_field.h"

namespace tavrel::test {
namespace {

constexpr int kPollInterval = 2;  // milliseconds
constexpr int kFirstNumber = 3;   // so that blocks of pages from the third on are asked for

/// A window with many fields, such as a map of pages, needs no text in all of them.
constexpr int kMostFields = 8;

std::vector<QPushButton*> ButtonsOf(const QWidget& window) {
  std::vector<QPushButton*> buttons;
  for (QPushButton* button : window.findChildren<QPushButton*>()) {
    if (button->isVisible() && button->isEnabled()) buttons.push_back(button);
  }
  return buttons;
}

/// Enter behind the text takes it in where a dialog does that.
void Fill(const QWidget& window) {
  int number = kFirstNumber;
  for (QWidget* field : window.findChildren<QWidget*>()) {
    const bool is_field =
        qobject_cast<LineField*>(field) != nullptr || qobject_cast<BodyField*>(field) != nullptr;
    if (!is_field || !field->isVisible() || number >= kFirstNumber + kMostFields) continue;
    TypeInto(*field, QString::number(number++));
  }
  for (QListWidget* list : window.findChildren<QListWidget*>("List1")) list->setCurrentRow(0);
}

}  // namespace

AnyAnswer::AnyAnswer(std::function<void()> look) : look_(std::move(look)) {
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, &AnyAnswer::Poll);
  timer->start(kPollInterval);
}

void AnyAnswer::Begin(std::size_t first, std::size_t second) {
  is_answering_ = true;
  first_ = first;
  second_ = second;
  buttons_ = 0;
  left_open_ = false;
}

void AnyAnswer::Poll() {
  QWidget* window = QApplication::activeModalWidget();
  if (!is_answering_ || window == nullptr ||
      std::find(answering_.begin(), answering_.end(), window) != answering_.end())
    return;
  const bool is_first = answering_.empty();
  answering_.push_back(window);
  // A timer does not fire inside its own handler, but a button may open a further dialog.
  QTimer::singleShot(0, this, [this, window, is_first] {
    look_();
    if (is_first) {
      AnswerFirst(*window);
    } else {
      window->close();
    }
    std::erase(answering_, window);
  });
}

void AnyAnswer::AnswerFirst(QWidget& window) {
  Fill(window);
  const std::vector<QPushButton*> buttons = ButtonsOf(window);
  buttons_ = buttons.size();
  if (buttons.empty() || !window.isVisible()) {
    window.close();
    return;
  }
  Click(*buttons[first_ % buttons.size()]);
  left_open_ = window.isVisible();
  if (left_open_) Click(*buttons[second_ % buttons.size()]);
  window.close();
}

void AnyAnswer::Answer(QWidget& window) {
  answering_.push_back(&window);
  AnswerFirst(window);
  std::erase(answering_, &window);
}

}  // namespace tavrel::test
