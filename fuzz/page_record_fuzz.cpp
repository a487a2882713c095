#include <algorithm>
#include <array>
#include <string>

#include "core/document/page_record.h"
#include "core/text/numbers.h"
#include "expect.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

void ExpectFieldsFollowGetTag(const PageFields& fields, const std::string& record) {
  ExpectEqual(fields.Title, LiteralGetTag(record, "<title>", 1), "title");
  ExpectEqual(fields.Note, LiteralGetTag(record, "<note>", 1), "note");
  ExpectEqual(fields.Body, LiteralGetTag(record, "<text>", 1), "body");
  ExpectEqual(fields.MusicText, LiteralGetTag(record, "<music>", 1), "music text");
  ExpectEqual(fields.MusicLink, LiteralGetTag(record, "<music>", 2), "music link");
  const std::string block = LiteralGetTag(record, "<link>", 1);
  for (int link = 1; link <= kLastLink; ++link) {
    const Link& read = fields.Links.at(static_cast<std::size_t>(link) - 1);
    ExpectEqual(read.Text, LiteralGetTag(block, "<linktext>", link), "link text");
    ExpectEqual(read.Target, LiteralGetTag(block, "<linkto>", link), "link target");
  }
}

/// Searches go over the whole record, so a tag inside a field is seen by other fields too.
bool HoldsTag(const std::string& field) {
  constexpr std::array<std::string_view, 7> kNames = {"title>",    "note>",   "text>", "link>",
                                                      "linktext>", "linkto>", "music>"};
  return std::any_of(kNames.begin(), kNames.end(), [&](std::string_view name) {
    return field.find("<" + std::string(name)) != std::string::npos ||
           field.find("</" + std::string(name)) != std::string::npos;
  });
}

/// A number of more than 15 bits becomes a negative one, which is no number when it is stored again.
bool IsOverflowing(const Link& link) {
  return !IsMusicTarget(link.Target) && LeadingDigits(link.Target) < 0;
}

bool IsPlain(const PageFields& fields) {
  return !HoldsTag(fields.Title) && !HoldsTag(fields.Note) && !HoldsTag(fields.Body) &&
         !HoldsTag(fields.MusicText) && !HoldsTag(fields.MusicLink) &&
         std::none_of(fields.Links.begin(), fields.Links.end(),
                      [](const Link& link) { return HoldsTag(link.Text) || HoldsTag(link.Target); });
}

}  // namespace

/// Any text can be read as a page record. One that the program has written stays as it is when it is read and
/// written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const CodePage& code_page = CodePage::Windows1252();
  const std::string record(Input(data, size).Rest());
  const PageFields fields = ReadPage(record);
  ExpectFieldsFollowGetTag(fields, record);

  const std::string stored = BuildPage(fields, code_page);
  const PageFields stored_fields = ReadPage(stored);
  ExpectFieldsFollowGetTag(stored_fields, stored);
  const bool overflows = std::any_of(fields.Links.begin(), fields.Links.end(), IsOverflowing);
  if (IsPlain(fields) && !overflows) {
    ExpectEqual(BuildPage(stored_fields, code_page), stored, "a stored page stays as it is");
  }
  return 0;
}
