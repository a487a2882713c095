#pragma once

#include <functional>

#include "core/document/global.h"
#include "core/platform.h"
#include "ui/controls/program_control.h"

namespace tavrel {

class MessageService;

/// Ends the real program.
class RunningProgram final : public ProgramControl {
 public:
  RunningProgram(Global& global, Platform& platform, MessageService& messages);

  /// `store` brings what is typed but not yet stored into the document; Fail runs it first.
  void SetStoreTyped(std::function<void()> store) { store_typed_ = std::move(store); }

  /// `look` is run when the document is settled.
  void SetWhenSettled(std::function<void()> look) { when_settled_ = std::move(look); }

  /// `forget` is run when the document was brought to safety after an error.
  void SetAfterRescue(std::function<void()> forget) { after_rescue_ = std::move(forget); }

  /// `remember` is run when the program ends at the user's wish.
  void SetBeforeEnd(std::function<void()> remember) { before_end_ = std::move(remember); }

  /// Saves the open document beside its own file, or else in the home or the temporary folder, says what
  /// failed and where the copy is, and ends the program with status 1. A further error while the message
  /// stands changes nothing.
  void Fail(const std::exception& error) override;

  void DocumentSettled() override {
    if (when_settled_) when_settled_();
  }

  [[noreturn]] void End() override;

 private:
  /// Whether everything typed is in the document now.
  bool StoreTyped() noexcept;

  /// A sentence on where the copy is; empty if there was nothing to rescue.
  std::string Rescue();

  Global& global_;
  Platform& platform_;
  MessageService& messages_;
  std::function<void()> store_typed_;
  std::function<void()> when_settled_;
  std::function<void()> after_rescue_;
  std::function<void()> before_end_;
  bool failing_ = false;
};

}  // namespace tavrel
