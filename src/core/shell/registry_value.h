#pragma once

#include <string>

#include "core/platform.h"

namespace tavrel {

/// Reads one registry value as text: a string value as it is, without a NUL at its end; a 32-bit number in
/// decimal; any other as an empty text. False if it cannot be read. Throws RunTimeError if a number is beyond
/// all bounds.
bool GetKeyValue(const Platform& platform, RegistryRoot KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal);

}  // namespace tavrel
