#include "core/editing/search.h"

#include <algorithm>

#include "core/document/markup.h"
#include "core/editing/replacement.h"

namespace tavrel {
namespace {

constexpr const char* kText = "<text>";

/// Replacements within replacements must not fill the memory.
constexpr std::size_t kMostGrowth = 20'000'000;

/// A text with another part in place of one of its own.
std::string Spliced(std::string_view text, std::size_t start, std::size_t length, std::string_view part) {
  std::string spliced;
  spliced.reserve(text.size() - length + part.size());
  return spliced.append(text.substr(0, start)).append(part).append(text.substr(start + length));
}

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
    const std::string_view record = global.Page(page);
    const std::string_view text = TagContent(record, kText, 1);
    const std::string replaced = Replacement(text, search, replacement, room).Run();
    if (replaced.size() > text.size()) room -= std::min(room, replaced.size() - text.size());
    if (replaced == text) continue;
    // Not edited in place: who keeps the record as it was would have it copied first.
    const auto start = static_cast<std::size_t>(text.data() - record.data());
    global.Page(page) = Spliced(record, start, text.size(), replaced);
    ++changed;
  }
  return changed;
}

}  // namespace tavrel
