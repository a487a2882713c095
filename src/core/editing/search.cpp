#include "core/editing/search.h"

#include <algorithm>

#include "core/document/markup.h"
#include "core/editing/replacement.h"

namespace tavrel {
namespace {

constexpr const char* kText = "<text>";

/// Replacements within replacements must not fill the memory.
constexpr std::size_t kMostGrowth = 20'000'000;

}  // namespace

std::optional<Match> FindInPages(const Global& global, std::string_view wanted, int first_page,
                                 bool match_case, const CodePage& code_page) {
  const TextSearch search(wanted, match_case, code_page);
  for (int page = first_page; page <= kLastRecord; ++page) {
    const std::string_view text = TagContent(global.Page(page), kText, 1);
    const std::size_t position = search.Find(text, 0);
    if (position < text.size()) return Match{page, position};
  }
  return std::nullopt;
}

int ReplaceInPages(Global& global, std::string_view wanted, std::string_view replacement, bool match_case,
                   const CodePage& code_page) {
  const TextSearch search(wanted, match_case, code_page);
  std::size_t room = kMostGrowth;
  int changed = 0;
  for (int page = 1; page <= kLastRecord; ++page) {
    const std::string_view text = TagContent(global.Page(page), kText, 1);
    const std::string replaced = Replacement(text, search, replacement, room).Run();
    if (replaced.size() > text.size()) room -= std::min(room, replaced.size() - text.size());
    if (replaced == text) continue;
    SetTag(global.Page(page).Edit(), replaced, kText, 1);
    ++changed;
  }
  return changed;
}

}  // namespace tavrel
