#pragma once

#include <deque>
#include <string>
#include <vector>

#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"

namespace tavrel::test {

/// Keeps the messages that the program shows and answers them: OK, unless a test has said otherwise.
class RecordingMessages final : public MessageService {
 public:
  std::vector<Message> Shown;
  std::deque<bool> Answers;  ///< the next answers, true for OK
  QWidget* LastParent = nullptr;

  bool Show(QWidget* parent, const Message& message) override {
    Shown.push_back(message);
    LastParent = parent;
    if (Answers.empty()) return true;
    const bool answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
};

/// Keeps how the program would have ended.
class RecordedProgram final : public ProgramControl {
 public:
  std::vector<std::string> Failures;
  int Ends = 0;
  int Settled = 0;  ///< how often the document was saved or given up

  void Fail(const std::exception& error) override { Failures.emplace_back(error.what()); }
  void DocumentSettled() override { ++Settled; }
  void End() override { ++Ends; }
};

}  // namespace tavrel::test
