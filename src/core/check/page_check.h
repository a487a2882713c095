#pragma once

#include <vector>

#include "core/check/finding.h"
#include "core/document/global.h"
#include "core/document/page_parts.h"
#include "core/ipod/music_addresses.h"
#include "core/text/code_page.h"

namespace tavrel {

/// What would go wrong with one page that is not empty, and which pages a reader can go on to from it.
struct PageReport {
  std::vector<Finding> Findings;
  std::vector<int> LeadsTo;
};

/// Looks at everything but the length of the page's note. `music` are the document's addresses, `parts`
/// the page's.
PageReport CheckPage(const Global& global, MusicAddresses& music, int page, const PageParts& parts,
                     const CodePage& code_page);

}  // namespace tavrel
