#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>

#include "core/document/page_record.h"
#include "core/text/code_page.h"

namespace tavrel::test {

/// Finds the new number of a link, or gives the number it was asked for if the rule does not select it.
using LiteralRule = std::function<int(int number)>;

/// Goes through the links of one record, one occurrence after another.
void LiteralWalk(std::string& record, const LiteralRule& rule);

/// Replaces all matches in the text of one record, which is built anew for each.
void LiteralReplace(std::string& record, const std::string& wanted, const std::string& replacement,
                    bool match_case, const CodePage& code_page);

/// An editor with a page on screen that runs every command as its rules are told, a step at a time: blocks
/// by repeating the command for one page, each time with the page stored before and shown again after.
class LiteralEditor {
 public:
  explicit LiteralEditor(const CodePage& code_page) : code_page_(code_page) {}

  std::array<std::string, 1001> Pages;
  std::string PageClipboard;
  int CurrentPage = 1;
  PageFields Fields;  ///< what is on screen

  void SavePage();
  void LoadPage(int page);
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

  /// Looks for a text from a page on; gives the page and the position of the match, 0 and 0 without one.
  std::pair<int, int> Find(const std::string& wanted, int first_page, bool match_case) const;
  void Replace(const std::string& wanted, const std::string& replacement, bool match_case);

 private:
  std::string& Page(int number) { return Pages.at(static_cast<std::size_t>(number)); }
  void FixLinks(const LiteralRule& rule);
  void Swap(int step);

  const CodePage& code_page_;
};

}  // namespace tavrel::test
