#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tavrel {

/// A single-byte code page: the character of each byte, and its capital and small form. A document is held
/// in such bytes, so that positions, lengths and files are exact.
class CodePage {
 public:
  using Characters = std::array<char32_t, 256>;
  using Bytes = std::array<char, 256>;

  /// The code page used wherever the system has no single-byte one of its own. The five bytes that it
  /// leaves undefined stand for the control characters of the same number, so that every byte survives.
  static const CodePage& Windows1252();

  /// `upper` gives the capital form of each byte; a byte without one gives itself.
  CodePage(const Characters& characters, const Bytes& upper);

  char32_t Character(char byte) const { return characters_[static_cast<unsigned char>(byte)]; }

  /// The byte of a character; nothing if the code page does not hold it.
  std::optional<char> Byte(char32_t character) const;

  std::u32string Decode(std::string_view bytes) const;

  /// Every character that the code page does not hold becomes "?".
  std::string Encode(std::u32string_view characters) const;

  std::string Upper(std::string_view bytes) const;
  std::string Lower(std::string_view bytes) const;

 private:
  Characters characters_;
  Bytes upper_;
  Bytes lower_;
  std::array<std::pair<char32_t, char>, 256> by_character_;
};

}  // namespace tavrel
