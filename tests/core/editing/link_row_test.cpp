#include "core/editing/link_row.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace tavrel::test {
namespace {

using Links = std::vector<std::pair<std::string, std::string>>;

std::string RecordOf(const Links& links) {
  std::string record = "<title>T</title><link>";
  for (const auto& [words, target] : links)
    record += "<linktext>" + words + "</linktext><linkto>" + target + "</linkto>";
  return record + "</link>";
}

int RowNow(const Links& before, const Links& now, int row) {
  return LinkRowNow(RecordOf(before), RecordOf(now), row);
}

TEST(LinkRow, StaysWhereNothingHasChanged) {
  const Links links = {{"a", "001"}, {"a", "001"}, {"b", "001"}};
  for (int row = 1; row <= 4; ++row) EXPECT_EQ(RowNow(links, links, row), row);
}

TEST(LinkRow, MovesWithALinkThatWasPutInFront) {
  EXPECT_EQ(RowNow({{"gold", "002"}}, {{"first", "002"}, {"gold", "002"}}, 1), 2);
  const Links before = {{"back", "001"}, {"gold", "002"}, {"back", "002"}};
  const Links now = {{"first", "002"}, {"back", "001"}, {"gold", "002"}, {"back", "002"}};
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(RowNow(before, now, row), row + 1);
}

TEST(LinkRow, MovesOfLinksThatAreTheSame) {
  const Links before = {{"a", "001"}, {"a", "001"}};
  const Links in_front = {{"x", "001"}, {"a", "001"}, {"a", "001"}};
  const Links behind = {{"a", "001"}, {"a", "001"}, {"x", "001"}};
  for (int row = 1; row <= 2; ++row) {
    EXPECT_EQ(RowNow(before, in_front, row), row + 1);
    EXPECT_EQ(RowNow(before, behind, row), row);
  }
}

TEST(LinkRow, StaysOfALinkThatWasChangedItself) {
  const Links before = {{"a", "001"}, {"b", "002"}, {"c", "003"}};
  EXPECT_EQ(RowNow(before, {{"a", "001"}, {"b", "009"}, {"c", "003"}}, 2), 2);
  EXPECT_EQ(RowNow(before, {{"a", "001"}, {"a", "001"}, {"c", "003"}}, 2), 2);
  EXPECT_EQ(RowNow(before, {}, 2), 2);
}

TEST(LinkRow, MovesUpWhereALinkHasGone) {
  const Links before = {{"a", "001"}, {"b", "002"}, {"c", "003"}};
  EXPECT_EQ(RowNow(before, {{"b", "002"}, {"c", "003"}}, 3), 2);
  EXPECT_EQ(RowNow(before, {{"b", "002"}, {"c", "003"}}, 2), 1);
}

TEST(LinkRow, IsThatOfTheSameLinkBetweenTwoThatHaveChanged) {
  const Links before = {{"a", "001"}, {"x", "005"}, {"y", "006"}, {"x", "005"}, {"c", "003"}};
  const Links now = {{"A", "001"}, {"n", "009"}, {"x", "005"}, {"y", "006"}, {"x", "005"}, {"C", "003"}};
  for (int row = 2; row <= 4; ++row) EXPECT_EQ(RowNow(before, now, row), row + 1);
}

TEST(LinkRow, KnowsLinksAgainAsStoringWritesThem) {
  EXPECT_EQ(RowNow({{" a ", " 1"}}, {{"x", "001"}, {"a", "001"}}, 1), 2);
}

}  // namespace
}  // namespace tavrel::test
