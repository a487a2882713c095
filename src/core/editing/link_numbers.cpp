#include "core/editing/link_numbers.h"

#include <string_view>
#include <vector>

#include "core/document/markup.h"
#include "core/text/numbers.h"

namespace tavrel {
namespace {

/// A target that gets a new number.
struct Renumbering {
  std::size_t Start;
  std::size_t Length;
  int Number;

  std::size_t End() const { return Start + Length; }
};

using Renumberings = std::vector<Renumbering>;

void FindChanges(std::string_view record, const LinkRule& rule, Renumberings& changes) {
  changes.clear();
  TagWalker links(record, "<linkto>");
  while (links.Next()) {
    // An opening tag inside a target that is rewritten goes with it.
    if (!changes.empty() && links.ContentStart() <= changes.back().End()) continue;
    const std::string_view target = links.Content();
    if (target.empty()) break;
    const int number = LeadingDigits(target);
    const std::optional<int> new_number = number < 1 ? std::nullopt : rule(number);
    if (new_number) changes.push_back({links.ContentStart(), target.size(), *new_number});
  }
}

/// Writes a number of three digits over as many characters, as nearly all targets have; false if either has
/// not so many.
bool Overwrite(std::string& record, const Renumbering& change) {
  if (change.Length != 3 || change.Number < 0 || change.Number > kLastPage) return false;
  char* digit = record.data() + change.Start;
  digit[0] = static_cast<char>('0' + change.Number / 100);
  digit[1] = static_cast<char>('0' + change.Number / 10 % 10);
  digit[2] = static_cast<char>('0' + change.Number % 10);
  return true;
}

void Apply(const Renumberings& changes, std::string& record) {
  std::string renumbered;
  std::size_t copied = 0;
  for (const Renumbering& change : changes) {
    if (Overwrite(record, change)) continue;
    renumbered.append(record, copied, change.Start - copied).append(FormatPage(change.Number));
    copied = change.End();
  }
  if (copied > 0) record = renumbered.append(record, copied);
}

}  // namespace

void RenumberLinks(std::string& record, const LinkRule& rule) {
  Renumberings changes;
  FindChanges(record, rule, changes);
  Apply(changes, record);
}

void RenumberLinks(Global& global, const LinkRule& rule) {
  Renumberings changes;
  for (int page = 1; page <= kLastPage; ++page) {
    FindChanges(global.Page(page), rule, changes);
    if (!changes.empty()) Apply(changes, global.Page(page).Edit());
  }
}

}  // namespace tavrel
