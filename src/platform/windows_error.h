#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <system_error>
#include <windows.h>

namespace tavrel {

/// The error of the last system call.
inline std::error_code LastSystemError() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

}  // namespace tavrel
