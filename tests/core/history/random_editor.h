#pragma once

#include <random>
#include <string>
#include <vector>

#include "core/history/literal_history.h"
#include "core/history/recorded_editor.h"

namespace tavrel::test {

/// Somebody who does anything in an editor, with the rules of undo beside it. Whatever differs is a failure.
class RandomEditor {
 public:
  /// The records are what pages can hold.
  RandomEditor(std::mt19937& random, const std::vector<std::string>& records);

  void DoAnything();

  /// Takes back and makes again the last step, the last two and so on up to all.
  void GoThroughAllSteps();

  std::size_t Steps() const { return literal_.Steps(); }

 private:
  static Global& Filled(RecordedEditor& editor, std::mt19937& random,
                        const std::vector<std::string>& records);

  void TypeAnything();
  void StoreAndGoBack();
  void Type(std::string text);
  std::vector<std::string>& EarlierTexts();
  void RunAnyPageCommand();
  void RunAnyBlockCommand();
  void RunBlockDelete(int start, int end);
  void RunBlockInsert(int at, int count);
  void RunAnyOtherCommand();
  void RunInsertPlan();
  void RunMovePage(int step);
  void RunSavePage();

  /// Runs a command. Without a name it can change nothing but the page that it stores.
  template <typename Command>
  void Run(const std::string& name, const Command& command);
  /// The same for commands that show the page anew at their end, after storing it or not.
  template <typename Command>
  void RunStored(const std::string& name, const Command& command);
  template <typename Command>
  void RunDropping(const std::string& name, const Command& command);

  void Undo();
  void Redo();
  void Undo(std::size_t count);
  void Redo(std::size_t count);
  bool HasUndo() const;
  bool HasRedo() const;
  void ExpectSame(const char* after);

  Typing Now() const;
  std::string NameOf(const std::string& command) const;
  std::string AnyWord();

  std::mt19937& random_;
  RecordedEditor editor_;
  LiteralHistory literal_;
  std::vector<std::string> earlier_texts_;
  std::size_t showing_ = 0;  ///< in which they were in the field
  std::string done_;         ///< what was done, for the message of a failure
};

}  // namespace tavrel::test
