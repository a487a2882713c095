#include "core/editing/link_numbers.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/document/markup.h"
#include "core/editing/document_of.h"

namespace tavrel::test {
namespace {

std::optional<int> OneMore(int number) {
  return number + 1;
}

std::string Renumbered(std::string record, const LinkRule& rule = OneMore) {
  RenumberLinks(record, rule);
  return record;
}

TEST(RenumberLinks, ChangesAllLinksOfARecordAndNothingElse) {
  EXPECT_EQ(Renumbered("<title>5</title><text>005 <link> 005</text><link><linktext>5</linktext>"
                       "<linkto>005</linkto><linktext>005</linktext><linkto>041</linkto></link><music>5"
                       "</music><music>M5</music>"),
            "<title>5</title><text>005 <link> 005</text><link><linktext>5</linktext>"
            "<linkto>006</linkto><linktext>005</linktext><linkto>042</linkto></link><music>5"
            "</music><music>M5</music>");
}

TEST(RenumberLinks, WritesAtLeastThreeDigits) {
  EXPECT_EQ(Renumbered(LinkingTo({"8", "98", "998", "999", "1000"})),
            LinkingTo({"009", "099", "999", "1000", "1001"}));
}

TEST(RenumberLinks, LeavesLinksThatTheRuleDoesNotSelectAsTheyStand) {
  const LinkRule rule = [](int number) { return number == 7 ? std::optional(8) : std::nullopt; };
  EXPECT_EQ(Renumbered(LinkingTo({"6", "7", "0008", "007", "7 "}), rule),
            LinkingTo({"6", "008", "0008", "008", "008"}));
  EXPECT_EQ(Renumbered(LinkingTo({"6"}), rule), LinkingTo({"6"}));
}

TEST(RenumberLinks, ReadsALinksNumberOnce) {
  std::vector<int> asked;
  const LinkRule swap = [&asked](int number) {
    asked.push_back(number);
    return number == 3 ? 4 : 3;
  };
  EXPECT_EQ(Renumbered(LinkingTo({"003", "004", "003"}), swap), LinkingTo({"004", "003", "004"}));
  EXPECT_EQ(asked, (std::vector<int>{3, 4, 3}));
}

TEST(RenumberLinks, AsksForNumbersFrom1OnOnly) {
  std::vector<int> asked;
  const LinkRule rule = [&asked](int number) {
    asked.push_back(number);
    return std::optional(5);
  };
  const std::string links = LinkingTo({"000", "0", "M5", "m5", "x", " 5", "-5", "+5", "/5", ":5"});
  EXPECT_EQ(Renumbered(links, rule), links);
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(Renumbered(LinkingTo({"001"}), rule), LinkingTo({"005"}));
}

TEST(RenumberLinks, ReadsTheLeadingDigits) {
  EXPECT_EQ(Renumbered(LinkingTo({"5x", "12.7", "5 6", "0007"})), LinkingTo({"006", "013", "006", "008"}));
}

TEST(RenumberLinks, ReadsNumbersBeyondSixteenBitsAsTheirLowBits) {
  EXPECT_EQ(Renumbered(LinkingTo({"32766", "32767", "32768", "65535", "65536", "65537", "70000"})),
            LinkingTo({"32767", "32768", "32768", "65535", "65536", "002", "4465"}));
}

TEST(RenumberLinks, StopsAtTheFirstLinkWithoutATarget) {
  EXPECT_EQ(Renumbered(LinkingTo({"001", "", "005"})), LinkingTo({"002", "", "005"}));
  EXPECT_EQ(Renumbered(LinkingTo({"", "005"})), LinkingTo({"", "005"}));
}

TEST(RenumberLinks, StopsAtALinkWithoutItsClosingTag) {
  EXPECT_EQ(Renumbered("<linkto>005"), "<linkto>005");
  EXPECT_EQ(Renumbered("<linkto>001</linkto><linkto>005"), "<linkto>002</linkto><linkto>005");
}

TEST(RenumberLinks, ReplacesATargetWithTheTagsInIt) {
  EXPECT_EQ(Renumbered("<linkto>5<linkto>7</linkto><linkto>8</linkto>"),
            "<linkto>006</linkto><linkto>009</linkto>");
  EXPECT_EQ(Renumbered("<linkto>5<text>7</linkto>x</linkto>"), "<linkto>006</linkto>x</linkto>");
}

TEST(RenumberLinks, GoesOnBehindATargetThatEndedInAnOpeningTag) {
  EXPECT_EQ(Renumbered("<linkto>5<linkto></linkto><linkto>8</linkto>"),
            "<linkto>006</linkto><linkto>009</linkto>");
}

TEST(RenumberLinks, ReachesTagsInTargetsThatStay) {
  EXPECT_EQ(Renumbered("<linkto>M1<linkto>7</linkto><linkto>8</linkto>"),
            "<linkto>M1<linkto>008</linkto><linkto>009</linkto>");
  EXPECT_EQ(Renumbered("<linkto>M1<linkto></linkto><linkto>8</linkto>"),
            "<linkto>M1<linkto></linkto><linkto>8</linkto>");
}

TEST(RenumberLinks, ReachesLinksOutsideTheLinkBlock) {
  EXPECT_EQ(Renumbered("<text>a<linkto>005</linkto></text>" + LinkingTo({"006"})),
            "<text>a<linkto>006</linkto></text>" + LinkingTo({"007"}));
}

TEST(RenumberLinks, LeavesRecordsWithoutLinksAlone) {
  EXPECT_EQ(Renumbered(""), "");
  EXPECT_EQ(Renumbered("<title>5</title>"), "<title>5</title>");
}

TEST(RenumberLinks, GoesThroughPages1To999) {
  Global global;
  for (const int page : {0, 1, 2, 998, 999, 1000}) global.Page(page) = LinkingTo({"005"});
  RenumberLinks(global, OneMore);
  for (const int page : {1, 2, 998, 999}) EXPECT_EQ(global.Page(page), LinkingTo({"006"})) << page;
  for (const int page : {0, 1000}) EXPECT_EQ(global.Page(page), LinkingTo({"005"})) << page;
}

TEST(RenumberLinks, StopsOnlyThePageWithTheEmptyLink) {
  Global global;
  global.Page(1) = LinkingTo({"", "005"});
  global.Page(2) = LinkingTo({"005"});
  RenumberLinks(global, OneMore);
  EXPECT_EQ(global.Page(1), LinkingTo({"", "005"}));
  EXPECT_EQ(global.Page(2), LinkingTo({"006"}));
}

TEST(TagWalker, TellsWhereAContentBegins) {
  const std::string text = "x<a>1<a></a><a>2";
  TagWalker walker(text, "<a>");
  ASSERT_TRUE(walker.Next());
  EXPECT_EQ(walker.ContentStart(), 4U);
  ASSERT_TRUE(walker.Next());
  EXPECT_EQ(walker.ContentStart(), 8U);
  ASSERT_TRUE(walker.Next());
  EXPECT_EQ(walker.ContentStart(), 15U);
}

}  // namespace
}  // namespace tavrel::test
