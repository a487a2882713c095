#include "core/text/code_page.h"

#include <algorithm>

namespace tavrel {
namespace {

constexpr std::size_t kByteValues = 256;

CodePage::Characters Windows1252Characters() {
  CodePage::Characters characters{};
  for (std::size_t byte = 0; byte < kByteValues; ++byte) characters[byte] = static_cast<char32_t>(byte);
  constexpr std::pair<unsigned char, char32_t> kBeyondLatin1[] = {
      {0x80, 0x20AC}, {0x82, 0x201A}, {0x83, 0x0192}, {0x84, 0x201E}, {0x85, 0x2026}, {0x86, 0x2020},
      {0x87, 0x2021}, {0x88, 0x02C6}, {0x89, 0x2030}, {0x8A, 0x0160}, {0x8B, 0x2039}, {0x8C, 0x0152},
      {0x8E, 0x017D}, {0x91, 0x2018}, {0x92, 0x2019}, {0x93, 0x201C}, {0x94, 0x201D}, {0x95, 0x2022},
      {0x96, 0x2013}, {0x97, 0x2014}, {0x98, 0x02DC}, {0x99, 0x2122}, {0x9A, 0x0161}, {0x9B, 0x203A},
      {0x9C, 0x0153}, {0x9E, 0x017E}, {0x9F, 0x0178},
  };
  for (const auto& [byte, character] : kBeyondLatin1) characters[byte] = character;
  return characters;
}

CodePage::Bytes Windows1252Capitals() {
  CodePage::Bytes upper{};
  for (std::size_t byte = 0; byte < kByteValues; ++byte) upper[byte] = static_cast<char>(byte);
  const auto pair = [&upper](unsigned char small, unsigned char capital) {
    upper[small] = static_cast<char>(capital);
  };
  for (unsigned char small = 'a'; small <= 'z'; ++small) pair(small, static_cast<unsigned char>(small - 32));
  for (unsigned int small = 0xE0; small <= 0xFE; ++small) {
    const bool is_division_sign = small == 0xF7;
    if (!is_division_sign) pair(static_cast<unsigned char>(small), static_cast<unsigned char>(small - 32));
  }
  pair(0xFF, 0x9F);
  pair(0x9A, 0x8A);
  pair(0x9C, 0x8C);
  pair(0x9E, 0x8E);
  return upper;
}

std::string Mapped(std::string_view bytes, const CodePage::Bytes& map) {
  std::string result(bytes);
  for (char& byte : result) byte = map[static_cast<unsigned char>(byte)];
  return result;
}

}  // namespace

const CodePage& CodePage::Windows1252() {
  static const CodePage code_page(Windows1252Characters(), Windows1252Capitals());
  return code_page;
}

CodePage::CodePage(const Characters& characters, const Bytes& upper)
    : characters_(characters), upper_(upper), lower_{}, by_character_{} {
  for (std::size_t byte = 0; byte < kByteValues; ++byte) {
    lower_[byte] = static_cast<char>(byte);
    by_character_[byte] = {characters[byte], static_cast<char>(byte)};
  }
  for (std::size_t byte = 0; byte < kByteValues; ++byte) {
    const auto capital = static_cast<unsigned char>(upper[byte]);
    if (capital != byte) lower_[capital] = static_cast<char>(byte);
  }
  std::stable_sort(by_character_.begin(), by_character_.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
}

std::optional<char> CodePage::Byte(char32_t character) const {
  if (character < 0x80 && characters_[character] == character) return static_cast<char>(character);
  const auto found =
      std::lower_bound(by_character_.begin(), by_character_.end(), character,
                       [](const auto& entry, char32_t wanted) { return entry.first < wanted; });
  if (found == by_character_.end() || found->first != character) return std::nullopt;
  return found->second;
}

std::u32string CodePage::Decode(std::string_view bytes) const {
  std::u32string characters(bytes.size(), U'\0');
  std::transform(bytes.begin(), bytes.end(), characters.begin(),
                 [this](char byte) { return Character(byte); });
  return characters;
}

std::string CodePage::Encode(std::u32string_view characters) const {
  std::string bytes(characters.size(), '\0');
  std::transform(characters.begin(), characters.end(), bytes.begin(),
                 [this](char32_t character) { return Byte(character).value_or('?'); });
  return bytes;
}

std::string CodePage::Upper(std::string_view bytes) const {
  return Mapped(bytes, upper_);
}

std::string CodePage::Lower(std::string_view bytes) const {
  return Mapped(bytes, lower_);
}

}  // namespace tavrel
