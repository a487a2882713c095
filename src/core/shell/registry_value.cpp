#include "core/shell/registry_value.h"

#include <charconv>
#include <cstdint>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

constexpr std::uint32_t kStringType = 1;
constexpr std::uint32_t kNumberType = 4;

/// The bytes in hexadecimal, the last one first. A byte below 16 gives one digit only, as it always has.
std::string HexOf(const std::string& bytes) {
  std::string hex;
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    char digits[2];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<unsigned char>(*byte), 16);
    hex.append(digits, end.ptr);
  }
  return hex;
}

std::string NumberText(const std::string& bytes) {
  const std::string hex = HexOf(bytes);
  std::uint64_t number = 0;
  const auto parsed = std::from_chars(hex.data(), hex.data() + hex.size(), number, 16);
  if (parsed.ec == std::errc::result_out_of_range)
    throw RunTimeError("A number in the registry is too large.");
  return std::to_string(number);
}

}  // namespace

bool GetKeyValue(const Platform& platform, RegistryRoot KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
  std::optional<RegistryValue> value = platform.ReadRegistry(KeyRoot, KeyName, SubKeyRef);
  if (!value) return false;
  std::string& bytes = value->Bytes;
  if (bytes.ends_with('\0')) bytes.pop_back();
  KeyVal.clear();
  if (value->Type == kStringType) KeyVal = bytes;
  if (value->Type == kNumberType) KeyVal = NumberText(bytes);
  return true;
}

}  // namespace tavrel
