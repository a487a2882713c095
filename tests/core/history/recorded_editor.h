#pragma once

#include <optional>
#include <string>

#include "core/document/global.h"
#include "core/history/step_recorder.h"

namespace tavrel::test {

/// An editor with one field, which holds the whole record of the shown page. The recorder is told of its
/// commands as the program's editor tells it. Blanks at the end of a page are not stored.
class RecordedEditor {
 public:
  Global State;
  StepRecorder Steps;
  std::string Field;
  std::optional<std::string> FieldRedo;  ///< what the field's own redo would give
  Place Caret;                           ///< but for the page

  /// Another document: shows its page 1.
  void Open();

  /// What commands do with the field.
  void SavePage();
  void LoadPage(int page);

  /// Runs a command; no name leaves it to the recorder.
  template <typename Handler>
  void Run(const std::string& name, const Handler& handler) {
    Steps.Begin(State, Now(), RedoRecord());
    if (!name.empty()) Steps.Name(name);
    handler();
    Steps.End(State, Now());
  }

  /// Some commands.
  void TypeAndStore(const std::string& text);
  void MoveTo(int page);
  void Clear();

  /// What the menu would say is what the two do, or it is a failure. They give the name of the step.
  std::optional<std::string> Undo();
  std::optional<std::string> Redo();

  Shown Now() const;
  std::string TypedWithRedo() const;
  std::optional<std::string> RedoRecord() const;
  bool IsTyped() const { return !(State.Page(State.CurrentPage) == Now().Typed); }

 private:
  std::string TypedAs(const std::string& text) const;
  std::optional<std::string> Show(const Step* step, const Place& place);

  std::string first_;  ///< what would have been stored when the page was shown
  Record loaded_;      ///< the page then
  std::string shown_;  ///< the same, or what was stored since
  std::size_t showing_ = 0;
};

}  // namespace tavrel::test
