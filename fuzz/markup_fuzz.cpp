#include <array>
#include <string>

#include "core/document/markup.h"
#include "expect.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

constexpr std::array<const char*, 10> kTags = {"<title>",    "<note>",  "<text>", "<link>", "<linkto>",
                                               "<linktext>", "<music>", "<song>", "<p>",    "<a<a"};

/// Gives the number of elements.
int ExpectWalkCountsLikeGetTag(const std::string& text, const std::string& tag) {
  TagWalker walker(text, tag);
  int occurrence = 0;
  while (walker.Next()) {
    ++occurrence;
    ExpectEqual(walker.Content(), GetTag(text, tag, occurrence), "the walk gives what GetTag gives");
  }
  ExpectEqual(GetTag(text, tag, occurrence + 1), "", "the walk ends with the last element");
  Expect(!walker.Next() && walker.Content().empty(), "a walk that has ended stays so");
  return occurrence;
}

void ExpectSetThenGet(const std::string& text, const std::string& value, const std::string& tag,
                      int occurrence) {
  std::string changed = text;
  SetTag(changed, value, tag, occurrence);
  std::string expected = text;
  LiteralSetTag(expected, value, tag, occurrence);
  ExpectEqual(changed, expected, "SetTag follows its rules");

  std::string marked = text;
  LiteralSetTag(marked, "\x01", tag, occurrence);
  const bool is_there = marked != text || GetTag(text, tag, occurrence) == "\x01";
  const bool is_plain = value.find('<') == std::string::npos;
  if (is_there && is_plain)
    ExpectEqual(GetTag(changed, tag, occurrence), value, "GetTag gives what SetTag set");
  if (!is_there) ExpectEqual(changed, text, "without the element nothing changes");
}

}  // namespace

/// An input is the number of a tag, the number of an occurrence, a line with a value, and a text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const std::string tag = kTags.at(static_cast<std::size_t>(input.Choice(kTags.size())));
  const int chosen = input.Choice(64) - 1;
  const std::string value(input.Line());
  const std::string text(input.Rest());

  ExpectEqual(GetTag(text, tag, chosen), LiteralGetTag(text, tag, chosen), "GetTag follows its rules");
  const int count = ExpectWalkCountsLikeGetTag(text, tag);
  ExpectSetThenGet(text, value, tag, chosen);
  ExpectSetThenGet(text, value, tag, count);
  ExpectSetThenGet(text, value, tag, count + 1);
  return 0;
}
