#include "core/document/record.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

namespace tavrel::test {
namespace {

/// Too long to be kept anywhere but in memory of its own, which its address tells apart.
const std::string kLong(1000, 'a');

bool Share(const Record& one, const Record& other) {
  return one.Bytes().data() == other.Bytes().data();
}

TEST(Record, SharesItsBytesWithItsCopies) {
  const Record record = kLong;
  const Record copy = record;
  Record assigned;
  assigned = record;

  EXPECT_TRUE(Share(copy, record));
  EXPECT_TRUE(Share(assigned, record));
  EXPECT_EQ(copy, kLong);
  EXPECT_EQ(assigned, kLong);
}

TEST(Record, LeavesItsCopiesAsTheyAreWhenItIsEdited) {
  Record record = kLong;
  Record copy = record;
  const Record third = copy;
  record.Edit()[0] = 'b';
  copy.Edit().clear();

  EXPECT_EQ(record, "b" + std::string(999, 'a'));
  EXPECT_EQ(copy, "");
  EXPECT_EQ(third, kLong);
}

TEST(Record, LeavesItsCopiesAsTheyAreWhenMoreIsAdded) {
  Record record = "ab";
  const Record copy = record;
  record += "cd";
  record += 'e';

  EXPECT_EQ(record, "abcde");
  EXPECT_EQ(copy, "ab");
}

TEST(Record, CanBeAddedToItself) {
  Record record = "ab";
  record += record;
  EXPECT_EQ(record, "abab");
  const Record copy = record;
  record += record;
  EXPECT_EQ(record, "abababab");
  EXPECT_EQ(copy, "abab");
}

TEST(Record, LeavesItsCopiesAsTheyAreWhenItIsCleared) {
  Record record = kLong;
  const Record copy = record;
  record.clear();

  EXPECT_TRUE(record.empty());
  EXPECT_EQ(copy, kLong);
}

TEST(Record, KeepsNoMoreMemoryThanItsBytesNeed) {
  std::string bytes = kLong;
  bytes.reserve(100'000);
  EXPECT_LT(Record(bytes).Bytes().capacity(), 2000U);
  EXPECT_LT(Record(std::move(bytes)).Bytes().capacity(), 2000U);
}

TEST(Record, IsEditedInPlaceWhileNobodySharesIt) {
  Record record = kLong;
  const char* const bytes = record.Bytes().data();
  record.Edit()[0] = 'b';
  EXPECT_EQ(record.Bytes().data(), bytes);
}

TEST(Record, NoLongerSharesWithACopyThatIsAssignedToOrGone) {
  Record record = kLong;
  const char* const bytes = record.Bytes().data();
  Record copy = record;
  { const Record gone = record; }
  copy = "other";

  record.Edit()[0] = 'b';
  EXPECT_EQ(record.Bytes().data(), bytes);
  EXPECT_EQ(copy, "other");
}

TEST(Record, SharesOnlyWithWhatItWasAssignedLast) {
  Record first = kLong;
  Record second = std::string(1000, 'z');
  Record record = first;
  record = second;
  first.Edit()[0] = 'b';
  EXPECT_EQ(record, std::string(1000, 'z'));
  record.Edit()[0] = 'c';
  EXPECT_EQ(second, std::string(1000, 'z'));
  EXPECT_EQ(first, "b" + std::string(999, 'a'));
}

TEST(Record, StaysWhatItIsWhenAssignedToItself) {
  Record record = kLong;
  const Record& same = record;
  record = same;
  EXPECT_EQ(record, kLong);
}

TEST(Record, TradesItsBytesWithoutTouchingCopies) {
  Record one = "one";
  Record other = "other";
  const Record copy = one;
  std::swap(one, other);
  one += "!";
  EXPECT_EQ(one, "other!");
  EXPECT_EQ(other, "one");
  EXPECT_EQ(copy, "one");
}

TEST(Record, GoesOnSharingIfItIsUpdatedWithTheBytesThatItHas) {
  Record record = kLong;
  const Record copy = record;
  record.Update(kLong);
  EXPECT_TRUE(record.Shares(copy));
  EXPECT_EQ(record, kLong);
}

TEST(Record, TakesOtherBytesWithoutTouchingItsCopies) {
  Record record = kLong;
  const Record copy = record;
  record.Update("other");
  EXPECT_FALSE(record.Shares(copy));
  EXPECT_EQ(record, "other");
  EXPECT_EQ(copy, kLong);
  record.Update("");
  EXPECT_TRUE(record.empty());
}

TEST(Record, DoesNotShareBytesThatAreOnlyEqual) {
  const Record record = kLong;
  EXPECT_FALSE(record.Shares(Record(kLong)));
  EXPECT_TRUE(record.Shares(record));
}

TEST(EmptyRecord, IsTheSameHoweverItCameAbout) {
  Record cleared = "x";
  cleared.clear();
  Record edited;
  edited.Edit();
  Record emptied = "x";
  emptied.Edit().clear();

  for (const Record& record : {Record(), Record(""), Record(std::string()), cleared, edited, emptied}) {
    EXPECT_TRUE(record.empty());
    EXPECT_EQ(record.size(), 0U);
    EXPECT_EQ(record.Bytes(), "");
    EXPECT_EQ(record, Record());
    EXPECT_FALSE(record == Record("x"));
  }
}

TEST(EmptyRecord, CanBeEditedWithoutFillingOthers) {
  Record record;
  const Record copy = record;
  record.Edit() = "x";
  EXPECT_EQ(record, "x");
  EXPECT_EQ(copy, "");
  EXPECT_EQ(Record(), "");
}

TEST(EmptyRecord, IsSharedByCopiesOnlyUntilOneIsEdited) {
  Record record;
  record.Edit();
  Record copy = record;
  record += "x";
  copy += "y";
  EXPECT_EQ(record, "x");
  EXPECT_EQ(copy, "y");
}

TEST(Records, AreEqualIfTheirBytesAre) {
  const Record record = "abc";
  const std::string bytes("a\0b", 3);

  EXPECT_TRUE(record == Record("abc"));
  EXPECT_TRUE(record == Record(record));
  EXPECT_FALSE(record == Record("abd"));
  EXPECT_FALSE(record == Record("ab"));
  EXPECT_FALSE(record == Record());
  EXPECT_TRUE(record == "abc");
  EXPECT_TRUE(record == std::string("abc"));
  EXPECT_TRUE(record == std::string_view("abc"));
  EXPECT_FALSE(record == "abcd");
  EXPECT_FALSE(record == std::string_view("ab"));
  EXPECT_TRUE(Record(bytes) == bytes);
  EXPECT_FALSE(Record(bytes) == Record("a"));
}

TEST(Record, IsGivenAndTakenAsBytes) {
  const Record record = std::string_view("abcabc").substr(0, 4);
  const std::string& bytes = record;
  const std::string_view view = record;

  EXPECT_EQ(bytes, "abca");
  EXPECT_EQ(view, "abca");
  EXPECT_EQ(record.size(), 4U);
  EXPECT_EQ(record.find("ca"), 2U);
  EXPECT_EQ(record.find("x"), std::string::npos);
  EXPECT_EQ(record + "d", "abcad");
}

TEST(Record, IsWrittenAsItsBytes) {
  std::ostringstream out;
  out << Record("a<b>") << Record();
  EXPECT_EQ(out.str(), "a<b>");
}

}  // namespace
}  // namespace tavrel::test
