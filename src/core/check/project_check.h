#pragma once

#include <vector>

#include "core/check/finding.h"
#include "core/document/global.h"
#include "core/ipod/note_writer.h"
#include "core/text/code_page.h"

namespace tavrel {

/// Everything in the project that would go wrong if it were published with these choices, page by page.
/// `other_notes` are on the iPod already.
std::vector<Finding> CheckProject(const Global& global, const CodePage& code_page,
                                  const PublishOptions& options, int other_notes = 0);

}  // namespace tavrel
