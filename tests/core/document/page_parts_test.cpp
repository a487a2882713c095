#include "core/document/page_parts.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "core/document/brackets.h"
#include "core/document/markup.h"

// A page is read in one go for what publishing asks for one tag after the other.

namespace tavrel::test {
namespace {

std::string RandomTags(std::mt19937& random) {
  static const std::string one = "<linktext>a</linktext><linkto>007</linkto>";
  static const std::string two = "<linktext>b</linktext><linkto>008</linkto>";
  static const std::string between = "</linktext><linkto>";
  static const std::vector<std::string> pieces = {
      "<title>",    "</title>",    "<note>",   "</note>",   "<text>",  "</text>",  "<link>", "</link>",
      "<linktext>", "</linktext>", "<linkto>", "</linkto>", "<music>", "</music>", "a",      "<",
      "</",         ">",           "<b>",      "<link",     "007",     one,        two,      between};
  std::string record;
  for (auto left = random() % 30; left > 0; --left) record += pieces[random() % pieces.size()];
  return record;
}

std::string PrintedLinks(const PageParts& parts) {
  std::string printed;
  for (const PageParts::Link& link : parts.Links)
    printed.append("[").append(link.Text).append("|").append(link.Target).append("]");
  return printed;
}

/// The links one after the other, as GetTag counts them, up to the last that has words or a target.
std::string LinksByTags(const std::string& record) {
  const std::string nothing = "[|]";
  std::string printed;
  TagWalker texts(record, "<linktext>");
  TagWalker targets(record, "<linkto>");
  for (bool has_text = texts.Next(), has_target = targets.Next(); has_text || has_target;) {
    printed.append("[").append(has_text ? texts.Content() : "").append("|");
    printed.append(has_target ? targets.Content() : "").append("]");
    has_text = texts.Next();
    has_target = targets.Next();
  }
  while (printed.ends_with(nothing)) printed.resize(printed.size() - nothing.size());
  return printed;
}

TEST(PartsOf, IsWhatIsReadTagByTag) {
  std::mt19937 random(1);
  for (int attempt = 0; attempt < 20'000 && !testing::Test::HasFailure(); ++attempt) {
    const std::string record = RandomTags(random);
    const PageParts parts = PartsOf(record);
    EXPECT_EQ(parts.Title, GetTag(record, "<title>", 1)) << record;
    EXPECT_EQ(parts.Note, GetTag(record, "<note>", 1)) << record;
    EXPECT_EQ(parts.Text, GetTag(record, "<text>", 1)) << record;
    EXPECT_EQ(parts.MusicText, GetTag(record, "<music>", 1)) << record;
    EXPECT_EQ(parts.MusicLink, GetTag(record, "<music>", 2)) << record;
    EXPECT_EQ(PrintedLinks(parts), LinksByTags(record)) << record;
  }
}

TEST(PartsOf, SaysThatAllLinksAreListedOnlyIfTheFirstListHoldsTheSame) {
  std::mt19937 random(2);
  int listed = 0;
  for (int attempt = 0; attempt < 20'000 && !testing::Test::HasFailure(); ++attempt) {
    const std::string record = RandomTags(random);
    const PageParts parts = PartsOf(record);
    if (!parts.AreLinksListed) continue;
    ++listed;
    EXPECT_EQ(PrintedLinks(parts), LinksByTags(GetTag(record, "<link>", 1))) << record;
  }
  EXPECT_GT(listed, 0);
  EXPECT_TRUE(PartsOf("<link><linktext>a</linktext><linkto>002</linkto></link>").AreLinksListed);
}

TEST(BracketWalker, MeetsBothKindsInTheirOrder) {
  const std::string text = std::string(1000, 'a') + ">b<<";
  BracketWalker walker(text);
  for (const std::size_t place : {std::size_t{1000}, std::size_t{1002}, std::size_t{1003}, std::string::npos})
    EXPECT_EQ(walker.Next(), place);
  EXPECT_EQ(walker.Next(), std::string::npos);
  EXPECT_EQ(BracketWalker("").Next(), std::string::npos);
}

TEST(BracketWalker, LinksBeginWithAnOpeningBracketAndThereIsAClosingOne) {
  EXPECT_TRUE(BracketWalker("a <b> c").AreLinks());
  for (const char* text : {"", "a", "a < b", "a > b", "> <", "><>"})
    EXPECT_FALSE(BracketWalker(text).AreLinks()) << text;
}

}  // namespace
}  // namespace tavrel::test
