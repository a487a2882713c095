#include "core/shell/registry_value.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"

namespace tavrel::test {
namespace {

using std::string_literals::operator""s;

/// What GetKeyValue makes of a value that is stored so.
std::string TextOf(std::uint32_t type, const std::string& bytes) {
  FakePlatform system;
  system.Registry["SOFTWARE\\Any|Name"] = {.Type = type, .Bytes = bytes};
  std::string text = "what was there before";
  EXPECT_TRUE(GetKeyValue(system, RegistryRoot::LocalMachine, "SOFTWARE\\Any", "Name", text));
  return text;
}

TEST(GetKeyValue, DropsTheNulAtTheEndOfAString) {
  EXPECT_EQ(TextOf(kRegistryString, "abc\0"s), "abc");
  EXPECT_EQ(TextOf(kRegistryString, "a\0"s), "a");
}

TEST(GetKeyValue, CutsNothingFromAStringWithoutANul) {
  EXPECT_EQ(TextOf(kRegistryString, "abc"), "abc");
  EXPECT_EQ(TextOf(kRegistryString, "a"), "a");
  EXPECT_EQ(TextOf(kRegistryString, "abcde"), "abcde");
  EXPECT_EQ(TextOf(kRegistryString, " abc "), " abc ");
  EXPECT_EQ(TextOf(kRegistryString, "caf\xE9"), "caf\xE9");
}

TEST(GetKeyValue, DropsOneNulOnly) {
  EXPECT_EQ(TextOf(kRegistryString, "abc\0\0"s), "abc\0"s);
  EXPECT_EQ(TextOf(kRegistryString, "\0"s), "");
  EXPECT_EQ(TextOf(kRegistryString, "\0\0\0"s), "\0\0"s);
  EXPECT_EQ(TextOf(kRegistryString, "a\0b"s), "a\0b"s);
}

TEST(GetKeyValue, TakesAnEmptyStringAndTheLargestOne) {
  EXPECT_EQ(TextOf(kRegistryString, ""), "");
  EXPECT_EQ(TextOf(kRegistryString, std::string(1024, 'x')), std::string(1024, 'x'));
  EXPECT_EQ(TextOf(kRegistryString, std::string(1023, 'x') + '\0'), std::string(1023, 'x'));
  EXPECT_EQ(TextOf(kRegistryString, std::string(1024, '\0')), std::string(1023, '\0'));
}

struct Number {
  std::string Bytes;
  const char* Text;
};

std::ostream& operator<<(std::ostream& out, const Number& number) {
  return out << number.Bytes.size() << " bytes for " << number.Text;
}

class GetKeyValueNumber : public testing::TestWithParam<Number> {};

TEST_P(GetKeyValueNumber, IsReadLastByteFirstInHexWithoutPadding) {
  EXPECT_EQ(TextOf(kRegistryNumber, GetParam().Bytes), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(Of4Bytes, GetKeyValueNumber,
                         testing::Values(Number{"\x05\x01\0\0"s, "21"},         // 0 0 1 5
                                         Number{"\x15\0\0\0"s, "21"},           // 0 0 0 15
                                         Number{"\0\x10\0\0"s, "256"},          // 0 0 10 0
                                         Number{"\x01\x02\x03\x04"s, "17185"},  // 4 3 2 1
                                         Number{"\0\0\0\x05"s, "20480"},        // 5 0 0 0
                                         Number{"\x10\x20\x30\x40"s, "1076895760"},
                                         Number{"\xFF\x7F\0\0"s, "32767"},  // 0 0 7f ff
                                         Number{"\xFF\xFF\xFF\x7F"s, "2147483647"},
                                         Number{"\xFF\xFF\xFF\xFF"s, "4294967295"},
                                         Number{"\0\0\0\0"s, "0"}));

INSTANTIATE_TEST_SUITE_P(OfOtherSizes, GetKeyValueNumber,
                         testing::Values(Number{"", "0"}, Number{"\0"s, "0"}, Number{"\x0A"s, "10"},
                                         Number{"\x07\0"s, "7"}, Number{"\x01\x02\x03"s, "801"},  // 3 2 1
                                         Number{"\x01\x02\x03\x04\x05"s, "344865"},               // 5 4 3 2 1
                                         Number{"\xFF\xFF\xFF\xFF\xFF"s, "1099511627775"},
                                         Number{"\x09" + std::string(1023, '\0'), "9"},
                                         Number{std::string(1024, '\0'), "0"}));

TEST(GetKeyValue, RefusesANumberBeyondAllBounds) {
  EXPECT_THROW(TextOf(kRegistryNumber, std::string(1024, '\x01')), RunTimeError);
  EXPECT_THROW(TextOf(kRegistryNumber, std::string(1024, '\xFF')), RunTimeError);
  EXPECT_THROW(TextOf(kRegistryNumber, std::string(9, '\xFF')), RunTimeError);
}

TEST(GetKeyValue, GivesAnEmptyTextForEveryOtherType) {
  const std::vector<std::string> contents = {"",        "\0"s,           "a",       "abc",
                                             "abc\0"s,  "\x05\x01\0\0"s, "abcd\0"s, std::string(1024, 'x'),
                                             "\0\0\0"s, "%PATH%\0"s};
  for (const std::uint32_t type : {0U, 2U, 3U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 0xFFFFFFFFU}) {
    for (const std::string& bytes : contents) {
      EXPECT_EQ(TextOf(type, bytes), "") << "type " << type << ", " << bytes.size() << " bytes";
    }
  }
}

TEST(GetKeyValue, IsFalseForAValueThatCannotBeReadAndLeavesTheText) {
  FakePlatform system;
  system.Registry["SOFTWARE\\Any|Name"] = {.Type = kRegistryString, .Bytes = "abc"};
  std::string text = "as it was";
  EXPECT_FALSE(GetKeyValue(system, RegistryRoot::LocalMachine, "SOFTWARE\\Any", "Other", text));
  EXPECT_FALSE(GetKeyValue(system, RegistryRoot::LocalMachine, "SOFTWARE\\Other", "Name", text));
  EXPECT_EQ(text, "as it was");
}

}  // namespace
}  // namespace tavrel::test
