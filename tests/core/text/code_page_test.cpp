#include "core/text/code_page.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace tavrel::test {
namespace {

using namespace std::string_literals;

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST(CodePage, GivesEveryByteBack) {
  EXPECT_EQ(CodePage::Windows1252().Encode(CodePage::Windows1252().Decode(AllBytes())), AllBytes());
}

TEST(CodePage, GivesEachByteACharacterOfItsOwn) {
  const std::u32string characters = CodePage::Windows1252().Decode(AllBytes());
  EXPECT_EQ(std::set<char32_t>(characters.begin(), characters.end()).size(), 256U);
}

TEST(CodePage, IsAsciiBelow128AndLatin1From160) {
  for (int byte = 0; byte < 256; ++byte) {
    if (byte >= 128 && byte < 160) continue;
    EXPECT_EQ(CodePage::Windows1252().Character(static_cast<char>(byte)), static_cast<char32_t>(byte));
  }
}

TEST(CodePage, HasThePublishedCharactersBetween) {
  EXPECT_EQ(CodePage::Windows1252().Decode("\x80\x82\x83\x84\x85\x86\x87"),
            U"\u20AC\u201A\u0192\u201E\u2026\u2020\u2021");
  EXPECT_EQ(CodePage::Windows1252().Decode("\x88\x89\x8A\x8B\x8C\x8E"),
            U"\u02C6\u2030\u0160\u2039\u0152\u017D");
  EXPECT_EQ(CodePage::Windows1252().Decode("\x91\x92\x93\x94\x95\x96\x97"),
            U"\u2018\u2019\u201C\u201D\u2022\u2013\u2014");
  EXPECT_EQ(CodePage::Windows1252().Decode("\x98\x99\x9A\x9B\x9C\x9E\x9F"),
            U"\u02DC\u2122\u0161\u203A\u0153\u017E\u0178");
}

TEST(CodePage, StandsTheUndefinedBytesForControlCharacters) {
  for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(CodePage::Windows1252().Character(static_cast<char>(byte)), static_cast<char32_t>(byte));
  }
}

TEST(CodePage, EncodesOneByteACharacter) {
  EXPECT_EQ(CodePage::Windows1252().Encode(U"Caf\u00E9 \u20AC5"),
            "Caf\xE9 \x80"
            "5");
}

TEST(CodePage, EncodesWhatItDoesNotHoldAsAQuestionMark) {
  EXPECT_EQ(CodePage::Windows1252().Encode(U"a\u4E2Db\U0001F600c\u0101"), "a?b?c?");
  EXPECT_EQ(CodePage::Windows1252().Encode(U"\u0080"), "?");
}

TEST(CodePage, HasNoByteForOtherCharacters) {
  EXPECT_EQ(CodePage::Windows1252().Byte(U'A'), 'A');
  EXPECT_EQ(CodePage::Windows1252().Byte(U'\0'), '\0');
  EXPECT_EQ(CodePage::Windows1252().Byte(0x20AC), '\x80');
  EXPECT_EQ(CodePage::Windows1252().Byte(0xA0), '\xA0');
  EXPECT_EQ(CodePage::Windows1252().Byte(0x4E2D), std::nullopt);
  EXPECT_EQ(CodePage::Windows1252().Byte(0x10FFFF), std::nullopt);
}

TEST(CodePage, PairsCapitalAndSmallLetters) {
  const std::string small = "abcxyz\xE0\xE9\xF6\xF8\xFE\xFF\x9A\x9C\x9E";
  const std::string capitals = "ABCXYZ\xC0\xC9\xD6\xD8\xDE\x9F\x8A\x8C\x8E";
  EXPECT_EQ(CodePage::Windows1252().Upper(small), capitals);
  EXPECT_EQ(CodePage::Windows1252().Lower(capitals), small);
  EXPECT_EQ(CodePage::Windows1252().Upper(capitals), capitals);
  EXPECT_EQ(CodePage::Windows1252().Lower(small), small);
}

TEST(CodePage, LeavesBytesWithoutAnotherFormAlone) {
  const std::string bytes = "09 @[`{<>\0\r\n\xD7\xF7\xDF\xB5\x83\x80\xA0\xAA\xBA"s;
  EXPECT_EQ(CodePage::Windows1252().Upper(bytes), bytes);
  EXPECT_EQ(CodePage::Windows1252().Lower(bytes), bytes);
}

TEST(CodePage, ChangesNoLengths) {
  EXPECT_EQ(CodePage::Windows1252().Upper(AllBytes()).size(), 256U);
  EXPECT_EQ(CodePage::Windows1252().Lower(AllBytes()).size(), 256U);
  EXPECT_EQ(CodePage::Windows1252().Decode("\r\n").size(), 2U);
}

TEST(CodePage, CanBeAnotherOneThanWindows1252) {
  CodePage::Characters characters{};
  CodePage::Bytes capitals{};
  for (std::size_t byte = 0; byte < 256; ++byte) {
    characters[byte] = static_cast<char32_t>(byte < 128 ? byte : 0x0400 + byte);
    capitals[byte] = static_cast<char>(byte);
  }
  capitals[0xB0] = '\x90';
  const CodePage other(characters, capitals);
  EXPECT_EQ(other.Decode("a\xB0"), U"a\u04B0");
  EXPECT_EQ(other.Encode(U"a\u04B0\u00E9"), "a\xB0?");
  EXPECT_EQ(other.Upper("a\xB0"), "a\x90");
  EXPECT_EQ(other.Lower("a\x90"), "a\xB0");
}

}  // namespace
}  // namespace tavrel::test
