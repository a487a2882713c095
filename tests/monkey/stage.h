#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "monkey/dice.h"
#include "monkey/record.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "ui/app.h"
#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"
#include "ui/main/main_window.h"
#include "ui/shell/program_place.h"
#include "ui/shell/recovery_keeper.h"

namespace tavrel::test {

/// Answers at random, now and then by way of the real box. A folder outside the sandbox is never given up.
class MonkeyMessages final : public MessageService {
 public:
  MonkeyMessages(Dice& dice, Record& record, std::string sandbox)
      : dice_(dice), record_(record), sandbox_(std::move(sandbox)) {}

  bool Show(QWidget* parent, const Message& message) override;

  int Count = 0;

 private:
  Dice& dice_;
  Record& record_;
  std::string sandbox_;
  MessageBoxes boxes_;
};

/// Records that the program has ended. The real one is gone at that moment; here the walk winds up what is
/// still open and starts a new one.
class MonkeyProgram final : public ProgramControl {
 public:
  explicit MonkeyProgram(Record& record) : record_(record) {}

  void Fail(const std::exception& error) override;
  void End() override;

 private:
  Record& record_;
};

/// One run of the program.
struct Session {
  Session(Platform& platform, MessageService& messages, ProgramControl& control)
      : Application{State, platform, messages, control} {}

  Global State;
  App Application;
  ProgramPlace Place;
  FoundAtStart Found;
  std::unique_ptr<Main> Window;
  std::unique_ptr<RecoveryKeeper> Keeper;
};

/// How a program ends.
enum class Ending { Exit, Killed };

/// The computer that the program runs on: its folder, disks that come and go, files that fail. All of it lies
/// in a sandbox that no folder list leaves.
class Stage {
 public:
  /// With `hostile`, some of the notes on its disks are none.
  Stage(Dice& dice, bool hostile);

  /// Starts the program.
  void Start();
  /// Ends it. A killed one leaves the draft that it has kept.
  void Stop(Ending ending);

  Global& State() { return Run->State; }
  Main& Window() { return *Run->Window; }

  TemporaryFolder Sandbox;
  const std::filesystem::path ProgramFolder;
  FakePlatform System;
  Record Seen;
  MonkeyMessages Messages;
  MonkeyProgram Program;
  std::unique_ptr<Session> Run;

 private:
  void FillDisks(bool hostile);
};

/// Lets pending events run.
void RunEvents();

/// Makes a window the active one, as a window manager does.
void Activate(QWidget& window);

}  // namespace tavrel::test
