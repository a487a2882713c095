#include <memory>
#include <optional>
#include <string>

#include "core/document/markup.h"
#include "core/editing/search.h"
#include "expect.h"
#include "literal_editing.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

/// An input is the numbers of a page (0 for page 1, 1 for page 1000) and of the comparison (1 if case
/// matters), a line with the searched text, a line with the replacement, and the page's text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto kGlobal = std::make_unique<Global>();
  Global& global = *kGlobal;
  Input input(data, size);
  const int page = input.Choice(2) == 0 ? 1 : kLastRecord;
  const bool match_case = input.Choice(2) == 1;
  const std::string wanted(input.Line());
  const std::string replacement(input.Line());
  if (wanted.empty()) return 0;

  std::string record = "<title>" + wanted + "</title>";
  AppendTag(record, "<text>", input.Rest());
  const std::optional<std::string> replaced =
      LiteralReplace(LiteralGetTag(record, "<text>", 1), wanted, replacement, match_case);
  if (!replaced) return 0;

  global.Page(page) = record;
  ReplaceInPages(global, wanted, replacement, match_case, CodePage::Windows1252());
  LiteralSetTag(record, *replaced, "<text>", 1);
  ExpectEqual(global.Page(page), record, "matches are replaced");
  global.Page(page).clear();
  return 0;
}
