#include "core/editing/search.h"

#include "core/document/markup.h"
#include "core/editing/replacement.h"

namespace tavrel {
namespace {

constexpr const char* kText = "<text>";
constexpr int kLastRecord = kLastPage + 1;

std::string Folded(std::string_view text, bool match_case, const CodePage& code_page) {
  return match_case ? std::string(text) : code_page.Lower(text);
}

}  // namespace

std::optional<Match> FindInPages(const Global& global, std::string_view wanted, int first_page,
                                 bool match_case, const CodePage& code_page) {
  const std::string folded = Folded(wanted, match_case, code_page);
  const std::string_view needle = folded;
  const Searcher searcher(needle.begin(), needle.end());
  for (int page = first_page; page <= kLastRecord; ++page) {
    const std::string_view text = TagContent(global.Page(page), kText, 1);
    const std::size_t position =
        match_case ? PositionIn(text, 0, searcher) : PositionIn(code_page.Lower(text), 0, searcher);
    if (position < text.size()) return Match{page, position};
  }
  return std::nullopt;
}

void ReplaceInPages(Global& global, std::string_view wanted, std::string_view replacement, bool match_case,
                    const CodePage& code_page) {
  const std::string folded_wanted = Folded(wanted, match_case, code_page);
  const std::string_view needle = folded_wanted;
  const Searcher searcher(needle.begin(), needle.end());
  for (int page = 1; page <= kLastRecord; ++page) {
    const std::string_view text = TagContent(global.Page(page), kText, 1);
    const std::string folded = Folded(text, match_case, code_page);
    const std::string replaced = Replacement(text, folded, needle, replacement, searcher).Run();
    SetTag(global.Page(page), replaced, kText, 1);
  }
}

}  // namespace tavrel
