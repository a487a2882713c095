#include "core/text/numbers.h"

#include <gtest/gtest.h>
#include <limits>
#include <optional>

namespace tavrel::test {
namespace {

TEST(FormatPage, WritesAtLeastThreeDigits) {
  EXPECT_EQ(FormatPage(0), "000");
  EXPECT_EQ(FormatPage(1), "001");
  EXPECT_EQ(FormatPage(42), "042");
  EXPECT_EQ(FormatPage(999), "999");
  EXPECT_EQ(FormatPage(1000), "1000");
}

TEST(FormatPage, WritesTheSignBeforeTheDigits) {
  EXPECT_EQ(FormatPage(-1), "-001");
  EXPECT_EQ(FormatPage(-42), "-042");
  EXPECT_EQ(FormatPage(-7000), "-7000");
}

TEST(FormatPage, TakesNumbersBeyond32Bits) {
  EXPECT_EQ(FormatPage(2147483648), "2147483648");
  EXPECT_EQ(FormatPage(-2147483649), "-2147483649");
  EXPECT_EQ(FormatPage(9223372036854775807), "9223372036854775807");
}

TEST(MusicLinkName, HasNoLeadingZeros) {
  EXPECT_EQ(MusicLinkName(1), "M1");
  EXPECT_EQ(MusicLinkName(100), "M100");
}

TEST(Value, ReadsTheLongestNumberAtTheStart) {
  EXPECT_EQ(Value("1"), 1);
  EXPECT_EQ(Value("-1"), -1);
  EXPECT_EQ(Value("+2"), 2);
  EXPECT_EQ(Value("007"), 7);
  EXPECT_EQ(Value("0.5"), 0.5);
  EXPECT_EQ(Value(".5"), 0.5);
  EXPECT_EQ(Value("-.5"), -0.5);
  EXPECT_EQ(Value("5."), 5);
  EXPECT_EQ(Value("1abc"), 1);
  EXPECT_EQ(Value("12 34"), 12);
  EXPECT_EQ(Value("1.2.3"), 1.2);
  EXPECT_EQ(Value("1-2"), 1);
}

TEST(Value, ReadsAnExponentThatHasDigits) {
  EXPECT_EQ(Value("2e3"), 2000);
  EXPECT_EQ(Value("2E+3"), 2000);
  EXPECT_EQ(Value("25e-1"), 2.5);
  EXPECT_EQ(Value("2e"), 2);
  EXPECT_EQ(Value("2e+"), 2);
  EXPECT_EQ(Value("2ex"), 2);
}

TEST(Value, SkipsLeadingBlanks) {
  EXPECT_EQ(Value("   7"), 7);
  EXPECT_EQ(Value(" -7 "), -7);
}

TEST(Value, IsZeroForTextThatDoesNotBeginWithANumber) {
  for (const char* text :
       {"", " ", "yes", "x1", ".", "-", "+", "-x", "--1", "e5", ".e5", "inf", "nan", "M5", ","}) {
    EXPECT_EQ(Value(text), 0) << text;
  }
}

TEST(Value, IsHugeBeyondTheLargestNumber) {
  EXPECT_GT(Value("1e999"), 1e300);
  EXPECT_LT(Value("-1e999"), -1e300);
}

TEST(Value, IsNearZeroBelowTheSmallestNumber) {
  EXPECT_NEAR(Value("1e-999"), 0, 1e-300);
  EXPECT_NEAR(Value("-1e-999"), 0, 1e-300);
}

TEST(NumberIn, ReadsATextThatIsANumber) {
  EXPECT_EQ(NumberIn("1"), 1);
  EXPECT_EQ(NumberIn(" 0 "), 0);
  EXPECT_EQ(NumberIn("   12   "), 12);
  EXPECT_EQ(NumberIn("-3"), -3);
  EXPECT_EQ(NumberIn("+2"), 2);
  EXPECT_EQ(NumberIn("007"), 7);
  EXPECT_EQ(NumberIn("2.5"), 2.5);
  EXPECT_EQ(NumberIn(".5"), 0.5);
  EXPECT_EQ(NumberIn("5."), 5);
  EXPECT_EQ(NumberIn("25e-1"), 2.5);
  EXPECT_EQ(NumberIn("1E+3"), 1000);
}

TEST(NumberIn, IsNothingForAnyOtherText) {
  for (const char* text :
       {"",  " ",  "x",  "1x",  "x1",  "1 2", "--1", "-",   "+",   "- 1", ".",     "1.2.3", "1e",
        "e", "1,", "1-", "2e+", "\t1", "1\r", "1\n", "inf", "nan", "0x1", "\"1\"", "&H1",   "yes"}) {
    EXPECT_EQ(NumberIn(text), std::nullopt) << text;
  }
}

TEST(NumberIn, ReadsNumbersTooLargeOrTooSmallToHold) {
  EXPECT_GT(NumberIn("1e999").value(), 1e300);
  EXPECT_LT(NumberIn("-1e999").value(), -1e300);
  EXPECT_NEAR(NumberIn("1e-999").value(), 0, 1e-300);
}

TEST(WholeValue, RoundsToTheNearestNumber) {
  EXPECT_EQ(WholeValue("2.6"), 3);
  EXPECT_EQ(WholeValue("2.4"), 2);
  EXPECT_EQ(WholeValue("-2.6"), -3);
  EXPECT_EQ(WholeValue("7"), 7);
  EXPECT_EQ(WholeValue(" 3 "), 3);
  EXPECT_EQ(WholeValue("ary"), 0);
}

TEST(WholeValue, RoundsAHalfToTheEvenNumber) {
  EXPECT_EQ(WholeValue("0.5"), 0);
  EXPECT_EQ(WholeValue("1.5"), 2);
  EXPECT_EQ(WholeValue("2.5"), 2);
  EXPECT_EQ(WholeValue("-1.5"), -2);
}

TEST(WholeValue, StaysWithinItsBounds) {
  EXPECT_EQ(WholeValue("99999999999999999999"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(WholeValue("-99999999999999999999"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(WholeValue("1e999"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(WholeValue("2147483647"), 2147483647);
}

TEST(DecimalNumber, ReadsDigitsWithBlanksAroundThem) {
  EXPECT_EQ(DecimalNumber("0"), 0);
  EXPECT_EQ(DecimalNumber("7"), 7);
  EXPECT_EQ(DecimalNumber("007"), 7);
  EXPECT_EQ(DecimalNumber("  012 "), 12);
  EXPECT_EQ(DecimalNumber("1000"), 1000);
}

TEST(DecimalNumber, IsZeroForAnythingElse) {
  for (const char* text : {"", " ", "x", "5x", "x5", "+5", "-5", "5.0", "1e2", "1 2", "\t5", "5\n", "&H5"})
    EXPECT_EQ(DecimalNumber(text), 0) << text;
}

TEST(DecimalNumber, StaysWithinItsBound) {
  EXPECT_EQ(DecimalNumber("2147483647"), 2147483647);
  EXPECT_EQ(DecimalNumber("2147483648"), 2147483647);
  EXPECT_EQ(DecimalNumber("99999999999999999999"), 2147483647);
}

TEST(LeadingDigits, StopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(LeadingDigits("2"), 2);
  EXPECT_EQ(LeadingDigits("007"), 7);
  EXPECT_EQ(LeadingDigits("12x"), 12);
  EXPECT_EQ(LeadingDigits("12.7"), 12);
  EXPECT_EQ(LeadingDigits("1000"), 1000);
}

TEST(LeadingDigits, IsZeroWithoutDigits) {
  for (const char* text : {"", "abc", "-5", "+5", " 5", "M5"}) EXPECT_EQ(LeadingDigits(text), 0) << text;
}

TEST(LeadingDigits, KeepsTheLowSixteenBits) {
  EXPECT_EQ(LeadingDigits("32767"), 32767);
  EXPECT_EQ(LeadingDigits("32768"), -32768);
  EXPECT_EQ(LeadingDigits("65535"), -1);
  EXPECT_EQ(LeadingDigits("65536"), 0);
  EXPECT_EQ(LeadingDigits("70000"), 4464);
}

TEST(SignedText, HasABlankInPlaceOfThePlusSign) {
  EXPECT_EQ(SignedText(12), " 12");
  EXPECT_EQ(SignedText(0), " 0");
  EXPECT_EQ(SignedText(-7), "-7");
}

TEST(PrintForm, EndsWithABlankToo) {
  EXPECT_EQ(PrintForm(3), " 3 ");
  EXPECT_EQ(PrintForm(999), " 999 ");
  EXPECT_EQ(PrintForm(-1), "-1 ");
}

}  // namespace
}  // namespace tavrel::test
