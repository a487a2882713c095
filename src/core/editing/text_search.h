#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/text/code_page.h"

namespace tavrel {

/// Looks for one text in many others, in a time that grows as their lengths do. If case does not matter,
/// capitals equal their small letters.
class TextSearch {
 public:
  /// `wanted` must not be empty.
  TextSearch(std::string_view wanted, bool match_case, const CodePage& code_page);

  /// What is looked for, in small letters if case does not matter.
  std::string_view Wanted() const { return wanted_; }

  /// The place of the first match from `from` on; the text's size if there is none.
  std::size_t Find(std::string_view text, std::size_t from) const;

  /// A character of a text as it is compared: small if case does not matter.
  char Folded(char character) const { return folded_[static_cast<unsigned char>(character)]; }

  /// For texts that come character by character: how much of what is looked for ends with a folded character,
  /// if `matched`, which is not all of it, ended in front of that.
  std::size_t Matched(std::size_t matched, char folded) const {
    while (matched > 0 && wanted_[matched] != folded) matched = borders_[matched - 1];
    return wanted_[matched] == folded ? matched + 1 : 0;
  }

 private:
  /// The two bytes that equal a wanted one.
  struct Forms {
    char One;
    char Other;

    bool Contain(char byte) const { return byte == One || byte == Other; }
  };

  Forms FormsOf(char wanted) const;
  std::size_t FindLetter(std::string_view text, std::size_t from) const;
  std::size_t FindIn(std::string_view text, std::size_t count, std::size_t& patience) const;
  std::size_t FindStepByStep(std::string_view text, std::size_t from) const;
  std::size_t SameLength(std::string_view text) const;

  std::string wanted_;
  std::vector<std::size_t> borders_;  ///< by last place, how much of a part's start is its end too
  std::array<char, 256> folded_;
  Forms first_;
  Forms last_;
};

}  // namespace tavrel
