#pragma once

#include "core/platform.h"

namespace tavrel {

/// Starts the system information tool that the registry names. Throws RunTimeError if there is none or it
/// does not start.
void StartSystemInfo(Platform& platform);

}  // namespace tavrel
