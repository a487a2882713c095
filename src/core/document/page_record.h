#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/document/global.h"
#include "core/text/code_page.h"

namespace tavrel {

/// A link of a page: the words shown and the target, a page number or a music link's name.
struct Link {
  std::string Text;
  std::string Target;
};

/// What the editor shows of one page. Link 1 is the first of `Links`.
struct PageFields {
  std::string Title;
  std::string Note;
  std::string Body;  ///< line breaks are CR LF
  std::array<Link, kLastLink> Links;
  std::string MusicText;
  std::string MusicLink;
};

/// Splits a page record into its fields, in whatever order its elements stand.
PageFields ReadPage(std::string_view record);

/// Joins trimmed fields into a page record. Elements without content are left out, so a page whose fields
/// are all empty gives the empty record. A link without a target is dropped; music needs its text.
std::string BuildPage(const PageFields& fields, const CodePage& code_page);

/// Whether a target names a music link: its first character is M in either case.
bool IsMusicTarget(std::string_view target);

/// A link target as it is stored: music link names as typed, anything else as a page number ("2" is "002").
std::string NormaliseTarget(std::string_view target);

}  // namespace tavrel
