#include "expect.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tavrel::fuzz {
namespace {

int Length(std::string_view text) {
  return static_cast<int>(text.size());
}

}  // namespace

void Expect(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %.*s\n", Length(what), what.data());
  std::abort();
}

void ExpectEqual(std::string_view actual, std::string_view expected, std::string_view what) {
  if (actual == expected) return;
  std::fprintf(stderr, "actual:   [%.*s]\nexpected: [%.*s]\n", Length(actual), actual.data(),
               Length(expected), expected.data());
  Expect(false, what);
}

int Input::Choice(int count) {
  if (rest_.empty()) return 0;
  const int byte = static_cast<unsigned char>(rest_.front()) - '0';
  rest_.remove_prefix(1);
  return ((byte % count) + count) % count;
}

std::string_view Input::Line() {
  const std::size_t feed = rest_.find('\n');
  const std::string_view line = rest_.substr(0, feed);
  rest_.remove_prefix(std::min(line.size() + 1, rest_.size()));
  return line;
}

}  // namespace tavrel::fuzz
