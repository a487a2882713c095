#include "platform/windows_code_page.h"

#include <optional>

#include "platform/windows_error.h"

namespace tavrel {
namespace {

/// The character of a byte. A byte that the code page leaves undefined stands for the character of the same
/// number, so that every byte survives.
char32_t CharacterOf(unsigned byte) {
  const char bytes[1] = {static_cast<char>(byte)};
  wchar_t character = 0;
  const int count = ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes, 1, &character, 1);
  return count == 1 ? static_cast<char32_t>(character) : static_cast<char32_t>(byte);
}

char UpperOf(unsigned byte, const CodePage::Characters& characters) {
  wchar_t character = static_cast<wchar_t>(characters[byte]);
  ::CharUpperBuffW(&character, 1);
  for (unsigned upper = 0; upper < characters.size(); ++upper) {
    if (characters[upper] == static_cast<char32_t>(character)) return static_cast<char>(upper);
  }
  return static_cast<char>(byte);
}

std::optional<CodePage> SystemsOwn() {
  CPINFO info{};
  if (::GetCPInfo(CP_ACP, &info) == 0 || info.MaxCharSize != 1) return std::nullopt;
  CodePage::Characters characters{};
  for (unsigned byte = 0; byte < characters.size(); ++byte) characters[byte] = CharacterOf(byte);
  CodePage::Bytes upper{};
  for (unsigned byte = 0; byte < upper.size(); ++byte) upper[byte] = UpperOf(byte, characters);
  return CodePage(characters, upper);
}

}  // namespace

const CodePage& WindowsCodePage() {
  static const std::optional<CodePage> own = SystemsOwn();
  return own ? *own : CodePage::Windows1252();
}

}  // namespace tavrel
