#pragma once

#include <QString>

#include "ui/shell/program_place.h"

namespace tavrel {

/// What to tell the user about work that was brought back at the start; empty if there was none.
QString RecoveryNotice(const FoundAtStart& found);

}  // namespace tavrel
