#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace tavrel {

/// Starts a program, found along PATH, with its arguments and does not wait for it.
std::error_code StartDetached(const std::vector<std::string>& command);

}  // namespace tavrel
