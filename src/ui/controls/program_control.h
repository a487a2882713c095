#pragma once

#include <QObject>

#include <exception>
#include <functional>
#include <type_traits>

class QTimer;

namespace tavrel {

/// Is told of each command of the program: of every handler but those that run while another one does.
class CommandWatch {
 public:
  virtual ~CommandWatch() = default;
  virtual void Begins() = 0;
  /// Not told if the command fails.
  virtual void Ends() = 0;
};

/// How handlers run and how the program ends.
class ProgramControl {
 public:
  virtual ~ProgramControl() = default;

  /// Runs a handler. An error that it does not handle goes to Fail; none passes through the toolkit.
  void Run(const std::function<void()>& handler) noexcept;

  /// The same for what is no command and changes no document: the watch is not told.
  void RunAside(const std::function<void()>& handler) noexcept;

  /// Null for none.
  void SetWatch(CommandWatch* watch) { watch_ = watch; }

  /// The document was saved, or the user gave up what is not saved of it.
  virtual void DocumentSettled() {}

  /// Ends the program with a run-time error.
  virtual void Fail(const std::exception& error) = 0;

  /// Ends the program at once: no further event runs and no window is asked.
  virtual void End() = 0;

 private:
  void RunWatched(const std::function<void()>& handler);

  CommandWatch* watch_ = nullptr;
  bool is_watching_ = false;
};

/// Runs `handler` under `control`, with the arguments if it takes them.
template <typename Handler, typename... Arguments>
void Handle(ProgramControl& control, const Handler& handler, const Arguments&... arguments) {
  if constexpr (std::is_invocable_v<const Handler&, const Arguments&...>) {
    control.Run([&] { handler(arguments...); });
  } else {
    control.Run(handler);
  }
}

/// Runs `handler`, a function of the signal's arguments or of none, under `control` at every `signal`. Timers
/// give no commands.
template <typename Sender, typename Signal, typename Handler>
void On(ProgramControl& control, const Sender* sender, Signal signal, QObject* receiver, Handler handler) {
  if constexpr (std::is_same_v<Sender, QTimer>) {
    QObject::connect(sender, signal, receiver, [&control, handler] { control.RunAside(handler); });
  } else {
    QObject::connect(sender, signal, receiver, [&control, handler](const auto&... arguments) {
      Handle(control, handler, arguments...);
    });
  }
}

}  // namespace tavrel
