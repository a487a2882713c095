#include "platform/windows_code_page.h"

#include <gtest/gtest.h>
#include <string>

#include "platform/system_platform.h"
#include "platform/windows_error.h"

namespace tavrel::test {
namespace {

bool IsSingleByte() {
  CPINFO info{};
  return ::GetCPInfo(CP_ACP, &info) != 0 && info.MaxCharSize == 1;
}

bool IsDefined(char byte) {
  wchar_t character = 0;
  return ::MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &byte, 1, &character, 1) == 1;
}

/// The character that the system makes of a byte; one that it leaves undefined is the character of its
/// number.
wchar_t SystemsCharacter(char byte) {
  if (!IsDefined(byte)) return static_cast<wchar_t>(static_cast<unsigned char>(byte));
  wchar_t character = 0;
  EXPECT_EQ(::MultiByteToWideChar(CP_ACP, 0, &byte, 1, &character, 1), 1);
  return character;
}

/// The byte that the system makes of a character, and `other` for one that has none.
char SystemsByte(wchar_t character, char other) {
  char byte = 0;
  BOOL replaced = FALSE;
  const int count =
      ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, &character, 1, &byte, 1, nullptr, &replaced);
  return count == 1 && replaced == 0 ? byte : other;
}

char SystemsUpper(char byte) {
  wchar_t character = SystemsCharacter(byte);
  ::CharUpperBuffW(&character, 1);
  return SystemsByte(character, byte);
}

char SystemsLower(char byte) {
  wchar_t character = SystemsCharacter(byte);
  ::CharLowerBuffW(&character, 1);
  return SystemsByte(character, byte);
}

class WindowsCodePageTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsSingleByte()) GTEST_SKIP() << "the system has no single-byte code page";
  }

  template <typename Check>
  static void ForEachByte(const Check& check) {
    for (int number = 0; number < 256; ++number) {
      SCOPED_TRACE(number);
      check(static_cast<char>(number));
    }
  }

  const CodePage& Page = WindowsCodePage();
};

TEST_F(WindowsCodePageTest, HasTheSystemsCharacters) {
  ForEachByte(
      [this](char byte) { EXPECT_EQ(Page.Character(byte), static_cast<char32_t>(SystemsCharacter(byte))); });
}

TEST_F(WindowsCodePageTest, EveryByteSurvives) {
  ForEachByte([this](char byte) {
    EXPECT_EQ(Page.Encode(Page.Decode({&byte, 1})), std::string(1, byte));
    const char back = SystemsByte(static_cast<wchar_t>(Page.Character(byte)), '?');
    EXPECT_EQ(back, IsDefined(byte) ? byte : '?');
  });
}

TEST_F(WindowsCodePageTest, HasTheSystemsCapitalAndSmallLetters) {
  ForEachByte([this](char byte) {
    EXPECT_EQ(Page.Upper({&byte, 1}), std::string(1, SystemsUpper(byte)));
    EXPECT_EQ(Page.Lower({&byte, 1}), std::string(1, SystemsLower(byte)));
  });
}

TEST(WindowsCodePages, OfWesternLanguagesIsTheOneOfOtherSystems) {
  if (::GetACP() != 1252) GTEST_SKIP() << "the system has another code page";
  const CodePage& page = WindowsCodePage();
  EXPECT_EQ(page.Decode("\x80\xE9\x81\xFF"), U"\u20AC\u00E9\u0081\u00FF");
  EXPECT_EQ(page.Upper("\xE9\xFF\xDF\xB5\x83\xF7z"), "\xC9\x9F\xDF\xB5\x83\xF7Z");
  EXPECT_EQ(page.Lower("\xC9\x9F\xD7Z"), "\xE9\xFF\xD7z");
  EXPECT_EQ(page.Encode(U"\u0416\u20AC"), "?\x80");
  for (int number = 0; number < 256; ++number) {
    const char byte = static_cast<char>(number);
    const std::string one(1, byte);
    EXPECT_EQ(page.Character(byte), CodePage::Windows1252().Character(byte)) << number;
    EXPECT_EQ(page.Upper(one), CodePage::Windows1252().Upper(one)) << number;
    EXPECT_EQ(page.Lower(one), CodePage::Windows1252().Lower(one)) << number;
  }
}

TEST(WindowsCodePages, OfSeveralBytesGiveWayToWindows1252) {
  if (IsSingleByte()) GTEST_SKIP() << "the system has a single-byte code page";
  EXPECT_EQ(&WindowsCodePage(), &CodePage::Windows1252());
}

TEST(WindowsCodePages, AreThePlatforms) {
  EXPECT_EQ(&MakeSystemPlatform()->SystemCodePage(), &WindowsCodePage());
}

}  // namespace
}  // namespace tavrel::test
