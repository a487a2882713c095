#include "core/text/field_reader.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tavrel::test {
namespace {

using FieldList = std::vector<std::string>;

FieldList Fields(std::string_view text) {
  FieldList fields;
  for (FieldReader reader(text); !reader.AtEnd();) fields.emplace_back(reader.NextField());
  return fields;
}

FieldList Lines(std::string_view text) {
  FieldList lines;
  for (FieldReader reader(text); !reader.AtEnd();) lines.emplace_back(reader.NextLine());
  return lines;
}

TEST(FieldReader, EndsAFieldAtACommaOrALineEnd) {
  EXPECT_EQ(Fields("a,b\r\nc\r\n"), (FieldList{"a", "b", "c"}));
  EXPECT_EQ(Fields("a\nb,c,d"), (FieldList{"a", "b", "c", "d"}));
}

TEST(FieldReader, HasNoFieldInAnEmptyText) {
  EXPECT_EQ(Fields(""), FieldList());
  EXPECT_EQ(Lines(""), FieldList());
}

TEST(FieldReader, GivesEmptyFields) {
  EXPECT_EQ(Fields("\r\n\r\n"), (FieldList{"", ""}));
  EXPECT_EQ(Fields(",\r\n"), (FieldList{"", ""}));
  EXPECT_EQ(Fields("a,,b"), (FieldList{"a", "", "b"}));
  EXPECT_EQ(Fields("a,"), (FieldList{"a", ""}));
}

TEST(FieldReader, KeepsBlanksAndLoneCarriageReturns) {
  EXPECT_EQ(Fields(" 1 , x\t\r\n"), (FieldList{" 1 ", " x\t"}));
  EXPECT_EQ(Fields("a\rb\r\n"), (FieldList{"a\rb"}));
}

TEST(FieldReader, TakesTheQuotesOffAField) {
  EXPECT_EQ(Fields("\"a\"\r\n\"b\",\"c\"\r\n"), (FieldList{"a", "b", "c"}));
  EXPECT_EQ(Fields("\"\",\"\""), (FieldList{"", ""}));
}

TEST(FieldReader, KeepsACommaBetweenQuotes) {
  EXPECT_EQ(Fields("\"a,b\",c\r\n\",\"\r\n"), (FieldList{"a,b", "c", ","}));
}

TEST(FieldReader, TakesQuotesThatDoNotEncloseForContent) {
  EXPECT_EQ(Fields("a\"b\"\r\n\"c\r\n\"d,e\r\nf\"\r\n"), (FieldList{"a\"b\"", "\"c", "\"d", "e", "f\""}));
}

TEST(FieldReader, GivesWholeLinesWithTheirCommasAndQuotes) {
  EXPECT_EQ(Lines("a,b\r\n\"c\"\n\r\n\"d\",e"), (FieldList{"a,b", "\"c\"", "", "\"d\",e"}));
}

TEST(FieldReader, ReadsFieldsAndLinesInTurn) {
  FieldReader reader("x,y\r\n1\r\n2,3\r\nz,\"z\"\r\n");
  EXPECT_EQ(reader.NextLine(), "x,y");
  EXPECT_EQ(reader.NextField(), "1");
  EXPECT_EQ(reader.NextField(), "2");
  EXPECT_EQ(reader.NextField(), "3");
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.NextLine(), "z,\"z\"");
  EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, GivesTheRestOfALineWhoseFirstFieldsWereRead) {
  FieldReader reader("1,b,\"c\"\r\nd,\r\ne,");
  EXPECT_EQ(reader.NextField(), "1");
  EXPECT_EQ(reader.NextLine(), "b,\"c\"");
  EXPECT_EQ(reader.NextField(), "d");
  EXPECT_EQ(reader.NextLine(), "");
  EXPECT_EQ(reader.NextField(), "e");
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_EQ(reader.NextLine(), "");
  EXPECT_TRUE(reader.AtEnd());
}

}  // namespace
}  // namespace tavrel::test
