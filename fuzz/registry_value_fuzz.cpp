#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "core/shell/registry_value.h"
#include "core/shell/system_info.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "support/fake_platform.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

constexpr std::uint32_t kString = 1;
constexpr std::uint32_t kNumber = 4;
constexpr std::array<std::uint32_t, 13> kTypes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 0xFFFFFFFF};
constexpr const char* kTool = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH";
constexpr const char* kFolder = "SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO";

std::string Hexadecimal(char byte) {
  std::array<char, 4> digits{};
  std::snprintf(digits.data(), digits.size(), "%x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return digits.data();
}

/// A value's text by the rules; nothing for a number that no 64 bits hold.
std::optional<std::string> LiteralText(std::uint32_t type, std::string bytes) {
  if (!bytes.empty() && bytes.back() == '\0') bytes.pop_back();
  if (type == kString) return bytes;
  if (type != kNumber) return "";
  std::string digits;
  for (const char byte : bytes) digits.insert(0, Hexadecimal(byte));
  while (digits.starts_with('0')) digits.erase(0, 1);
  if (digits.size() > 16) return std::nullopt;
  return std::to_string(std::strtoull(digits.c_str(), nullptr, 16));
}

/// Nothing if the value is refused.
std::optional<std::string> Text(const test::FakePlatform& platform) {
  std::string text = "what was there before";
  try {
    Expect(GetKeyValue(platform, RegistryRoot::LocalMachine, "SOFTWARE\\Any", "Name", text), "it is read");
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
  return text;
}

/// Whatever the registry names is started or there is a message; a name holds no NUL.
void TryToStart(const RegistryValue& value, const char* key) {
  test::FakePlatform platform;
  platform.Registry[key] = value;
  try {
    StartSystemInfo(platform);
  } catch (const RunTimeError&) {
    Expect(platform.Started.empty(), "nothing is started when there is a message");
    return;
  }
  Expect(platform.Started.size() == 1, "one program is started");
  Expect(platform.Started.front().native().find('\0') == std::string::npos, "a path holds no NUL");
}

}  // namespace

/// An input is the number of a type and the bytes that are stored.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::uint32_t type = kTypes.at(static_cast<std::size_t>(input.Choice(kTypes.size())));
  const RegistryValue value = {.Type = type, .Bytes = std::string(input.Rest())};
  test::FakePlatform platform;
  platform.Registry["SOFTWARE\\Any|Name"] = value;

  const std::optional<std::string> text = Text(platform);
  const std::optional<std::string> expected = LiteralText(type, value.Bytes);
  Expect(text.has_value() == expected.has_value(), "a number beyond all bounds, and only that, is refused");
  if (text) ExpectEqual(*text, *expected, "the value's text");
  TryToStart(value, kTool);
  TryToStart(value, kFolder);
  return 0;
}
