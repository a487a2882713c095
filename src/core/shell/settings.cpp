#include "core/shell/settings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

#include "core/text/field_reader.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

constexpr std::size_t kSkinFlag = 10;

std::filesystem::path SettingsFile(const Global& global) {
  return global.ProgramFolder / "tavrel.ini";
}

}  // namespace

void LoadSettings(Global& global, Platform& platform) {
  const std::filesystem::path file = SettingsFile(global);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) DefaultSettings(global, platform);

  const std::string text = ReadWholeFile(file);
  FieldReader fields(text);
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry) {
    if (fields.AtEnd()) {
      throw RunTimeError(PathText(file) + "\nends before its twentieth line.\n" +
                         "Repair it in a text editor, or delete it to start with the defaults.");
    }
    global.Settings[entry] = fields.NextField();
  }
  global.UseSkin = Value(global.Settings[kSkinFlag]) != 0;
}

void DefaultSettings(Global& global, Platform& platform) {
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry) global.Settings[entry].clear();
  global.Settings[1] = "&H000000&";
  global.Settings[2] = "&H000000&";
  global.Settings[3] = "&H800000&";
  global.Settings[4] = "&H000080&";
  global.Settings[kSkinFlag] = "1";
  global.UseSkin = true;
  SaveSettings(global, platform);
}

void SaveSettings(Global& global, Platform& platform) {
  global.Settings[kSkinFlag] = global.UseSkin ? "1" : "0";
  std::string text;
  for (std::size_t entry = 1; entry <= kLastSetting; ++entry)
    text.append(global.Settings[entry]).append(kLineEnd);
  platform.WriteWholeFile(SettingsFile(global), text);
}

}  // namespace tavrel
