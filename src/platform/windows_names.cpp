#include "platform/windows_names.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace tavrel {
namespace {

constexpr std::wstring_view kRefused = L"<>:\"/\\|?*";

constexpr std::array<std::wstring_view, 6> kDevices = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
constexpr std::array<std::wstring_view, 2> kNumberedDevices = {L"COM", L"LPT"};
constexpr std::size_t kLongestName = 255;

/// Raised digits count too.
constexpr std::wstring_view kDeviceNumbers = L"0123456789\u00B9\u00B2\u00B3";

bool IsRefused(wchar_t character) {
  return character < L' ' || kRefused.find(character) != std::wstring_view::npos;
}

wchar_t UpperLatin(wchar_t character) {
  return character >= L'a' && character <= L'z' ? static_cast<wchar_t>(character - L'a' + L'A') : character;
}

/// The part before the first full stop, without blanks at its end, in capital letters.
std::wstring DevicePart(std::wstring_view name) {
  std::wstring part(name.substr(0, name.find(L'.')));
  part.resize(part.find_last_not_of(L' ') + 1);
  std::transform(part.begin(), part.end(), part.begin(), UpperLatin);
  return part;
}

bool IsNumberedDevice(std::wstring_view part) {
  constexpr std::size_t kLength = 4;
  return part.size() == kLength && kDeviceNumbers.find(part.back()) != std::wstring_view::npos &&
         std::find(kNumberedDevices.begin(), kNumberedDevices.end(), part.substr(0, kLength - 1)) !=
             kNumberedDevices.end();
}

/// The system drops these, so that a name that ends with them is another one, or the folder itself.
bool EndsWithBlankOrStop(std::wstring_view name) {
  return name.ends_with(L' ') || name.ends_with(L'.');
}

bool IsDevice(std::wstring_view part) {
  return std::find(kDevices.begin(), kDevices.end(), part) != kDevices.end() || IsNumberedDevice(part);
}

}  // namespace

bool IsNoWindowsFileName(const std::filesystem::path& name) {
  const std::wstring text = name.wstring();
  return text.size() > kLongestName || std::any_of(text.begin(), text.end(), IsRefused) ||
         EndsWithBlankOrStop(text) || IsDevice(DevicePart(text));
}

bool IsTooLongToList(const std::filesystem::path& folder) {
  // With the pattern "\\*" and the end of the text a path has to stay within 260 characters.
  constexpr std::size_t kLongestListed = 256;
  std::error_code ignored;
  return std::filesystem::absolute(folder, ignored).native().size() > kLongestListed;
}

}  // namespace tavrel
