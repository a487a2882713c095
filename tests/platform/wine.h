#pragma once

#include "platform/windows_error.h"

namespace tavrel::test {

/// Whether this Windows is the one of the emulator that stands in for it, where tests may change more.
inline bool RunsUnderWine() {
  return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace tavrel::test
