#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "core/shell/registry_value.h"
#include "platform/system_platform.h"
#include "platform/temporary_key.h"

namespace tavrel::test {
namespace {

using std::string_literals::operator""s;

const std::string kKey = R"(SOFTWARE\Tavrel Writer Tests\Some Key)";

class WindowsRegistryTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!Key.IsOpen()) GTEST_SKIP() << "only administrators may write there";
  }

  std::optional<RegistryValue> Read(const std::string& name, const std::string& key = kKey) const {
    return System->ReadRegistry(RegistryRoot::LocalMachine, key, name);
  }

  void ExpectStored(const std::string& name, std::uint32_t type, const std::string& bytes) const {
    const std::optional<RegistryValue> value = Read(name);
    ASSERT_TRUE(value.has_value()) << name;
    EXPECT_EQ(value->Type, type);
    EXPECT_EQ(value->Bytes, bytes);
  }

  TemporaryKey Key{kKey};
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

DWORD OpenHandles() {
  DWORD count = 0;
  EXPECT_NE(::GetProcessHandleCount(::GetCurrentProcess(), &count), 0);
  return count;
}

TEST_F(WindowsRegistryTest, AStringIsReadWithItsNul) {
  Key.Set("Text", REG_SZ, "C:\\Info\\msinfo32.exe\0"s);
  ExpectStored("Text", 1, "C:\\Info\\msinfo32.exe\0"s);
}

TEST_F(WindowsRegistryTest, AStringIsInTheSystemsCodePage) {
  if (::GetACP() != 1252) GTEST_SKIP() << "the system has another code page";
  Key.Set("Text", L"caf\u00E9 \u20AC");
  ExpectStored("Text", 1, "caf\xE9 \x80\0"s);
}

TEST_F(WindowsRegistryTest, ANumberIsItsFourBytes) {
  Key.Set("Number", REG_DWORD, "\x05\x01\0\x80"s);
  ExpectStored("Number", 4, "\x05\x01\0\x80"s);
}

TEST_F(WindowsRegistryTest, OtherTypesKeepTheirNumbers) {
  Key.Set("Expandable", REG_EXPAND_SZ, "%windir%\0"s);
  Key.Set("Bytes", REG_BINARY, "\0\x01\xFF"s);
  ExpectStored("Expandable", 2, "%windir%\0"s);
  ExpectStored("Bytes", 3, "\0\x01\xFF"s);
}

TEST_F(WindowsRegistryTest, AValueMayBeEmpty) {
  Key.Set("Empty text", REG_SZ, "\0"s);
  Key.Set("Nothing", REG_BINARY, "");
  ExpectStored("Empty text", 1, "\0"s);
  ExpectStored("Nothing", 3, "");
}

TEST_F(WindowsRegistryTest, AValueMayHaveNoName) {
  Key.Set("", REG_SZ, "standard\0"s);
  ExpectStored("", 1, "standard\0"s);
}

TEST_F(WindowsRegistryTest, NamesAreFoundInAnyLetterCase) {
  Key.Set("PATH", REG_SZ, "x\0"s);
  ExpectStored("Path", 1, "x\0"s);
  EXPECT_TRUE(Read("PATH", R"(software\TAVREL WRITER TESTS\some key)").has_value());
}

TEST_F(WindowsRegistryTest, AValueHas1024BytesAtMost) {
  Key.Set("Full bytes", REG_BINARY, std::string(1024, '\xFE'));
  Key.Set("Full text", REG_SZ, std::string(1023, 'x') + '\0');
  Key.Set("Too many bytes", REG_BINARY, std::string(1025, '\xFE'));
  Key.Set("Too long text", REG_SZ, std::string(1024, 'x') + '\0');
  ExpectStored("Full bytes", 3, std::string(1024, '\xFE'));
  ExpectStored("Full text", 1, std::string(1023, 'x') + '\0');
  EXPECT_FALSE(Read("Too many bytes").has_value());
  EXPECT_FALSE(Read("Too long text").has_value());
}

