#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/shell/settings.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "literal_plan.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// A folder in memory where the system has one, to spare the disk.
const std::filesystem::path& ProgramFolder() {
  static const auto kFolder = [] {
    if (std::filesystem::is_directory("/dev/shm")) ::setenv("TMPDIR", "/dev/shm", 1);
    return std::make_unique<test::TemporaryFolder>();
  }();
  return kFolder->Path();
}

void WriteSettingsFile(std::string_view bytes) {
  std::ofstream file(ProgramFolder() / "tavrel.ini", std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// The program writes no commas and double quotes, and does not promise to read them back.
bool IsPlain(const Global& global) {
  for (const std::string& setting : global.Settings) {
    if (setting.find_first_of(",\"") != std::string::npos) return false;
  }
  return true;
}

/// Nothing if the file is damaged.
std::optional<std::vector<std::string>> LiterallyRead(const std::string& bytes) {
  try {
    return LiteralReadFields(bytes, kLastSetting);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace

/// Any bytes are settings or a damaged file. Settings that are written are read back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  test::FakePlatform platform;
  const auto first = std::make_unique<Global>();
  first->ProgramFolder = ProgramFolder();
  const std::string bytes(Input(data, size).Rest());
  WriteSettingsFile(bytes);
  const std::optional<std::vector<std::string>> expected = LiterallyRead(bytes);
  try {
    LoadSettings(*first, platform);
  } catch (const RunTimeError&) {
    Expect(!expected.has_value(), "only damaged settings are refused");
    return 0;
  }
  Expect(expected.has_value(), "damaged settings are refused");
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry) {
    ExpectEqual(first->Settings.at(entry), expected->at(entry - 1), "the setting is read");
    Expect(first->Settings.at(entry).find('\n') == std::string::npos, "a setting is one line");
  }
  if (!IsPlain(*first)) return 0;

  SaveSettings(*first, platform);
  const auto second = std::make_unique<Global>();
  second->ProgramFolder = ProgramFolder();
  LoadSettings(*second, platform);
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry) {
    ExpectEqual(second->Settings.at(entry), first->Settings.at(entry), "the same setting");
  }
  Expect(second->UseSkin == first->UseSkin, "the same skin flag");
  return 0;
}
