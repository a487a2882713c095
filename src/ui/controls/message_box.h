#pragma once

#include "core/shell/messages.h"

class QWidget;

namespace tavrel {

/// Shows the program's messages and asks its questions.
class MessageService {
 public:
  virtual ~MessageService() = default;

  /// Shows a message over `parent` and waits. True if it was answered with OK.
  virtual bool Show(QWidget* parent, const Message& message) = 0;
};

/// The message boxes that people see.
class MessageBoxes final : public MessageService {
 public:
  bool Show(QWidget* parent, const Message& message) override;
};

}  // namespace tavrel
