#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/document/global.h"
#include "core/text/code_page.h"

/// Searching the texts of all pages. Titles, notes and links are not searched. If case does not matter,
/// capitals of the whole code page equal their small letters.
namespace tavrel {

struct Match {
  int Page = 0;              ///< 1 to 1000: a file may hold a page 1000, which cannot be shown
  std::size_t Position = 0;  ///< in the page's text, from 0; CR LF counts as two
};

/// The first match from `first_page` on.
std::optional<Match> FindInPages(const Global& global, std::string_view wanted, int first_page,
                                 bool match_case, const CodePage& code_page);

/// Replaces `wanted`, which must not be empty, in all pages. Each search goes on one length of `wanted`
/// behind the start of the last replacement, which may lie inside that replacement or behind its end;
/// replacements are compared as typed. A text is searched up to its 32,767th character, and replacing stops
/// once it has made the document 20 million characters longer. Gives the number of pages changed.
int ReplaceInPages(Global& global, std::string_view wanted, std::string_view replacement, bool match_case,
                   const CodePage& code_page);

}  // namespace tavrel
