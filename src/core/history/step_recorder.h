#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "core/document/global.h"
#include "core/history/history.h"

namespace tavrel {

/// What the editor shows at a moment.
struct Shown {
  Place At;
  std::string Typed;        ///< the page's record as it would be if all that is typed were stored
  std::size_t Showing = 0;  ///< another number each time that a page is brought into the fields
  /// What storing would make of a page that nobody has touched; nothing if the same.
  std::optional<std::string> Rewritten = {};
  std::string AtFirst = {};   ///< what storing would have made of it when it was brought into the fields
  Record RecordAtFirst = {};  ///< the page then
};

/// Records what the commands do to the document, by looking at it before and after each of them. What was
/// typed on the page and not stored before a command becomes a step of its own, also if the command drops it.
class StepRecorder {
 public:
  /// Another document, or none, is in memory now. Nothing that has happened can be taken back.
  void Start();

  /// The document is saved as the command that is running leaves it.
  void Saved() { is_saved_ = true; }

  /// A command begins, and ends. One that fails does not end. `with_redo` as for Undo: if the command shows a
  /// page and makes no step, what the fields had taken back becomes a step that is taken back, unless that
  /// would cost another step that can be made again.
  void Begin(const Global& global, Shown shown, const std::optional<std::string>& with_redo = {});
  void End(const Global& global, const Shown& shown);

  /// What the step is called that the running command is making. Without a name it is called after what it
  /// changes.
  void Name(std::string name) { name_ = std::move(name); }

  /// Take back and make again a step, as commands. Null if there is none. Typing that is not stored is taken
  /// back first, as a step; it leaves nothing to be made again. `with_redo` is the page as it would be if the
  /// fields' own redo had made all typing again, which they cannot once a step has shown a page.
  const Step* Undo(Global& global, const std::optional<std::string>& with_redo = {});
  const Step* Redo(Global& global);

  /// The names of the steps that they would take; nothing if there are none.
  std::optional<std::string> UndoName(const Global& global, const Shown& shown) const;
  std::optional<std::string> RedoName(const Global& global, const Shown& shown) const;

  /// Whether the document is as it was when it was saved last, typing apart.
  bool IsSaved() const { return history_.IsSaved(); }

 private:
  bool IsOnlyRewritten(const Shown& editor, const Step& changed, std::size_t showing) const;
  bool AddTyped(const Shown& editor, const Global& global, std::size_t showing);
  bool AddStored(const Shown& editor, const Record& stored, std::size_t showing);
  void KeepTakenBack(const Global& global, const Place& place, const std::string& with_redo);
  const Step& AddTakenBack(const Global& global, const Place& place, const std::string& with_redo);
  void AddCommand(Step step, const Place& before, const Place& after);
  std::size_t StepsSinceTyped(const Shown& shown) const;

  History history_;
  Records document_;             ///< as it was when the running command began
  std::optional<Shown> before_;  ///< the editor then; none while no command runs that can leave a step
  std::string name_;
  bool is_saved_ = false;
  std::optional<std::string> with_redo_;
};

}  // namespace tavrel
