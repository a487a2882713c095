#include <string>

#include "core/editing/text_search.h"
#include "expect.h"
#include "literal_editing.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// A piece of text again and again, so that it nearly holds itself everywhere.
std::string Repeated(std::string_view piece, int times) {
  std::string text;
  for (; times > 0; --times) text += piece;
  return text;
}

void ExpectSameMatches(const std::string& text, const std::string& wanted, bool match_case) {
  const TextSearch search(wanted, match_case, CodePage::Windows1252());
  const std::string shown = match_case ? text : LiteralSmall(text);
  const std::string looked_for = match_case ? wanted : LiteralSmall(wanted);
  ExpectEqual(search.Wanted(), looked_for, "what is looked for");
  std::size_t from = 0;
  while (true) {
    const std::size_t found = search.Find(text, from);
    const std::size_t position = Position(shown, looked_for, from + 1);
    Expect(found == (position == 0 ? text.size() : position - 1), "the first match is found");
    if (position == 0) return;
    from = found + 1;
  }
}

}  // namespace

/// An input is the number of the comparison (1 if case matters), how often the wanted text and the page's
/// text are repeated in themselves, a line with each of two pieces of the wanted text, and the page's text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const bool match_case = input.Choice(2) == 1;
  const int wanted_times = input.Choice(64);
  const int text_times = input.Choice(64) + 1;
  const std::string wanted_piece(input.Line());
  const std::string wanted = Repeated(wanted_piece, wanted_times) + std::string(input.Line());
  if (wanted.empty()) return 0;
  ExpectSameMatches(Repeated(input.Rest(), text_times), wanted, match_case);
  return 0;
}
