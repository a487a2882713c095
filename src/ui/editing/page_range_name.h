#pragma once

#include <QString>

#include "core/editing/blocks.h"

namespace tavrel {

/// "page 3" or "pages 3 to 5".
QString NameOf(PageRange pages);

}  // namespace tavrel
