#pragma once

#include <random>
#include <string>

#include "core/editing/literal_editing.h"
#include "core/editing/shown_page.h"

namespace tavrel::test {

/// Two editors with the same document that are given the same commands, the program's and the literal one.
class TwoEditors {
 public:
  explicit TwoEditors(std::mt19937& random) : random_(random) {}

  /// Gives both a document of a few random pages, one of which is shown.
  void FillSomePages();

  /// Gives both a document of random pages throughout, of which page 1 is shown.
  void FillAllPages();

  void RunAnyCommand();

  void RunBlockDelete(int start, int end);
  void RunBlockInsert(int at, int count);

  void ExpectSameState() const;

 private:
  template <typename Command>
  void Run(const std::string& name, Command command) {
    commands_ += name + "; ";
    command(program_);
    command(literal_);
  }

  void SetAnyRecord(int page);
  void ShowPage(int page);
  void RunOpenPage(int page);
  void RunAnyPageCommand();
  void RunAnyTyping();
  void RunAnyBlockCommand();
  void RunAnyReplace();
  void RunAnyFind();

  std::mt19937& random_;
  ShownPage program_{CodePage::Windows1252()};
  LiteralEditor literal_{CodePage::Windows1252()};
  std::string commands_;  ///< what has been run, for the message of a failure
};

}  // namespace tavrel::test
