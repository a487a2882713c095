#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

using Result = std::optional<std::string>;

/// Nothing stands for a run-time error.
Result ResultOf(const std::function<std::string()>& function) {
  try {
    return function();
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

void ExpectSame(const Result& actual, const Result& expected, std::string_view what) {
  Expect(actual.has_value() == expected.has_value(), "a run-time error where the rules have one");
  if (actual) ExpectEqual(*actual, *expected, what);
}

}  // namespace

/// An input is the number of the page (0 for page 1) and of the options, three lines with the records of
/// music links 0, 1 and 100, and the page's record.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto kGlobal = std::make_unique<Global>();
  Global& global = *kGlobal;
  Input input(data, size);
  const int page = input.Choice(2) + 1;
  const int chosen = input.Choice(4);
  const PublishOptions options{.NotesMenuLink = chosen % 2 == 1, .BackgroundMusic = chosen >= 2};
  for (const int link : {0, 1, 100}) global.MusicLink(link) = input.Line();
  global.Page(page) = input.Rest();

  ExpectSame(ResultOf([&] { return NoteText(global, page, options); }),
             ResultOf([&] { return LiteralNote(global, page, options); }), "the note");
  const std::string text(input.Rest());
  ExpectSame(ResultOf([&] { return GetText(global, text, page); }),
             ResultOf([&] { return LiteralGetText(global, text, page); }), "the text");
  return 0;
}
