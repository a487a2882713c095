#pragma once

#include <string>
#include <string_view>

#include "core/editing/document_of.h"
#include "core/editing/search.h"

namespace tavrel::test {

inline constexpr bool kMatchCase = true;
inline constexpr bool kAnyCase = false;

/// A text after the replacement.
inline std::string Replaced(const std::string& text, std::string_view wanted, std::string_view replacement,
                            bool match_case = kMatchCase) {
  Global global;
  global.Page(1) = WithText(text);
  ReplaceInPages(global, wanted, replacement, match_case, CodePage::Windows1252());
  const std::string& record = global.Page(1);
  return record.substr(6, record.size() - 13);
}

inline std::string Repeated(std::size_t count, std::string_view text) {
  std::string repeated;
  for (; count > 0; --count) repeated += text;
  return repeated;
}

}  // namespace tavrel::test
