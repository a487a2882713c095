#pragma once

#include <string>
#include <utility>

#include "core/document/global.h"
#include "core/document/page_record.h"
#include "core/text/code_page.h"

namespace tavrel::test {

/// Runs the program's commands on a document as its editor does: with the fields of the shown page stored
/// before and shown anew after a command.
class ShownPage {
 public:
  explicit ShownPage(const CodePage& code_page) : code_page_(code_page) {}

  Global State;
  PageFields Fields;

  void SavePage() { State.Page(State.CurrentPage) = BuildPage(Fields, code_page_); }
  void LoadPage() { Fields = ReadPage(State.Page(State.CurrentPage)); }
  void OpenPage(int page);

  void Insert();
  void Cut();
  void Copy();
  void Paste();
  void Clear();
  void Up();
  void Down();

  void BlockCopy(int start, int end, int to);
  void BlockClear(int start, int end);
  void BlockDelete(int start, int end);
  void BlockInsert(int at, int count);

  /// The page and, counted from 1, the position of a match; 0 and 0 without one.
  std::pair<int, int> Find(const std::string& wanted, int first_page, bool match_case) const;
  void Replace(const std::string& wanted, const std::string& replacement, bool match_case);

 private:
  const CodePage& code_page_;
};

}  // namespace tavrel::test
