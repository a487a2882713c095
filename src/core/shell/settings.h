#pragma once

#include "core/document/global.h"
#include "core/platform.h"

namespace tavrel {

/// Reads `tavrel.ini` of the program's folder into `Settings` and `UseSkin`; makes the file with the defaults
/// if there is none. Throws RunTimeError if it holds fewer than twenty fields.
void LoadSettings(Global& global, Platform& platform);

/// Sets the defaults and writes them.
void DefaultSettings(Global& global, Platform& platform);

/// Writes `Settings` to `tavrel.ini`, the skin flag as entry 10. Throws RunTimeError.
void SaveSettings(Global& global, Platform& platform);

}  // namespace tavrel
