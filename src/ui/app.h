#pragma once

#include "core/document/global.h"
#include "core/history/step_recorder.h"
#include "core/platform.h"

namespace tavrel {

class MessageService;
class ProgramControl;

/// What every window works with. The start of the program makes one; a test makes its own.
struct App {
  Global& State;
  Platform& System;
  MessageService& Messages;
  ProgramControl& Control;
  StepRecorder Steps{};  ///< what can be taken back

  const CodePage& CodePageInUse() const { return System.SystemCodePage(); }
};

}  // namespace tavrel
