#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/text/code_page.h"

namespace tavrel {

/// Looks for one text in many others. If case does not matter, capitals equal their small letters.
class TextSearch {
 public:
  /// `wanted` must not be empty.
  TextSearch(std::string_view wanted, bool match_case, const CodePage& code_page);

  /// What is looked for, in small letters if case does not matter.
  std::string_view Wanted() const { return wanted_; }

  /// The place of the first match from `from` on; the text's size if there is none.
  std::size_t Find(std::string_view text, std::size_t from) const;

  /// Whether `text` begins with what is looked for less its first `skipped` characters.
  bool IsStartOf(std::string_view text, std::size_t skipped) const;

 private:
  /// The two bytes that equal a wanted one.
  struct Forms {
    char One;
    char Other;

    bool Contain(char byte) const { return byte == One || byte == Other; }
  };

  Forms FormsOf(char wanted) const;
  std::size_t FindLetter(std::string_view text, std::size_t from) const;
  std::size_t FindIn(std::string_view text, std::size_t from, std::size_t count) const;

  std::string wanted_;
  std::array<char, 256> folded_;
  Forms first_;
  Forms last_;
};

}  // namespace tavrel
