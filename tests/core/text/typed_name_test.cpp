#include <gtest/gtest.h>
#include <string>

#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"

namespace tavrel::test {
namespace {

using std::string_literals::operator""s;

TEST(PathFromTypedName, HasTheCharactersThatWereTyped) {
  EXPECT_EQ(PathFromTypedName("Caf\xE9", FakePlatform()), U"Caf\u00E9");
  EXPECT_EQ(PathFromTypedName("a\0b"s, FakePlatform()), "ab");
}

TEST(PathFromTypedName, IsRefusedWhereTheSystemHasNoSuchName) {
  FakePlatform system;
  system.RefusedNames = {"con"};
  EXPECT_THROW(PathFromTypedName("con", system), FileError);
  EXPECT_EQ(PathFromTypedName("cone", system), "cone");
}

TEST(PathFromTypedName, IsRefusedIfNothingButNulsWasTyped) {
  EXPECT_THROW(PathFromTypedName("", FakePlatform()), FileError);
  EXPECT_THROW(PathFromTypedName("\0"s, FakePlatform()), FileError);
  EXPECT_THROW(PathFromTypedName("\0\0"s, FakePlatform()), FileError);
}

}  // namespace
}  // namespace tavrel::test
