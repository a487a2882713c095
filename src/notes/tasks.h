#pragma once

#include "core/platform.h"
#include "notes/arguments.h"

namespace tavrel::notes {

/// What the program ends with.
enum class Outcome { Done = 0, Found = 1, Failed = 2 };

/// Does what the arguments ask for, and says on the standard error what was found, with file and line. What
/// could not be done is thrown: see MessageAbout.
Outcome Do(const Arguments& arguments, Platform& platform);

}  // namespace tavrel::notes
