#include "core/editing/link_row.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "core/document/page_parts.h"
#include "core/document/page_record.h"
#include "core/text/file_names.h"

namespace tavrel {
namespace {

using Links = std::vector<PageParts::Link>;

std::string StoredTarget(std::string_view target) {
  const std::string_view trimmed = TrimBlanks(target);
  return trimmed.empty() ? "" : NormaliseTarget(trimmed);
}

/// Whether storing writes the two alike.
bool AreSame(const PageParts::Link& one, const PageParts::Link& other) {
  return TrimBlanks(one.Text) == TrimBlanks(other.Text) &&
         StoredTarget(one.Target) == StoredTarget(other.Target);
}

}  // namespace

int LinkRowNow(std::string_view record_before, std::string_view record_now, int row) {
  const Links before = ListedLinks(record_before);
  const Links now = ListedLinks(record_now);
  if (row < 1 || row > std::ssize(before)) return row;
  const auto link = before.begin() + (row - 1);

  const auto first_change = std::mismatch(before.begin(), before.end(), now.begin(), now.end(), AreSame);
  if (link < first_change.first) return row;
  const auto last_change =
      std::mismatch(before.rbegin(), std::make_reverse_iterator(first_change.first), now.rbegin(),
                    std::make_reverse_iterator(first_change.second), AreSame);
  if (link >= last_change.first.base()) return row + static_cast<int>(std::ssize(now) - std::ssize(before));

  const auto is_same = [&](const PageParts::Link& other) { return AreSame(other, *link); };
  auto left = std::count_if(first_change.first, link, is_same);
  for (auto other = first_change.second; other != last_change.second.base(); ++other) {
    if (is_same(*other) && left-- == 0) return static_cast<int>(other - now.begin()) + 1;
  }
  return row;
}

}  // namespace tavrel