TEST_F(WindowsRegistryTest, WhatIsMissingIsNothing) {
  Key.Set("Text", REG_SZ, "x\0"s);
  EXPECT_FALSE(Read("Other").has_value());
  EXPECT_FALSE(Read("").has_value());
  EXPECT_FALSE(Read("Text", kKey + "\\Other").has_value());
  EXPECT_FALSE(Read("Text", R"(SOFTWARE\Tavrel Writer Tests)").has_value());
}

TEST_F(WindowsRegistryTest, AKeyWithoutRightsIsNothing) {
  Key.Set("Text", REG_SZ, "x\0"s);
  Key.AllowOnly(L"WD");  // only to change these rights again
  EXPECT_FALSE(Read("Text").has_value());
}

/// Whether a key opens with these rights.
bool Opens(REGSAM rights) {
  HKEY key = nullptr;
  if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, kKey.c_str(), 0, rights, &key) != ERROR_SUCCESS) return false;
  ::RegCloseKey(key);
  return true;
}

TEST_F(WindowsRegistryTest, AKeyThatMayBeReadOnlyIsNothing) {
  Key.Set("Text", REG_SZ, "x\0"s);
  Key.AllowOnly(L"KR");
  ASSERT_TRUE(Opens(KEY_READ));
  EXPECT_FALSE(Read("Text").has_value());
}

TEST_F(WindowsRegistryTest, FullAccessIsEnough) {
  Key.Set("Text", REG_SZ, "x\0"s);
  Key.AllowOnly(L"0x2003F");
  ExpectStored("Text", 1, "x\0"s);
}

TEST_F(WindowsRegistryTest, EveryRightOfFullAccessIsAskedFor) {
  Key.Set("Text", REG_SZ, "x\0"s);
  for (const wchar_t* all_but_one :
       {L"0x2003E", L"0x2003D", L"0x2003B", L"0x20037", L"0x2002F", L"0x2001F"}) {
    Key.AllowOnly(all_but_one);
    EXPECT_FALSE(Read("Text").has_value()) << std::filesystem::path(all_but_one);
  }
}

TEST_F(WindowsRegistryTest, NoKeyStaysOpen) {
  Key.Set("Text", REG_SZ, "x\0"s);
  Key.Set("Too long", REG_BINARY, std::string(2000, 'x'));
  Read("Text");
  const DWORD before = OpenHandles();
  for (int i = 0; i < 20; ++i) {
    Read("Text");
    Read("Too long");
    Read("Other");
    Read("Text", kKey + "\\Other");
  }
  EXPECT_EQ(OpenHandles(), before);
}

TEST_F(WindowsRegistryTest, GetKeyValueGivesTexts) {
  Key.Set("Text", REG_SZ, "C:\\Info\0"s);
  Key.Set("Number", REG_DWORD, "\x05\x01\0\0"s);
  Key.Set("Expandable", REG_EXPAND_SZ, "%windir%\0"s);
  std::string text = "before";
  EXPECT_TRUE(GetKeyValue(*System, RegistryRoot::LocalMachine, kKey, "Text", text));
  EXPECT_EQ(text, "C:\\Info");
  EXPECT_TRUE(GetKeyValue(*System, RegistryRoot::LocalMachine, kKey, "Number", text));
  EXPECT_EQ(text, "21");  // 0 0 1 5 in hexadecimal, each byte without padding
  EXPECT_TRUE(GetKeyValue(*System, RegistryRoot::LocalMachine, kKey, "Expandable", text));
  EXPECT_EQ(text, "");
  text = "before";
  EXPECT_FALSE(GetKeyValue(*System, RegistryRoot::LocalMachine, kKey, "Other", text));
  EXPECT_EQ(text, "before");
}

}  // namespace
}  // namespace tavrel::test
