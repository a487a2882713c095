#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "core/document/page_record.h"

namespace tavrel::test {
namespace {

TEST(NormaliseTarget, WritesPageNumbersWithThreeDigits) {
  EXPECT_EQ(NormaliseTarget("2"), "002");
  EXPECT_EQ(NormaliseTarget("42"), "042");
  EXPECT_EQ(NormaliseTarget("999"), "999");
  EXPECT_EQ(NormaliseTarget("1000"), "1000");
  EXPECT_EQ(NormaliseTarget("0"), "000");
}

TEST(NormaliseTarget, DropsLeadingZerosBeyondThreeDigits) {
  EXPECT_EQ(NormaliseTarget("002"), "002");
  EXPECT_EQ(NormaliseTarget("0000002"), "002");
}

TEST(NormaliseTarget, UsesOnlyTheLeadingDigits) {
  EXPECT_EQ(NormaliseTarget("12x"), "012");
  EXPECT_EQ(NormaliseTarget("12.7"), "012");
  EXPECT_EQ(NormaliseTarget("3 4"), "003");
  EXPECT_EQ(NormaliseTarget("1e2"), "001");
}

TEST(NormaliseTarget, TakesATargetWithoutLeadingDigitsForZero) {
  EXPECT_EQ(NormaliseTarget("abc"), "000");
  EXPECT_EQ(NormaliseTarget("-5"), "000");
  EXPECT_EQ(NormaliseTarget("+5"), "000");
  EXPECT_EQ(NormaliseTarget("x12"), "000");
  EXPECT_EQ(NormaliseTarget("."), "000");
}

TEST(NormaliseTarget, KeepsTheLowSixteenBits) {
  EXPECT_EQ(NormaliseTarget("32767"), "32767");
  EXPECT_EQ(NormaliseTarget("65536"), "000");
  EXPECT_EQ(NormaliseTarget("70000"), "4464");
  EXPECT_EQ(NormaliseTarget("40000"), "-25536");
}

TEST(NormaliseTarget, WritesThreeDigitsAfterAMinusSignToo) {
  EXPECT_EQ(NormaliseTarget("65535"), "-001");
}

TEST(NormaliseTarget, SurvivesANumberOfAnyLength) {
  // 65536 divides ten to the sixteenth, so the low bits are those of the last sixteen digits.
  EXPECT_EQ(NormaliseTarget(std::string(5000, '9') + "0000000000000007"), "007");
}

TEST(NormaliseTarget, KeepsMusicLinkNamesAsTyped) {
  for (const char* name : {"M1", "m3", "M007", "Mary", "M", "M101", "m 3"})
    EXPECT_EQ(NormaliseTarget(name), name);
}

TEST(IsMusicTarget, LooksAtTheFirstCharacterOnly) {
  EXPECT_TRUE(IsMusicTarget("M1"));
  EXPECT_TRUE(IsMusicTarget("m"));
  EXPECT_TRUE(IsMusicTarget("mary"));
  EXPECT_FALSE(IsMusicTarget(""));
  EXPECT_FALSE(IsMusicTarget("1M"));
  EXPECT_FALSE(IsMusicTarget(" M1"));
}

}  // namespace
}  // namespace tavrel::test
