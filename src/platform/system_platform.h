#pragma once

#include <memory>

#include "core/platform.h"

namespace tavrel {

/// The platform of the system that the program runs on.
std::unique_ptr<Platform> MakeSystemPlatform();

}  // namespace tavrel
