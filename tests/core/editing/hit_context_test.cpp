#include <gtest/gtest.h>
#include <string>

#include "core/editing/find_all.h"

// The words around a hit.

namespace tavrel::test {
namespace {

/// The words around a part, with the part in brackets.
std::string ContextIn(const std::string& content, std::size_t position, std::size_t length,
                      std::size_t room) {
  FieldPart part;
  part.Position = position;
  part.Length = length;
  const HitContext context = ContextOf(content, part, room);
  return context.Before + "[" + context.Found + "]" + context.After;
}

TEST(ContextOf, AShortFieldIsShownAsAWhole) {
  EXPECT_EQ(ContextIn("one two three", 4, 3, 20), "one [two] three");
}

TEST(ContextOf, WhatIsCutEndsInPoints) {
  EXPECT_EQ(ContextIn("one two three", 4, 3, 2), "...e [two] t...");
  EXPECT_EQ(ContextIn("one two three", 4, 3, 0), "...[two]...");
}

TEST(ContextOf, WhatJustFitsIsNotCut) {
  EXPECT_EQ(ContextIn("one two three", 4, 3, 4), "one [two] thr...");
  EXPECT_EQ(ContextIn("one two three", 4, 3, 6), "one [two] three");
  EXPECT_EQ(ContextIn("one two three", 4, 3, 5), "one [two] thre...");
  EXPECT_EQ(ContextIn("one two three", 4, 3, 3), "...ne [two] th...");
}

TEST(ContextOf, NothingStandsBeyondTheEdges) {
  EXPECT_EQ(ContextIn("one two", 0, 3, 2), "[one] t...");
  EXPECT_EQ(ContextIn("one two", 4, 3, 2), "...e [two]");
  EXPECT_EQ(ContextIn("one", 0, 3, 2), "[one]");
}

TEST(ContextOf, LineEndsAndTabsAreBlanks) {
  EXPECT_EQ(ContextIn("a\r\nb\tc\r\nd", 3, 3, 9), "a  [b c]  d");
}

TEST(ContextOf, AFieldThatBecameShorterShowsWhatThereIs) {
  EXPECT_EQ(ContextIn("one two", 4, 9, 4), "one [two]");
  EXPECT_EQ(ContextIn("one", 8, 3, 2), "...ne[]");
  EXPECT_EQ(ContextIn("", 8, 3, 2), "[]");
}

}  // namespace
}  // namespace tavrel::test
