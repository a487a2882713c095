#include "core/editing/link_numbers.h"

#include "core/document/markup.h"
#include "core/text/numbers.h"

namespace tavrel {

void RenumberLinks(std::string& record, const LinkRule& rule) {
  std::string renumbered;
  std::size_t copied = 0;
  TagWalker links(record, "<linkto>");
  while (links.Next()) {
    // An opening tag inside a target that has been rewritten went with it.
    if (links.ContentStart() < copied) continue;
    const std::string_view target = links.Content();
    if (target.empty()) break;
    const int number = LeadingDigits(target);
    const std::optional<int> new_number = number < 1 ? std::nullopt : rule(number);
    if (!new_number) continue;
    renumbered.append(record, copied, links.ContentStart() - copied).append(FormatPage(*new_number));
    copied = links.ContentStart() + target.size();
  }
  if (copied > 0) record = renumbered.append(record, copied);
}

void RenumberLinks(Global& global, const LinkRule& rule) {
  for (int page = 1; page <= kLastPage; ++page) RenumberLinks(global.Page(page), rule);
}

}  // namespace tavrel
