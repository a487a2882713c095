#include "platform/windows_names.h"

#include <gtest/gtest.h>
#include <string>

#include "platform/system_platform.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

TEST(WindowsNames, AnOrdinaryNameIsAFileName) {
  for (const wchar_t* name :
       {L"Guide.dat", L"My Notes", L"a", L".hidden", L"two.full.stops", L"caf\u00E9.dat", L"\u65E5\u672C.dat",
        L"100%", L"a+b=c;d,e", L"it's [here] {now} ~1", L"x~!@#$^&()_-`"}) {
    EXPECT_FALSE(IsNoWindowsFileName(name)) << fs::path(name);
  }
}

TEST(WindowsNames, NineCharactersAreInNoName) {
  for (const wchar_t refused : std::wstring(L"<>:\"/\\|?*")) {
    const std::wstring character(1, refused);
    EXPECT_TRUE(IsNoWindowsFileName(L"a" + character + L"b.dat")) << fs::path(character);
    EXPECT_TRUE(IsNoWindowsFileName(character + L"b.dat")) << fs::path(character);
    EXPECT_TRUE(IsNoWindowsFileName(L"a.dat" + character)) << fs::path(character);
  }
}

TEST(WindowsNames, ControlCharactersAreInNoName) {
  for (wchar_t control = 0; control < L' '; ++control) {
    EXPECT_TRUE(IsNoWindowsFileName(std::wstring(L"a") + control + L"b.dat")) << static_cast<int>(control);
  }
  EXPECT_FALSE(IsNoWindowsFileName(L"a b.dat"));
  EXPECT_FALSE(
      IsNoWindowsFileName(L"a\x7F"
                          L"b.dat"));
}

TEST(WindowsNames, ANameThatTheSystemWouldShortenIsNone) {
  for (const wchar_t* name : {L" ", L"   ", L"Guide ", L"Guide.", L"Guide. ", L".", L"..", L"..."}) {
    EXPECT_TRUE(IsNoWindowsFileName(name)) << fs::path(name);
  }
  for (const wchar_t* name : {L" Guide", L"Guide .dat", L" .dat"}) {
    EXPECT_FALSE(IsNoWindowsFileName(name)) << fs::path(name);
  }
}

TEST(WindowsNames, ADriveOrAHiddenStreamIsNoName) {
  EXPECT_TRUE(IsNoWindowsFileName(L"D:x"));
  EXPECT_TRUE(IsNoWindowsFileName(L"D:"));
  EXPECT_TRUE(IsNoWindowsFileName(L"Guide:x.dat"));
}

TEST(WindowsNames, DevicesAreNoNames) {
  for (const wchar_t* name : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$", L"COM1", L"COM9",
                              L"LPT1", L"LPT9", L"con", L"Prn", L"lpt9", L"com5", L"conout$"}) {
    EXPECT_TRUE(IsNoWindowsFileName(name)) << fs::path(name);
  }
}

TEST(WindowsNames, DevicesOfEveryNumberAreNoNames) {
  for (wchar_t digit = L'1'; digit <= L'9'; ++digit) {
    EXPECT_TRUE(IsNoWindowsFileName(std::wstring(L"COM") + digit)) << static_cast<char>(digit);
    EXPECT_TRUE(IsNoWindowsFileName(std::wstring(L"LPT") + digit + L".dat")) << static_cast<char>(digit);
  }
  for (const wchar_t raised : {L'\u00B9', L'\u00B2', L'\u00B3'}) {
    EXPECT_TRUE(IsNoWindowsFileName(std::wstring(L"COM") + raised)) << static_cast<int>(raised);
    EXPECT_TRUE(IsNoWindowsFileName(std::wstring(L"lpt") + raised + L".dat")) << static_cast<int>(raised);
  }
}

TEST(WindowsNames, ADeviceStaysOneWithAnExtensionOrBlanksBehind) {
  for (const wchar_t* name :
       {L"CON.dat", L"nul.dat", L"aux .x", L"AUX   ", L"Com1.a.b", L"NUL.", L"prn ..dat", L"LPT3  .txt"}) {
    EXPECT_TRUE(IsNoWindowsFileName(name)) << fs::path(name);
  }
}

TEST(WindowsNames, WhatOnlyLooksLikeADeviceIsAFileName) {
  for (const wchar_t* name : {L"CONSOLE", L"COM10", L"COM", L"LPT", L"LPT12.dat", L"my NUL", L"CON1",
                              L"NULL.dat", L"AUX2", L" CON", L"a.CON", L"dat.nul", L"COMA", L"LPT\u2074",
                              L"COM 1", L"C ON", L"CON-1.dat", L"CONIN", L"C\u00D6N"}) {
    EXPECT_FALSE(IsNoWindowsFileName(name)) << fs::path(name);
  }
}

TEST(WindowsNames, NoNameIsLongerThan255Characters) {
  EXPECT_FALSE(IsNoWindowsFileName(std::wstring(251, L'x') + L".dat"));
  EXPECT_TRUE(IsNoWindowsFileName(std::wstring(252, L'x') + L".dat"));
}

TEST(WindowsNames, TheSystemRefusesThem) {
  const auto system = MakeSystemPlatform();
  for (const wchar_t* name : {L"NUL.dat", L"con", L"a?b", L"D:x"}) EXPECT_TRUE(system->RefusesName(name));
  for (const wchar_t* name : {L"Guide.dat", L"null"}) EXPECT_FALSE(system->RefusesName(name));
}

}  // namespace
}  // namespace tavrel::test
