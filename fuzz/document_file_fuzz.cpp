#include <algorithm>
#include <memory>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

bool HoldsNothing(const Global& global) {
  const auto empty = [](const std::string& record) { return record.empty(); };
  return std::all_of(global.Pages.begin(), global.Pages.end(), empty) &&
         std::all_of(global.MusicLinks.begin(), global.MusicLinks.end(), empty);
}

/// Nothing if the text is damaged.
std::unique_ptr<Global> LiterallyRead(const std::string& text) {
  auto global = std::make_unique<Global>();
  try {
    LiteralReadDocument(text, *global);
  } catch (const RunTimeError&) {
    return nullptr;
  }
  return global;
}

/// Page 1000 and music link 100 are read but never written.
void ExpectSameStored(const Global& actual, const Global& expected) {
  for (int page = 0; page <= kLastPage; ++page)
    ExpectEqual(actual.Page(page), expected.Page(page), "same page");
  for (int link = 0; link < kLastMusicLink; ++link) {
    ExpectEqual(actual.MusicLink(link), expected.MusicLink(link), "same music link");
  }
}

}  // namespace

/// Any bytes are a document or a damaged one. What is read from a document and written is read back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(Input(data, size).Rest());
  const std::unique_ptr<Global> expected = LiterallyRead(input);
  const auto first = std::make_unique<Global>();
  try {
    ReadDocumentText(input, *first);
  } catch (const RunTimeError&) {
    Expect(expected == nullptr, "only a damaged document is refused");
    Expect(HoldsNothing(*first), "a damaged document changes nothing");
    return 0;
  }
  Expect(expected != nullptr, "a damaged document is refused");
  Expect(first->Pages == expected->Pages && first->MusicLinks == expected->MusicLinks,
         "the document is read");

  const std::string text = DocumentText(*first);
  const auto second = std::make_unique<Global>();
  ReadDocumentText(text, *second);
  ExpectSameStored(*second, *first);
  ExpectEqual(DocumentText(*second), text, "the same bytes are written again");
  return 0;
}
