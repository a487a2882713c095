#pragma once

#include <QString>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "monkey/literal_history.h"

class QWidget;

namespace tavrel::test {

/// Tells that a promise of the program does not hold, with how it came to that, and ends the walk at once: no
/// exception may pass through the toolkit.
[[noreturn]] void Break(const std::string& what);

/// Called before the walk ends so.
extern std::function<void()> TellHowItCame;

void Expect(bool holds, const std::string& what);
void ExpectSame(const std::string& actual, const std::string& expected, const std::string& what);

/// Something that happened in one action, in the order in which it happened.
struct Event {
  enum class Kind { Shown, Pressed, Closed, Message, Command, GridClick, Led, Failed, Ended };

  Kind What;
  std::string Window = {};                         ///< the dialog or window
  std::string Control = {};                        ///< the button, command or grid; a message's text
  std::map<std::string, std::string> Values = {};  ///< what the dialog's controls held
  int Number = 0;           ///< an answer, a row, a page, whether a dialog was accepted
  LiteralPlace Place = {};  ///< of the caret, once a panel has led there
};

/// All of one action.
struct Record {
  std::vector<Event> Events;
  bool IsOver = false;  ///< the program has ended

  void Clear() {
    Events.clear();
    IsOver = false;
  }
  const Event* First(Event::Kind what) const;
  const Event* Last(Event::Kind what, const std::string& window) const;
  /// The message that begins so; null without one.
  const Event* MessageOf(const std::string& beginning) const;
  /// Whether a question was asked and answered with Cancel.
  bool IsRefused(const std::string& beginning) const;
};

/// A file's bytes; none if there is no such file.
std::string BytesOf(const std::filesystem::path& file);

/// What the controls of a window hold, by their names.
std::map<std::string, std::string> ValuesIn(const QWidget& window);

}  // namespace tavrel::test
