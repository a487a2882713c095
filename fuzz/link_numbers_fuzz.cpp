#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include "core/document/page_record.h"
#include "core/editing/blocks.h"
#include "core/editing/link_numbers.h"
#include "expect.h"
#include "literal_editing.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

constexpr int kMostPages = 5;

void ExpectRenumbered(const std::string& record, const LiteralRule& rule) {
  std::string actual = record;
  RenumberLinks(actual, rule);
  std::string expected = record;
  LiteralRenumber(expected, rule);
  ExpectEqual(actual, expected, "links get their new numbers");
}

void ExpectSamePages(const Global& actual, const Global& expected) {
  for (int page = 0; page <= kLastRecord; ++page) {
    ExpectEqual(actual.Page(page), expected.Page(page), "same page");
  }
  ExpectEqual(actual.PageClipboard, expected.PageClipboard, "same clipboard");
}

/// A document with the record on the first page, the last one and those in and around a block.
void Fill(Global& global, const std::string& record, int at, int count) {
  for (Record& page : global.Pages) page.clear();
  for (int page = std::max(at - 1, 1); page <= std::min(at + count, kLastPage); ++page) {
    global.Page(page) = record + "<title>" + std::to_string(page) + "</title>";
  }
  global.Page(1) = record;
  global.Page(kLastPage) = record;
  global.PageClipboard = "before";
}

/// After each cut the page that has moved up is shown, and stored by the next one.
void LiteralDelete(Global& global, int at, int count) {
  for (int run = 1; run <= count; ++run) {
    if (run > 1) global.Page(at) = BuildPage(ReadPage(global.Page(at)), CodePage::Windows1252());
    LiteralCut(global, at);
  }
}

}  // namespace

/// An input is the number of a command (0 inserts pages, 1 deletes them, 2 swaps two), the number of pages
/// less one, a line with the page and a page record.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto kActual = std::make_unique<Global>();
  static const auto kExpected = std::make_unique<Global>();
  Input input(data, size);
  const int command = input.Choice(3);
  const int wanted_count = input.Choice(kMostPages) + 1;
  const int at = std::clamp(std::atoi(std::string(input.Line()).c_str()), 1, kLastPage - 1);
  const int count = std::min(wanted_count, kLastPage - at + 1);
  const std::string record(input.Rest());
  if (command == 2) {
    ExpectRenumbered(record, AfterSwapOf(at, at + 1));
    return 0;
  }

  ExpectRenumbered(record, command == 0 ? AfterInsertAt(at) : AfterCutAt(at));
  Fill(*kActual, record, at, count);
  Fill(*kExpected, record, at, count);
  if (command == 0) {
    InsertPages(*kActual, at, wanted_count);
    for (int run = 1; run <= wanted_count; ++run) LiteralInsert(*kExpected, at);
  } else {
    DeletePages(*kActual, {at, at + count - 1}, CodePage::Windows1252());
    LiteralDelete(*kExpected, at, count);
  }
  ExpectSamePages(*kActual, *kExpected);
  return 0;
}
